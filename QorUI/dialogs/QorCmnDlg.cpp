#include "QorCmnDlg.h"

#include "MsgBoxDlg.h"

#include <QorApi/QorApi.h>
#include <QorUI/app/module/LibText.h>

UINT QorMsgBox(LPCWSTR text, UINT type, DWORD error, CWnd* parent)
{
    const DWORD lastError = ::GetLastError(); // before anything here can change it
    CString message(text);
    if (type == QOR_MSG_ERROR && message.IsEmpty()) {
        message = QorLibText(L"STR_OPERATE_FAIL");
    }
    if (error == QOR_LAST_ERROR) {
        error = lastError;
    }
    if (error != ERROR_SUCCESS) {
        message.AppendFormat(L"\r\n%s: %s", QorGetString(L"STR_ERROR"), QorFormatMsg(error).GetString());
    }
    return static_cast<UINT>(QorRunLibDialog<CMsgBoxDlg>(type, message, parent));
}

UINT QorMsgBox(UINT type, DWORD error, LPCWSTR format, ...)
{
    const DWORD lastError = ::GetLastError();
    CString text;
    va_list args;
    va_start(args, format);
    text.FormatV(format ? format : L"", args);
    va_end(args);
    return QorMsgBox(text, type, error == QOR_LAST_ERROR ? lastError : error, nullptr);
}
