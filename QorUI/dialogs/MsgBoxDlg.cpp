#include "MsgBoxDlg.h"

#include "QorCmnDlg.h"

#include <QorApi/QorApi.h>
#include <QorUI/app/module/LibText.h>
#include <QorUI/res/resource.h>

namespace
{

constexpr UINT_PTR kAutoCloseTimer = 1;
constexpr UINT kKindMask = 0x7F;
constexpr UINT kSecondsShift = 8;
constexpr UINT kSecondsMask = 0xFF;
constexpr UINT kMillisecondsPerSecond = 1000;

struct KindLook
{
    LPCWSTR captionKey;
    LPCWSTR icon;
};

const KindLook& LookOf(UINT kind)
{
    static const KindLook kLooks[] = {
        {L"STR_ERROR", IDI_HAND},
        {L"STR_WARN", IDI_EXCLAMATION},
        {L"STR_INFO", IDI_ASTERISK},
        {L"STR_CONFIRM", IDI_QUESTION},
    };
    return kLooks[kind];
}

UINT AutoCloseSeconds(UINT type)
{
    return (type >> kSecondsShift) & kSecondsMask;
}

} // namespace

BEGIN_MESSAGE_MAP(CMsgBoxDlg, CLibDialog)
    ON_WM_TIMER()
    ON_COMMAND_RANGE(IDRETRY, IDNO, &CMsgBoxDlg::OnButton)
END_MESSAGE_MAP()

CMsgBoxDlg::CMsgBoxDlg(UINT type, const CString& text, CWnd* parent)
    : CLibDialog(IDD_DLG_MSGBOX, kNoDialogKey, parent, ButtonBand), m_type(type), m_text(text)
{
}

BOOL CMsgBoxDlg::Build()
{
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
