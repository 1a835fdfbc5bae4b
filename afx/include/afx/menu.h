#pragma once

#include <afx/config.h>
#include <afx/object.h>
#include <afx/str.h>

class CBitmap;
class CWnd;

/**
 * A menu. Destroys its handle at the end unless it was detached or the object came from FromHandle.
 * Owner-drawn items of a menu that has a permanent object are measured and drawn by that object.
 */
class AFX_LIB CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

  public:
    HMENU m_hMenu = nullptr; ///< The handle, or null.

    CMenu() = default;
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;
    ~CMenu() override;

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    /** Loads from the first module of the resource chain that has it. @return FALSE when none has. */
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);
    BOOL DestroyMenu();

    /** The object that owns @p hMenu, else a temporary one; null for a null handle. */
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    /** The object that owns @p hMenu, or null. */
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    HMENU GetSafeHmenu() const;
    operator HMENU() const;
    BOOL operator==(const CMenu& menu) const;
    BOOL operator!=(const CMenu& menu) const;
    BOOL Attach(HMENU hMenu);
    HMENU Detach();

    /** @param nFlags TPM_...; with TPM_RETURNCMD the result is the command. @param x,y screen coordinates. */
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const;
    BOOL SetMenuInfo(LPCMENUINFO lpcmi);
    DWORD GetMenuContextHelpId() const;
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId);

    /** @p nIDNewItem is the command, or the handle of a popup menu with MF_POPUP, which this menu then owns. */
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    /** Removes an item and destroys its popup menu. */
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    /** Removes an item; its popup menu stays alive and is the caller's. */
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);

    /** @return the former state (MF_CHECKED, ...), or (UINT)-1 when there is no such item. */
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE);
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked);

    /** @return (UINT)-1 without a menu. */
    UINT GetMenuItemCount() const;
    /** @return (UINT)-1 for a popup item or a bad position. */
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    /** @return borrowed; null when the item has no popup menu. */
    CMenu* GetSubMenu(int nPos) const;

    /** Draws an owner-drawn item; does nothing unless overridden. */
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    /** Gives the size of an owner-drawn item in pixels; does nothing unless overridden. */
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
};
