#include "QorBaseDlg.h"

#include <QorApi/QorApi.h>
#include <QorUI/app/look/Skin.h>

BEGIN_MESSAGE_MAP(CQorBaseDlg, CDialog)
    ON_WM_CTLCOLOR()
    ON_MESSAGE(DM_GETDEFID, &CQorBaseDlg::OnGetDefId)
END_MESSAGE_MAP()

CQorBaseDlg::CQorBaseDlg(UINT idd, CWnd* parent) : CDialog(idd, parent), m_langElem(nullptr) {}

LPCWSTR CQorBaseDlg::GetDlgId() const
{
    return m_lpszTemplateName;
}

void CQorBaseDlg::SetDlgLang(LPCWSTR module, LPCWSTR dialogKey, int flag)
{
    m_langElem = QorSetDlgLang(m_hWnd, module, dialogKey, flag);
}

LPCWSTR CQorBaseDlg::GetDlgString(LPCWSTR key) const
{
    return m_langElem ? m_langElem->GetChildData(key, 1) : key;
}

void CQorBaseDlg::SetDlgCtrlText(UINT id, ...)
{
    CWnd* control = GetDlgItem(static_cast<int>(id));
    if (!control) {
        return;
    }
    CString format;
    control->GetWindowText(format);
    CString text;
    va_list args;
    va_start(args, id);
    text.FormatV(format, args);
    va_end(args);
    control->SetWindowText(text);
}

BOOL CQorBaseDlg::PreTranslateMessage(MSG* msg)
{
    // An embedded dialog leaves the keyboard to the window around it.
    if (GetStyle() & WS_CHILD) {
        return FALSE;
    }
    return CDialog::PreTranslateMessage(msg);
}

void CQorBaseDlg::OnOK() {}

HBRUSH CQorBaseDlg::OnCtlColor(CDC* dc, CWnd* /*wnd*/, UINT kind)
{
    if (kind == CTLCOLOR_EDIT) {
        return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    }
    dc->SetBkMode(TRANSPARENT);
    return QorGetDlgBkBrush();
}

LRESULT CQorBaseDlg::OnGetDefId(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    // Owner-drawn buttons count as default buttons too: bit 0 belongs to their style value.
    const HWND focus = ::GetFocus();
    if (focus && (::GetWindowLong(focus, GWL_STYLE) & BS_DEFPUSHBUTTON)) {
        return MAKELONG(::GetDlgCtrlID(focus), DC_HASDEFID);
    }
    return Default();
}
