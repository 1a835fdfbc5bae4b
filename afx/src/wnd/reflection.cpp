#include "reflection.h"

#include "tooltip.h"

#include <afxwin.h>

// Notifications of controls are offered to the control's own object first.

const UINT kDragListMessage = ::RegisterWindowMessage(DRAGLISTMSGSTRING);

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_DESTROY()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_REGISTERED_MESSAGE(kDragListMessage, &CWnd::OnDragList)
END_MESSAGE_MAP()

namespace
{
/** The owner of a menu item that is to be measured: the message names the item, but not its menu. */
CMenu* FindMenuOfItem(HMENU hMenu, UINT nID)
{
    const int nCount = hMenu ? ::GetMenuItemCount(hMenu) : 0;
    for (int i = 0; i < nCount; ++i) {
        const HMENU hSubMenu = ::GetSubMenu(hMenu, i);
        const bool found = hSubMenu ? static_cast<UINT>(reinterpret_cast<UINT_PTR>(hSubMenu)) == nID
                                    : ::GetMenuItemID(hMenu, i) == nID;
        if (found) {
            return CMenu::FromHandlePermanent(hMenu);
        }
        if (CMenu* pMenu = hSubMenu ? FindMenuOfItem(hSubMenu, nID) : nullptr) {
            return pMenu;
        }
    }
    return nullptr;
}

bool OfferScrolling(CScrollBar* pScrollBar)
{
    CWnd* pControl = pScrollBar;
    LRESULT lIgnored = 0;
    return pControl && pControl->SendChildNotifyLastMsg(&lIgnored);
}
} // namespace

void CWnd::OnDestroy()
{
    if (m_nFlags & WF_TOOLTIPS) {
        AfxDestroyToolTip();
    }
    Default();
}

void CWnd::OnSysColorChange()
{
    if ((GetStyle() & WS_CHILD) == 0) {
        SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0, TRUE, TRUE);
    }
    Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT lResult = 0;
    if (pWnd && pWnd->SendChildNotifyLastMsg(&lResult)) {
        return reinterpret_cast<HBRUSH>(lResult);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

LRESULT CWnd::OnDragList(WPARAM, LPARAM lParam)
{
    LRESULT lResult = 0;
    return ReflectLastMsg(reinterpret_cast<const DRAGLISTINFO*>(lParam)->hWnd, &lResult) ? lResult : Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        CMenu* pMenu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem));
        if (pMenu) {
            pMenu->DrawItem(lpDrawItemStruct);
            return;
        }
    } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType == ODT_MENU) {
        CMenu* pMenu = FindMenuOfItem(AfxGetThreadState()->m_hTrackingMenu, lpMeasureItemStruct->itemID);
        if (!pMenu) {
            pMenu = FindMenuOfItem(::GetMenu(m_hWnd), lpMeasureItemStruct->itemID);
        }
        if (pMenu) {
            pMenu->MeasureItem(lpMeasureItemStruct);
            return;
        }
    } else if (ReflectLastMsg(::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID)))) {
        return;
    }
    Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT lResult = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &lResult)) {
        return static_cast<int>(lResult);
    }
    return static_cast<int>(Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem)) {
        Default();
    }
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT)
{
    CWnd* pControl = pListBox;
    LRESULT lResult = 0;
    if (pControl && pControl->SendChildNotifyLastMsg(&lResult)) {
        return static_cast<int>(lResult);
    }
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex)
{
    return CWnd::OnCharToItem(nKey, pListBox, nIndex);
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (!OfferScrolling(pScrollBar)) {
        Default();
    }
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (!OfferScrolling(pScrollBar)) {
        Default();
    }
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const UINT nEvent = LOWORD(message);
    if ((nEvent == WM_CREATE || nEvent == WM_DESTROY) && ReflectLastMsg(reinterpret_cast<HWND>(lParam))) {
        return;
    }
    Default();
}
