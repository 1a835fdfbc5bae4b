#include "StoreFixture.h"

namespace
{

constexpr UINT OWN_ID = 500;

class SettingsTest : public StoreTest
{
  protected:
    static DWORD ReadNumber(UINT id)
    {
        DWORD value = 0xCCCCCCCC;
        EXPECT_EQ(QorGetInfo(id, &value, sizeof(value)), 0U);
        return value;
    }

    static DWORD WriteNumber(UINT id, DWORD value) { return QorSetInfo(id, &value, sizeof(value)); }

    static DWORD WriteTexts(std::initializer_list<LPCWSTR> texts, int flag, UINT id = QORINFO_SYNC_REG)
    {
        CStringArray array;
        for (LPCWSTR text : texts) {
            array.Add(text);
        }
        return QorSetMultiString(id, array, flag);
    }

    static std::vector<std::wstring> ReadTexts(UINT id = QORINFO_SYNC_REG)
    {
        CStringArray array;
        array.Add(L"old");
        EXPECT_EQ(QorGetMultiString(id, array), 0U);
        std::vector<std::wstring> texts;
        texts.reserve(array.GetSize());
        for (int i = 0; i < array.GetSize(); ++i) {
            texts.emplace_back(array.GetAt(i));
        }
        return texts;
    }

    using Texts = std::vector<std::wstring>;
};

} // namespace

TEST_F(SettingsTest, NewStoreHasTheDefaults)
{
    EXPECT_EQ(ReadNumber(QORINFO_UPDATE_CHECK), 1U);
    EXPECT_EQ(ReadNumber(QORINFO_KEEP_UPDATES), 1U);
    EXPECT_EQ(ReadNumber(QORINFO_SNAP_BEFORE), 1U);
    EXPECT_EQ(ReadNumber(QORINFO_RESTRICT), 0U);
    WCHAR text[4] = {L'x', L'x', L'x', L'x'};
    EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_SOURCE, text, sizeof(text)), 0U);
    EXPECT_EQ(std::wstring(text), L"");
    EXPECT_TRUE(ReadTexts().empty());
}

TEST_F(SettingsTest, NumbersAreReadBack)
{
    LogonBuiltin();
    ASSERT_EQ(WriteNumber(QORINFO_KEEP_UPDATES, 0), 0U);
    ASSERT_EQ(WriteNumber(QORINFO_RESTRICT, 0x83), 0U);
    EXPECT_EQ(ReadNumber(QORINFO_KEEP_UPDATES), 0U);
    EXPECT_EQ(ReadNumber(QORINFO_RESTRICT), 0x83U);
    EXPECT_EQ(ReadNumber(QORINFO_SNAP_BEFORE), 1U);
}

TEST_F(SettingsTest, OwnIdsKeepAnyBytes)
{
    LogonBuiltin();
    const BYTE bytes[] = {1, 0, 2, 255};
    ASSERT_EQ(QorSetInfo(OWN_ID, bytes, 3), 0U);
    BYTE read[5] = {9, 9, 9, 9, 9};
    EXPECT_EQ(QorGetInfo(OWN_ID, read, 5), 0U);
    const BYTE expected[] = {1, 0, 2, 0, 0};
    EXPECT_EQ(memcmp(read, expected, 5), 0);
}

TEST_F(SettingsTest, OwnIdThatWasNeverSetIsNotFound)
{
    DWORD value = 7;
    EXPECT_EQ(QorGetInfo(OWN_ID, &value, sizeof(value)), DWORD(ERROR_NOT_FOUND));
    EXPECT_EQ(value, 0U);
}

