#include "QorCmnDlg.h"

#include "MsgBoxDlg.h"

#include <QorApi/QorApi.h>
#include <QorUI/app/module/LibText.h>
#include <QorUI/app/module/ResourceSwitch.h>
#include <QorUI/res/resource.h>

namespace
{

constexpr UINT_PTR kAutoCloseTimer = 1;
constexpr UINT kKindMask = 0x7F;
constexpr UINT kMillisecondsPerSecond = 1000;

struct KindLook
{
    LPCWSTR captionKey;
    LPCWSTR icon;
};

const KindLook& LookOf(UINT kind)
{
    static const KindLook looks[] = {
        {L"STR_ERROR", IDI_HAND},
        {L"STR_WARN", IDI_EXCLAMATION},
        {L"STR_INFO", IDI_ASTERISK},
        {L"STR_CONFIRM", IDI_QUESTION},
    };
    return looks[kind];
}

UINT AutoCloseSeconds(UINT type)
{
    return (type >> 8) & 0xFF;
}

} // namespace

BEGIN_MESSAGE_MAP(CMsgBoxDlg, CQorDialog)
    ON_WM_TIMER()
    ON_COMMAND_RANGE(IDRETRY, IDNO, &CMsgBoxDlg::OnButton)
END_MESSAGE_MAP()

CMsgBoxDlg::CMsgBoxDlg(UINT type, const CString& text, CWnd* parent)
    : CQorDialog(IDD_DLG_MSGBOX, parent, ButtonBand), m_type(type), m_text(text)
{
}

BOOL CMsgBoxDlg::OnInitDialog()
{
    CQorDialog::OnInitDialog();
    if (const UINT seconds = AutoCloseSeconds(m_type)) {
        SetTimer(kAutoCloseTimer, seconds * kMillisecondsPerSecond, nullptr);
    }
    if (m_type & QOR_MSG_TOPMOST) {
        SetWindowPos(&wndTopMost, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    }
    ArrangeButtons();

    const KindLook& look = LookOf(m_type);
    SetWindowText(QorGetString(look.captionKey));
    SendDlgItemMessage(IDC_BOX_ICON, STM_SETICON, reinterpret_cast<WPARAM>(::LoadIconW(nullptr, look.icon)));
    SetDlgItemText(IDC_BOX_TEXT, m_text);
    ResourceSwitch::ToHost();
    return TRUE;
}

void CMsgBoxDlg::ArrangeButtons()
{
    m_type &= kKindMask;
    if (m_type > QOR_MSG_YESNO) {
        m_type = QOR_MSG_INFO;
    }
    switch (m_type) {
    case QOR_MSG_CONFIRM:
        break;
    case QOR_MSG_RETRY:
        ArrangeThreeButtons(IDRETRY, L"STR_RETRY", IDIGNORE, L"STR_IGNORE");
        m_type = QOR_MSG_CONFIRM;
        break;
    case QOR_MSG_YESNO:
        ArrangeThreeButtons(IDYES, L"STR_YES", IDNO, L"STR_NO");
        m_type = QOR_MSG_CONFIRM;
        break;
    default:
        ArrangeSingleButton();
        break;
    }
}

void CMsgBoxDlg::ArrangeSingleButton()
{
    CWnd* ok = GetDlgItem(IDOK);
    CWnd* cancel = GetDlgItem(IDCANCEL);
    if (!ok || !cancel) {
        return;
    }
    CRect place;
    cancel->GetWindowRect(place);
    ScreenToClient(place);
    cancel->ShowWindow(SW_HIDE);
    ok->MoveWindow(place);
}

void CMsgBoxDlg::ArrangeThreeButtons(UINT third, LPCWSTR thirdKey, UINT middle, LPCWSTR middleKey)
{
    CWnd* hidden = GetDlgItem(IDRETRY);
    CWnd* ok = GetDlgItem(IDOK);
    if (!hidden || !ok) {
        return;
    }
    hidden->ShowWindow(SW_SHOW);
    hidden->SetWindowText(QorLibText(thirdKey));
    hidden->SetDlgCtrlID(static_cast<int>(third));
    ok->SetWindowText(QorLibText(middleKey));
    ok->SetDlgCtrlID(static_cast<int>(middle));
    m_thirdBtn.SubclassDlgItem(third, this);
    AdjustBtnInArea(m_thirdBtn, middle);
}

void CMsgBoxDlg::OnTimer(UINT_PTR /*id*/)
{
    KillTimer(kAutoCloseTimer);
    EndDialog(QOR_MSG_TIMEOUT);
}

void CMsgBoxDlg::OnButton(UINT id)
{
    EndDialog(static_cast<int>(id));
}

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
    if (error != 0) {
        message.AppendFormat(L"\r\n%s: %s", QorGetString(L"STR_ERROR"), QorFormatMsg(error).GetString());
    }
    const ResourceSwitch resources;
    CMsgBoxDlg dialog(type, message, parent);
    return static_cast<UINT>(dialog.DoModal());
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
