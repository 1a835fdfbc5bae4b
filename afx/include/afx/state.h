#pragma once

/** @file
 *  Module states, per-thread states, extension modules, the resource search chain and the handle maps.
 *
 *  **Module states.** Every module that has an application object of its own has an AFX_MODULE_STATE. The base state
 * lives in afx.dll and belongs to the program; it is current on every thread unless another one was set with
 * AfxSetModuleState or AFX_MANAGE_STATE. It works without an application object: the instance and resource handles are
 * then those of the program file.
 *
 *  **A DLL with its own application object** links the CMake target `afx_module`. That gives the DLL a module state,
 *  which AfxGetStaticModuleState returns inside this DLL, and makes it current on the loading thread while the DLL's
 *  static objects are constructed, so that the global application object registers there. The DLL's entry function
 *  then looks like this:
 *  @code
 *  static AFX_EXTENSION_MODULE g_extension;
 *
 *  BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
 *  {
 *      if (dwReason == DLL_PROCESS_ATTACH)
 *      {
 *          AfxEndModuleStaticInit();                          // back to the state of the host
 *          {
 *              AFX_MANAGE_STATE(AfxGetStaticModuleState());   // the DLL's own state in this block
 *              if (!AfxWinInit(hInstance, nullptr, GetCommandLine(), 0) || !theApp.InitInstance())
 *                  return FALSE;
 *          }
 *          if (!AfxInitExtensionModule(g_extension, hInstance))
 *              return FALSE;
 *          new CDynLinkLibrary(g_extension);                  // the host's lookups now search this DLL too
 *      }
 *      else if (dwReason == DLL_PROCESS_DETACH)
 *      {
 *          {
 *              AFX_MANAGE_STATE(AfxGetStaticModuleState());
 *              theApp.ExitInstance();
 *              AfxWinTerm();
 *          }
 *          AfxTermExtensionModule(g_extension);               // also frees the CDynLinkLibrary
 *          AfxBeginModuleStaticTerm();                        // static objects are destroyed in the DLL's state
 *      }
 *      return TRUE;
 *  }
 *  @endcode
 *  A program needs nothing of this: its state is the base state.
 *
 *  **Lifetime.** When a module is unloaded, its classes, its CDynLinkLibrary objects and its state leave every list.
 *  When a thread ends, its states go with it. */

#include <afx/object.h>

class CWinApp;
class CWinThread;
class CWnd;
class CView;
class CFrameWnd;
class CDynLinkLibrary;
class CHandleMap;
struct AFX_MODULE_THREAD_STATE;

/** What an extension DLL keeps about itself, in a static object. */
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
    CRuntimeClass* pFirstSharedClass = nullptr; ///< not used
    void* pFirstSharedFactory = nullptr;        ///< not used

    /** Ends the registration when the DLL has not done so. */
    AFX_LIB ~AFX_EXTENSION_MODULE();
};

/** Fills the structure of an extension DLL; call it at process attach.
 *  @return FALSE when hModule is null */
AFX_LIB BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);

/** Takes the extension DLL out of every search and frees its CDynLinkLibrary objects; call it at process detach.
 *  @param bAll accepted for compatibility: the module is always taken out of the lists of all module states */
AFX_LIB void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/** Data of a module that has (or may have) an application object. */
class AFX_MODULE_STATE
{
  public:
    /** @param bDLL      TRUE for a DLL
     *  @param hInstance the module; its resources are searched until m_hCurrentResourceHandle is changed */
    AFX_LIB AFX_MODULE_STATE(BOOL bDLL, HINSTANCE hInstance);
    AFX_LIB ~AFX_MODULE_STATE();
    AFX_MODULE_STATE(const AFX_MODULE_STATE&) = delete;
    AFX_MODULE_STATE& operator=(const AFX_MODULE_STATE&) = delete;

    CWinApp* m_pCurrentWinApp = nullptr; ///< null when the module has no application object
    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle; ///< searched first for resources
    LPCWSTR m_lpszCurrentAppName = nullptr;
    BOOL m_bDLL;
    BOOL m_bWinInitDone = FALSE; ///< for AfxWinInit and AfxWinTerm

  private:
    friend struct AfxStateAccess;
    CDynLinkLibrary* m_pFirstLibrary = nullptr; // most recently added first
    AFX_MODULE_STATE* m_pNextState = nullptr;
};

