#include "RightsFixture.h"
#include "SettingsFixture.h"

namespace
{

using SettingsRightsTest = RightsTest;

} // namespace

TEST_F(SettingsTest, NumbersAreReadBack)
{
    LogonBuiltin();
    ASSERT_EQ(WriteNumber(QORINFO_KEEP_UPDATES, 0), kSuccess);
    ASSERT_EQ(WriteNumber(QORINFO_RESTRICT, 0x83), kSuccess);
    EXPECT_EQ(ReadNumber(QORINFO_KEEP_UPDATES), 0U);
    EXPECT_EQ(ReadNumber(QORINFO_RESTRICT), 0x83U);
    EXPECT_EQ(ReadNumber(QORINFO_SNAP_BEFORE), 1U);
}

TEST_F(SettingsTest, LongerValueDoesNotFit)
{
    LogonBuiltin();
    ASSERT_EQ(WriteNumber(kOwnId, 5), kSuccess);
    BYTE read[3] = {9, 9, 9};
    EXPECT_EQ(QorGetInfo(kOwnId, read, 3), DWORD(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(read[0] | read[1] | read[2], 0);
}

TEST_F(SettingsTest, UnfitCallsAreRefused)
{
    LogonBuiltin();
    DWORD value = 0;
    const std::vector<BYTE> large(4097);
    constexpr DWORD kRefused = ERROR_INVALID_PARAMETER;
    EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, nullptr, 4), kRefused);
    EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 2), kRefused);
    EXPECT_EQ(QorGetInfo(0, &value, 4), kRefused);
    EXPECT_EQ(QorGetInfo(1024, &value, 4), kRefused);
    EXPECT_EQ(QorGetInfo(kOwnId, &value, 0), kRefused);
    EXPECT_EQ(QorSetInfo(kOwnId, nullptr, 4), kRefused);
    EXPECT_EQ(QorSetInfo(kOwnId, &value, 0), kRefused);
    EXPECT_EQ(QorSetInfo(kOwnId, &value, -1), kRefused);
    EXPECT_EQ(QorSetInfo(kOwnId, large.data(), 4097), kRefused);
    EXPECT_EQ(QorSetInfo(kOwnId, large.data(), 4096), kSuccess);
    EXPECT_EQ(QorSetInfo(0, &value, 4), kRefused);
    EXPECT_EQ(QorSetInfo(1024, &value, 4), kRefused);
    EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_CHECK, &value, 2), kRefused);
    EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_SOURCE, L"text", 8), kRefused); // without its terminating zero
    EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_SOURCE, L"text", 9), kRefused);
    EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_SOURCE, L"text", 10), kSuccess);
    EXPECT_EQ(QorGetMultiString(0, *std::make_unique<CStringArray>()), kRefused);
    EXPECT_EQ(WriteTexts({L"a"}, 1, 0), kRefused);
}

TEST_F(SettingsTest, TextsAreKeptInOrder)
{
    LogonBuiltin();
    ASSERT_EQ(WriteTexts({L"b", L"a", L"", L"\u4E2D", L"a"}, 1), kSuccess);
    EXPECT_EQ(ReadTexts(), (Texts{L"b", L"a", {}, L"\u4E2D", L"a"}));
}

TEST_F(SettingsTest, TextsAreReplaced)
{
    LogonBuiltin();
    ASSERT_EQ(WriteTexts({L"a", L"b", L"c"}, 1), kSuccess);
    ASSERT_EQ(WriteTexts({L"d"}, 1), kSuccess);
    EXPECT_EQ(ReadTexts(), Texts{L"d"});
    ASSERT_EQ(WriteTexts({}, 1), kSuccess);
    EXPECT_TRUE(ReadTexts().empty());
}

TEST_F(SettingsTest, MissingTextsAreAdded)
{
    LogonBuiltin();
    ASSERT_EQ(WriteTexts({L"One", L"Two"}, 1), kSuccess);
    ASSERT_EQ(WriteTexts({L"two", L"three", L"THREE"}, 0), kSuccess);
    EXPECT_EQ(ReadTexts(), (Texts{L"One", L"Two", L"three"}));
}

TEST_F(SettingsTest, ListsOfDifferentIdsAreApart)
{
    LogonBuiltin();
    ASSERT_EQ(WriteTexts({L"a"}, 1, kOwnId), kSuccess);
    ASSERT_EQ(WriteTexts({L"b"}, 1), kSuccess);
    EXPECT_EQ(ReadTexts(kOwnId), Texts{L"a"});
    EXPECT_EQ(ReadTexts(), Texts{L"b"});
}

TEST_F(SettingsRightsTest, SettingsNeedTheirRights)
{
    LogonAs(L"none", QORRIGHT_ALL & ~(QORRIGHT_SETTINGS | QORRIGHT_SECURITY));
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), kDenied);
    EXPECT_EQ(SetNumber(500), kDenied);
    EXPECT_EQ(SetNumber(QORINFO_RESTRICT), kDenied);
    EXPECT_EQ(SetList(), kDenied);
    LogonAs(L"settings", QORRIGHT_SETTINGS);
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), kSuccess);
    EXPECT_EQ(SetNumber(500), kSuccess);
    EXPECT_EQ(SetNumber(QORINFO_RESTRICT), kDenied);
    EXPECT_EQ(SetList(), kSuccess);
    LogonAs(L"security", QORRIGHT_SECURITY);
    EXPECT_EQ(SetNumber(QORINFO_RESTRICT), kSuccess);
    EXPECT_EQ(SetNumber(QORINFO_UPDATE_CHECK), kDenied);
}
