#include "core/adopt.h"
#include "core/nullthis.h"
#include "gdi/handlemaps.h"
#include "gdi/handles.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::~CMenu()
{
    DestroyMenu();
}

BOOL CMenu::CreateMenu()
{
    return AfxAdopt(*this, ::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return AfxAdopt(*this, ::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_MENU);
    return AfxAdopt(*this, ::LoadMenu(hInst, lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource)
{
    return LoadMenu(MAKEINTRESOURCE(nIDResource));
}

BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate)
{
    return lpMenuTemplate && AfxAdopt(*this, ::LoadMenuIndirect(lpMenuTemplate));
}

BOOL CMenu::DestroyMenu()
{
    HMENU hMenu = Detach();
    return hMenu && ::DestroyMenu(hMenu);
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu)
{
    return AfxMenuMap::FromHandle(hMenu);
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu)
{
    return AfxMenuMap::FromHandlePermanent(hMenu);
}

void PASCAL CMenu::DeleteTempMap()
{
    return AfxMenuMap::DeleteTemp();
}

HMENU CMenu::GetSafeHmenu() const
{
    return AfxIsNullThis(this) ? nullptr : m_hMenu;
}

CMenu::operator HMENU() const
{
    return m_hMenu;
}

BOOL CMenu::operator==(const CMenu& menu) const
{
    return m_hMenu == menu.m_hMenu;
}

BOOL CMenu::operator!=(const CMenu& menu) const
{
    return m_hMenu != menu.m_hMenu;
}

BOOL CMenu::Attach(HMENU hMenu)
{
    if (!hMenu || m_hMenu) {
        return FALSE;
    }
    m_hMenu = hMenu;
    AfxMenuMap::SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    HMENU hMenu = m_hMenu;
    if (hMenu) {
        AfxMenuMap::Remove(hMenu);
    }
    m_hMenu = nullptr;
    return hMenu;
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, gdi::WindowOf(pWnd), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, gdi::WindowOf(pWnd), lptpm);
}

BOOL CMenu::GetMenuInfo(LPMENUINFO lpcmi) const
{
    return lpcmi && ::GetMenuInfo(m_hMenu, lpcmi);
}

BOOL CMenu::SetMenuInfo(LPCMENUINFO lpcmi)
{
    return lpcmi && ::SetMenuInfo(m_hMenu, lpcmi);
}

DWORD CMenu::GetMenuContextHelpId() const
{
    return ::GetMenuContextHelpId(m_hMenu);
}

BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId)
{
    return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, reinterpret_cast<LPCTSTR>(gdi::BitmapOf(pBmp)));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem,
                        reinterpret_cast<LPCTSTR>(gdi::BitmapOf(pBmp)));
}

BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo && ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem,
                        reinterpret_cast<LPCTSTR>(gdi::BitmapOf(pBmp)));
}

BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags)
{
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags)
{
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
{
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
{
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
{
    return ::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable);
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos)
{
    return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos);
}

UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos)
{
    return ::GetMenuDefaultItem(m_hMenu, fByPos, gmdiFlags);
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked)
{
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, gdi::BitmapOf(pBmpUnchecked), gdi::BitmapOf(pBmpChecked));
}

UINT CMenu::GetMenuItemCount() const
{
    return ::GetMenuItemCount(m_hMenu);
}

UINT CMenu::GetMenuItemID(int nPos) const
{
    return ::GetMenuItemID(m_hMenu, nPos);
}

UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const
{
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
{
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    const int nLength = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (nLength <= 0) {
        rString.Empty();
        return 0;
    }
    const int nGot = ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(nLength), nLength + 1, nFlags);
    rString.ReleaseBuffer(nGot);
    return nGot;
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo && ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo && ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    UNREFERENCED_PARAMETER(lpDrawItemStruct);
}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    UNREFERENCED_PARAMETER(lpMeasureItemStruct);
}