/** An extension DLL in the library list of a module state. Made on the heap at process attach of the extension DLL;
 *  it enters the list of the state that is current then, at the head. */
class AFX_LIB CDynLinkLibrary : public CObject
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

  public:
    /** @param state   as filled by AfxInitExtensionModule
     *  @param bSystem TRUE to be searched after all other extension DLLs */
    explicit CDynLinkLibrary(const AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource; ///< its resources; null has none
    BOOL m_bSystem;

    void Dump(CDumpContext& dc) const override;

  private:
    friend struct AfxStateAccess;
    AFX_MODULE_STATE* m_pOwnerState = nullptr;
    CDynLinkLibrary* m_pNextDLL = nullptr;
};

/** Data of one module on one thread. */
struct AFX_MODULE_THREAD_STATE
{
    CWinThread* m_pCurrentWinThread = nullptr; ///< null on a thread the framework did not start
    CWnd* m_pLastHit = nullptr;                ///< last window a tool tip was asked for
    INT_PTR m_nLastHit = -1;
    CWnd* m_pLastStatus = nullptr;
};

/** Kinds of handles that have wrapper objects. */
enum AFX_HANDLE_KIND
{
    AFX_HANDLE_HWND,
    AFX_HANDLE_HMENU,
    AFX_HANDLE_HDC,
    AFX_HANDLE_HGDIOBJ,
    AFX_HANDLE_HIMAGELIST,
    AFX_HANDLE_HSOCKET,
    AFX_HANDLE_KINDS
};

/** How temporary wrapper objects of a handle kind are made and ended. */
struct AFX_HANDLE_FACTORY
{
    /** Makes a wrapper that holds the handle without owning it; raises CMemoryException when memory is short. */
    CObject*(AFXAPI* pfnCreate)(HANDLE h);
    /** Takes the handle out of the wrapper and frees the wrapper; the handle itself stays. */
    void(AFXAPI* pfnRelease)(CObject* pTemporary);
};

/** Data of one thread, for all modules alike. */
class _AFX_THREAD_STATE
{
  public:
    AFX_MODULE_STATE* m_pModuleState = nullptr; ///< current module state; null is the base state

    CWnd* m_pWndInit = nullptr; ///< window object whose window is being created
    HHOOK m_hHookOldCbtFilter = nullptr;
    HHOOK m_hHookOldMsgFilter = nullptr;
    BOOL m_bDlgCreate = FALSE; ///< a dialog of the system is being created
    CWnd* m_pAlternateWndInit = nullptr;
    MSG m_lastSentMsg = {}; ///< message that a window object handles at the moment
    HWND m_hTrackingWindow = nullptr;
    HMENU m_hTrackingMenu = nullptr;
    HWND m_hWndToolTip = nullptr;          ///< tool tip window of CWnd::EnableToolTips
    HWND m_hLockoutNotifyWindow = nullptr; ///< window whose notifications are held back
    BOOL m_bInMsgFilter = FALSE;

    MSG m_msgCur = {}; ///< message the pump works on
    POINT m_ptCursorLast = {};
    UINT m_nMsgLast = 0;
    int m_nDisablePumpCount = 0;

    CView* m_pRoutingView = nullptr; ///< view that routes a command
    CFrameWnd* m_pRoutingFrame = nullptr;
    CWnd* m_pRoutingWnd = nullptr; ///< window that routes a command

    int m_nTempMapLock = 0; ///< above 0: temporary wrapper objects are kept

  protected:
    _AFX_THREAD_STATE() = default; // made by the framework only
    ~_AFX_THREAD_STATE() = default;
};

/** Current module state of the thread; never null. */
AFX_LIB AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
/** State of the program. */
AFX_LIB AFX_MODULE_STATE* AFXAPI AfxGetBaseModuleState();
/** Makes a module state current on this thread.
 *  @param pNewState null makes the base state current
 *  @return the former one */
AFX_LIB AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState);

/** State of the module that contains the call: its own when it links `afx_module`, else the base state.
 *  Not an import, so that the module's own definition is found first. */
#ifdef AFX_BUILD
AFX_LIB
#endif
AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();

