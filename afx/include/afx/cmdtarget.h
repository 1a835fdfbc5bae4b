#pragma once

#include <afx/object.h>
#include <afx/rect.h>
#include <afx/str.h>

class CCmdTarget;
class CMenu;
class CWnd;
class CView;
class AFX_MODULE_STATE;
struct AFX_MSGMAP;
struct AFX_MSGMAP_ENTRY;

/** A handler as a message map stores it; it is called back through its own type, chosen by AFX_MSGMAP_ENTRY::nSig. */
typedef void (CCmdTarget::*AFX_PMSG)();

/** One row of a message map. */
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage; ///< Window message; WM_COMMAND and WM_NOTIFY rows are reached by OnCmdMsg.
    UINT nCode;    ///< Notification code, CN_COMMAND or CN_UPDATE_COMMAND_UI.
    UINT nID;      ///< First control or command id of the row.
    UINT nLastID;  ///< Last id of the row.
    UINT_PTR nSig; ///< Kind of the handler (AFX_SIG), or the address of a registered message's number.
    AFX_PMSG pfn;  ///< The handler.
};

/** A class's message map: its rows, ended by a row of kind AfxSig_end, and the way to its base class's map. */
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

/** Where a command would go, filled by OnCmdMsg instead of calling the handler. */
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

/** The `pExtra` of OnCmdMsg for WM_NOTIFY. */
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI ((UINT)(-1))
#define CN_EVENT ((UINT)(-2))

/** Declares the message map of a class; END_MESSAGE_MAP and BEGIN_MESSAGE_MAP define it in the source. */
#define DECLARE_MESSAGE_MAP()                                                                                          \
  protected:                                                                                                           \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

/** Base of everything that has a message map: windows, threads, applications. */
class AFX_LIB CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

  public:
    CCmdTarget();
    ~CCmdTarget() override;

    /**
     * Routes a command, notification or command update through the message map.
     * @param nID command or control id.
     * @param nCode CN_COMMAND, CN_UPDATE_COMMAND_UI, a control's notification code, or MAKELONG(code, message).
     * @param pExtra a CCmdUI for updates, an AFX_NOTIFY for WM_NOTIFY, else unused.
     * @param pHandlerInfo when not null, receives the handler and nothing is called.
     * @return TRUE when a handler took the command.
     */
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /** Called when the last reference to an object that counts them goes away. */
    virtual void OnFinalRelease();

    /** Shows the hour-glass; nests. */
    void BeginWaitCursor();
    /** Ends the innermost BeginWaitCursor and restores the cursor at the last one. */
    void EndWaitCursor();
    /** Shows the hour-glass again after a message box or dialog changed the cursor. */
    void RestoreWaitCursor();

    /** The state of the module that made this object. */
    AFX_MODULE_STATE* m_pModuleState;

  protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

/** Shows the wait cursor from construction to destruction. */
class AFX_LIB CWaitCursor
{
  public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

    void Restore();
};

/** Hands the state of a command (enabled, checked, text) from its owner to a menu item or a child control. */
class AFX_LIB CCmdUI
{
  public:
    CCmdUI();
    virtual ~CCmdUI();

    UINT m_nID;        ///< Command id, or control id.
    UINT m_nIndex;     ///< Position of the menu item.
    CMenu* m_pMenu;    ///< The menu, or null for a control.
    CMenu* m_pSubMenu; ///< The pop-up that stands at the item, or null.
    CWnd* m_pOther;    ///< The control's window, or null for a menu.
    BOOL m_bEnableChanged;
    BOOL m_bContinueRouting;
    UINT m_nIndexMax;     ///< Number of items being updated.
    CMenu* m_pParentMenu; ///< The menu that holds m_pMenu as a pop-up.

    /** Enables or greys the item; a control that has the focus hands it to the next one first. */
    virtual void Enable(BOOL bOn = TRUE);
    /** @param nCheck 0 unchecked, 1 checked, 2 undetermined (controls only). */
    virtual void SetCheck(int nCheck = 1);
    /** Marks a menu item with a bullet, a control like SetCheck. */
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    /** Lets the routing go on to the next target as if this one had no handler. */
    void ContinueRouting();

    /**
     * Asks the target for the state of the command.
     * @param bDisableIfNoHndler disables the item when nobody handles its command.
     * @return TRUE when an update handler ran.
     */
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};

/** Begins (1), ends (-1) or restores (0) the wait cursor, through the application object when there is one. */
AFX_LIB void AfxDoWaitCursor(int nCode);
