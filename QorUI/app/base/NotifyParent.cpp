#include "NotifyParent.h"

void QorNotifyParent(const CWnd& control, UINT code)
{
    const CWnd* parent = control.m_hWnd ? control.GetParent() : nullptr;
    if (!parent) {
        return;
    }
    NMHDR header = {};
    header.hwndFrom = control.m_hWnd;
    header.idFrom = static_cast<UINT_PTR>(control.GetDlgCtrlID());
    header.code = code;
    parent->SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}