/** Says that the two functions below are there; only then a DLL calls them. */
#define AFX_HAS_STATIC_MODULE_INIT

/** Only with `afx_module`: ends the time in which the module's own state is current while its static objects are
 *  constructed. Call it first at process attach. */
void AFXAPI AfxEndModuleStaticInit();
/** Only with `afx_module`: makes the module's own state current until its static objects are destroyed. Call it last at
 *  process detach. */
void AFXAPI AfxBeginModuleStaticTerm();

/** Data of the current module on the current thread; made at first use. */
AFX_LIB AFX_MODULE_THREAD_STATE* AFXAPI AfxGetModuleThreadState();
/** Data of the current thread; made at first use. */
AFX_LIB _AFX_THREAD_STATE* AFXAPI AfxGetThreadState();
/** Frees the data of the current thread; it is made anew at the next use. Called when a thread ends. */
AFX_LIB void AFXAPI AfxFreeThreadState();

/** Makes a module state current for a block. */
class AFX_MAINTAIN_STATE2
{
  public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState) : m_pPrevModuleState(AfxSetModuleState(pModuleState))
    {
    }
    ~AFX_MAINTAIN_STATE2() { AfxSetModuleState(m_pPrevModuleState); }
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

  private:
    AFX_MODULE_STATE* m_pPrevModuleState;
};
typedef AFX_MAINTAIN_STATE2 AFX_MAINTAIN_STATE;

#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p);

/** Module handle of the current module state; the program's when that is null. */
AFX_LIB HINSTANCE AFXAPI AfxGetInstanceHandle();
/** Handle where the current module state looks for resources first; the program's when that is null. */
AFX_LIB HINSTANCE AFXAPI AfxGetResourceHandle();
AFX_LIB void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);

/** Finds the module that has a resource: the current resource handle, then the extension modules in the library list
 *  (most recently added first, system ones last), then the framework.
 *  @return the module; the current resource handle when no module has the resource */
AFX_LIB HINSTANCE AFXAPI AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType);
/** Finds the module that has a string of the id, in the same order; null when none has. */
AFX_LIB HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID);

/** Wrapper objects of one kind of handle on one thread. A permanent object was attached by its owner; a temporary one
 * was made for a foreign handle and goes away when the thread is idle. */
class CHandleMap
{
  public:
    AFX_LIB explicit CHandleMap(const AFX_HANDLE_FACTORY& factory);
    AFX_LIB ~CHandleMap();
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    /** Gives the permanent object of a handle, else its temporary one, which is made when needed.
     *  @return null only for a null handle */
    AFX_LIB CObject* FromHandle(HANDLE h);
    /** @return null when there is none */
    AFX_LIB CObject* LookupPermanent(HANDLE h) const;
    AFX_LIB CObject* LookupTemporary(HANDLE h) const;
    /** Enters the owner of a handle. A temporary object of that handle stays until DeleteTemp. */
    AFX_LIB void SetPermanent(HANDLE h, CObject* permOb);
    /** Forgets the owner of a handle. */
    AFX_LIB void RemoveHandle(HANDLE h);
    /** Frees all temporary objects; their handles stay. */
    AFX_LIB void DeleteTemp();
    /** Writes every permanent object to the diagnostic output.
     *  @param lpszKind what the handles are called */
    AFX_LIB void DumpPermanent(LPCWSTR lpszKind) const;
    AFX_LIB size_t GetPermanentCount() const;
    AFX_LIB size_t GetTemporaryCount() const;

  private:
    struct Tables;
    AFX_HANDLE_FACTORY m_factory;
    Tables* m_pTables; // owned
};

/** Handle map of the current thread. It is one for all modules, so that a window or GDI object of one module is known
 * in every other.
 *  @param pFactory makes the map when the thread has none yet; null gives null then */
AFX_LIB CHandleMap* AFXAPI AfxGetHandleMap(AFX_HANDLE_KIND nKind, const AFX_HANDLE_FACTORY* pFactory);

/** Keeps the thread's temporary objects until the matching AfxUnlockTempMaps. */
AFX_LIB void AFXAPI AfxLockTempMaps();
/** Ends a lock; the last one frees the temporary objects of all kinds when bDeleteTemps.
 *  @return TRUE while locks remain */
AFX_LIB BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);
