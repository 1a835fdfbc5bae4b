#include "MsgBoxes.h"

#include <QorApi/QorApi.h>

// How the text of a message box is made up.
namespace
{

TEST(MsgBox, EmptyErrorTextSaysThatTheOperationFailed)
{
    Shown shown;
    Answer(L"", QOR_MSG_ERROR, 0, IDOK, shown);
    EXPECT_STREQ(LibString(L"STR_OPERATE_FAIL"), shown.text);
    Answer(nullptr, QOR_MSG_ERROR, 0, IDOK, shown);
    EXPECT_STREQ(LibString(L"STR_OPERATE_FAIL"), shown.text);
}

TEST(MsgBox, EmptyTextStaysEmptyForEveryOtherType)
{
    Shown shown;
    Answer(L"", QOR_MSG_TOPMOST, 0, IDOK, shown);
    EXPECT_STREQ(L"", shown.text);
    Answer(L"", QOR_MSG_WARNING, 0, IDOK, shown);
    EXPECT_STREQ(L"", shown.text);
}

CString WithCode(LPCWSTR text, DWORD code)
{
    CString whole(text);
    whole.AppendFormat(L"\r\n%s: %s", QorGetString(L"STR_ERROR"), QorFormatMsg(code).GetString());
    return whole;
}

TEST(MsgBox, AppendsTheTextOfTheErrorCode)
{
    Shown shown;
    Answer(L"It failed", QOR_MSG_ERROR, ERROR_ACCESS_DENIED, IDOK, shown);
    EXPECT_STREQ(WithCode(L"It failed", ERROR_ACCESS_DENIED), shown.text);
}

TEST(MsgBox, AppendsTheTextOfAnHresult)
{
    Shown shown;
    Answer(L"It failed", QOR_MSG_ERROR, static_cast<DWORD>(E_INVALIDARG), IDOK, shown);
    EXPECT_STREQ(WithCode(L"It failed", static_cast<DWORD>(E_INVALIDARG)), shown.text);
}

TEST(MsgBox, AllOnesStandForTheLastError)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    QorMsgBox(L"It failed", QOR_MSG_ERROR, QOR_LAST_ERROR, nullptr);
    EXPECT_STREQ(WithCode(L"It failed", ERROR_FILE_NOT_FOUND), shown.text);
}

TEST(MsgBox, LastErrorIsTheOneAtTheTimeOfTheCall)
{
    // Texts that are looked for in vain change the last error.
    const ts::TempFolder folder;
    const ts::EnvironmentVariable texts(L"QOR_LANG_DIR", folder.Path().c_str());
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    ::SetLastError(ERROR_CRC);
    QorMsgBox(L"", QOR_MSG_ERROR, QOR_LAST_ERROR, nullptr);
    EXPECT_STREQ(WithCode(L"STR_OPERATE_FAIL", ERROR_CRC), shown.text);
}

TEST(MsgBox, LastErrorOfZeroAppendsNothing)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    ::SetLastError(0);
    QorMsgBox(L"Plain", QOR_MSG_ERROR, QOR_LAST_ERROR, nullptr);
    EXPECT_STREQ(L"Plain", shown.text);
}

TEST(MsgBox, FormattedBoxTakesTheLastErrorToo)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    QorMsgBox(QOR_MSG_ERROR, QOR_LAST_ERROR, L"It %s", L"failed");
    EXPECT_STREQ(WithCode(L"It failed", ERROR_FILE_NOT_FOUND), shown.text);
}

TEST(MsgBox, FormattedBoxWithoutAFormatIsEmpty)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    EXPECT_EQ(UINT{IDOK}, QorMsgBox(QOR_MSG_INFO, 0, nullptr));
    EXPECT_STREQ(L"", shown.text);
}

TEST(MsgBox, FormatsItsText)
{
    Shown shown;
    ts::ModalDriver driver;
    LookAndPressOk(driver, shown);
    EXPECT_EQ(UINT{IDOK}, QorMsgBox(QOR_MSG_INFO, 0, L"%s %d%%", L"free", 12));
    EXPECT_STREQ(L"free 12%", shown.text);
}

} // namespace
