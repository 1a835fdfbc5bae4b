#include "SettingsFixture.h"

namespace
{

using InfoTableTest = SettingsTest;

} // namespace

TEST_F(InfoTableTest, NewStoreHasTheDefaults)
{
    EXPECT_EQ(ReadNumber(QORINFO_UPDATE_CHECK), 1U);
    EXPECT_EQ(ReadNumber(QORINFO_KEEP_UPDATES), 1U);
    EXPECT_EQ(ReadNumber(QORINFO_SNAP_BEFORE), 1U);
    EXPECT_EQ(ReadNumber(QORINFO_RESTRICT), 0U);
    WCHAR text[4] = {L'x', L'x', L'x', L'x'};
    EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_SOURCE, text, sizeof(text)), kSuccess);
    EXPECT_EQ(std::wstring(text), L"");
    EXPECT_TRUE(ReadTexts().empty());
}

TEST_F(InfoTableTest, OwnIdsKeepAnyBytes)
{
    LogonBuiltin();
    const BYTE bytes[] = {1, 0, 2, 255};
    ASSERT_EQ(QorSetInfo(kOwnId, bytes, 3), kSuccess);
    BYTE read[5] = {9, 9, 9, 9, 9};
    EXPECT_EQ(QorGetInfo(kOwnId, read, 5), kSuccess);
    const BYTE expected[] = {1, 0, 2, 0, 0};
    EXPECT_EQ(memcmp(read, expected, 5), 0);
}

TEST_F(InfoTableTest, OwnIdThatWasNeverSetIsNotFound)
{
    DWORD value = 7;
    EXPECT_EQ(QorGetInfo(kOwnId, &value, sizeof(value)), DWORD(ERROR_NOT_FOUND));
    EXPECT_EQ(value, 0U);
}