TEST_F(SettingsTest, LongerValueDoesNotFit)
{
    LogonBuiltin();
    ASSERT_EQ(WriteNumber(OWN_ID, 5), 0U);
    BYTE read[3] = {9, 9, 9};
    EXPECT_EQ(QorGetInfo(OWN_ID, read, 3), DWORD(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(read[0] | read[1] | read[2], 0);
}

TEST_F(SettingsTest, UnfitCallsAreRefused)
{
    LogonBuiltin();
    DWORD value = 0;
    const std::vector<BYTE> large(4097);
    constexpr DWORD refused = ERROR_INVALID_PARAMETER;
    EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, nullptr, 4), refused);
    EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 2), refused);
    EXPECT_EQ(QorGetInfo(0, &value, 4), refused);
    EXPECT_EQ(QorGetInfo(1024, &value, 4), refused);
    EXPECT_EQ(QorGetInfo(OWN_ID, &value, 0), refused);
    EXPECT_EQ(QorSetInfo(OWN_ID, nullptr, 4), refused);
    EXPECT_EQ(QorSetInfo(OWN_ID, &value, 0), refused);
    EXPECT_EQ(QorSetInfo(OWN_ID, &value, -1), refused);
    EXPECT_EQ(QorSetInfo(OWN_ID, large.data(), 4097), refused);
    EXPECT_EQ(QorSetInfo(OWN_ID, large.data(), 4096), 0U);
    EXPECT_EQ(QorSetInfo(0, &value, 4), refused);
    EXPECT_EQ(QorSetInfo(1024, &value, 4), refused);
    EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_CHECK, &value, 2), refused);
    EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_SOURCE, L"text", 8), refused); // without its terminating zero
    EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_SOURCE, L"text", 9), refused);
    EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_SOURCE, L"text", 10), 0U);
    EXPECT_EQ(QorGetMultiString(0, *std::make_unique<CStringArray>()), refused);
    EXPECT_EQ(WriteTexts({L"a"}, 1, 0), refused);
}

TEST_F(SettingsTest, RunningUpdateCheckIsNotStored)
{
    LogonBuiltin();
    ASSERT_EQ(WriteNumber(QORINFO_UPDATE_CHECK, 0x0100), 0U);
    EXPECT_EQ(ReadNumber(QORINFO_UPDATE_CHECK), 0U);
}

TEST_F(SettingsTest, TextsAreKeptInOrder)
{
    LogonBuiltin();
    ASSERT_EQ(WriteTexts({L"b", L"a", L"", L"\u4E2D", L"a"}, 1), 0U);
    EXPECT_EQ(ReadTexts(), (Texts{L"b", L"a", L"", L"\u4E2D", L"a"}));
}

TEST_F(SettingsTest, TextsAreReplaced)
{
    LogonBuiltin();
    ASSERT_EQ(WriteTexts({L"a", L"b", L"c"}, 1), 0U);
    ASSERT_EQ(WriteTexts({L"d"}, 1), 0U);
    EXPECT_EQ(ReadTexts(), Texts{L"d"});
    ASSERT_EQ(WriteTexts({}, 1), 0U);
    EXPECT_TRUE(ReadTexts().empty());
}

TEST_F(SettingsTest, MissingTextsAreAdded)
{
    LogonBuiltin();
    ASSERT_EQ(WriteTexts({L"One", L"Two"}, 1), 0U);
    ASSERT_EQ(WriteTexts({L"two", L"three", L"THREE"}, 0), 0U);
    EXPECT_EQ(ReadTexts(), (Texts{L"One", L"Two", L"three"}));
}

TEST_F(SettingsTest, ListsOfDifferentIdsAreApart)
{
    LogonBuiltin();
    ASSERT_EQ(WriteTexts({L"a"}, 1, OWN_ID), 0U);
    ASSERT_EQ(WriteTexts({L"b"}, 1), 0U);
    EXPECT_EQ(ReadTexts(OWN_ID), Texts{L"a"});
    EXPECT_EQ(ReadTexts(), Texts{L"b"});
}

TEST_F(SettingsTest, ListingUnknownKindsIsRefused)
{
    int count = 5;
    EXPECT_EQ(QorGetAllInfo(9, 256, &count, 0), nullptr);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(count, 0);
    EXPECT_EQ(QorGetAllInfo(QORLIST_USERS, 128, nullptr, 0), nullptr);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(QorGetAllInfo(QORLIST_USERS, 256, nullptr, 1), nullptr);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_PARAMETER));
}

TEST_F(SettingsTest, EmptyListIsNoFailure)
{
    int count = 5;
    SetLastError(1);
    EXPECT_EQ(QorGetAllInfo(QORLIST_SNAPSHOTS, 256, &count, 0), nullptr);
    EXPECT_EQ(GetLastError(), 0U);
    EXPECT_EQ(count, 0);
}
