#include <QorApi/QorApi.h>

#include <gtest/gtest.h>

TEST(FormatMsg, GivesTheSystemsTextWithoutLineBreak)
{
    const CString text = QorFormatMsg(ERROR_FILE_NOT_FOUND);
    WCHAR system[512] = {};
    ASSERT_NE(FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, ERROR_FILE_NOT_FOUND,
                             0, system, 512, nullptr),
              0U);
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_EQ(wcsncmp(system, text, text.GetLength()), 0);
    EXPECT_EQ(text.FindOneOf(L"\r\n"), -1);
}

TEST(FormatMsg, ResultCodeOfAWin32ErrorGivesItsText)
{
    EXPECT_STREQ(QorFormatMsg(HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED)), QorFormatMsg(ERROR_ACCESS_DENIED));
}

TEST(FormatMsg, UnknownCodeGivesItsNumber)
{
    EXPECT_STREQ(QorFormatMsg(0xA0B1C2D3), L"0xA0B1C2D3");
    EXPECT_STREQ(QorFormatMsg(0x2000FFFE), L"0x2000FFFE");
}

TEST(FormatMsg, TextWithInsertsIsReadable)
{
    EXPECT_FALSE(QorFormatMsg(ERROR_WRONG_DISK).IsEmpty()); // "%2 ... %1" in the system's table
}
