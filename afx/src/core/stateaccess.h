#pragma once

/* The lists of module states, threads, extension modules and classes: shared by the core sources that keep them. */

#include "private.h"

#include <memory>
#include <unordered_map>
#include <vector>

/** What the framework keeps of a thread, with what is its own affair. */
struct ThreadState : _AFX_THREAD_STATE
{
    std::unique_ptr<CHandleMap> handleMaps[AFX_HANDLE_KINDS];
    std::unordered_map<AFX_MODULE_STATE*, std::unique_ptr<AFX_MODULE_THREAD_STATE>> modules;
    ThreadState* pNext = nullptr;
};

/** The way into the private parts of the states. */
struct AfxStateAccess
{
    /** Guards the lists. Nothing is called back while it is held. */
    static inline SRWLOCK s_lock = SRWLOCK_INIT;
    static inline AFX_MODULE_STATE* s_pFirstState = nullptr;
    static inline ThreadState* s_pFirstThread = nullptr;
    static inline bool s_bProcessTerminating = false;

    static void EnterClass(AFX_CLASSINIT* pInit);
    static void LeaveClass(AFX_CLASSINIT* pInit);
    static CRuntimeClass* FindInState(const AFX_MODULE_STATE* pState, LPCSTR lpszName);
    static CRuntimeClass* FindInModule(HMODULE hModule, LPCSTR lpszName);
    static CRuntimeClass* FindClass(const AFX_MODULE_STATE* pState, LPCSTR lpszName);

    static void EnterState(AFX_MODULE_STATE* pState);
    static void LeaveState(AFX_MODULE_STATE* pState);
    static void EnterLibrary(CDynLinkLibrary* pLibrary);
    static void LeaveLibrary(CDynLinkLibrary* pLibrary);
    static CDynLinkLibrary* TakeLibrary(HMODULE hModule);

    /** State of the calling thread, made at first use. */
    static ThreadState* Thread();
    /** State of the calling thread, null when it has none. Keeps the error code, which the system resets: the state is
     *  asked for between a call and its GetLastError. */
    static ThreadState* PeekThread();
    static void StoreThread(ThreadState* pThread);
    static ThreadState* MakeThread();
    static void FreeThread(ThreadState* pThread);
    static void FreeAllThreads();
    static AFX_MODULE_THREAD_STATE* ModuleThread(ThreadState* pThread, AFX_MODULE_STATE* pModule);

    /** @return number of handles that objects of the thread own */
    static UINT DumpHandles(const ThreadState* pThread);
    /** The last words of the framework on what was not closed. */
    static void ReportLeftHandles();
    /** Frees what this thread has when the process ends; the other threads are gone without having freed theirs. */
    static void FreeLastThread();

    /** Resource handles in search order, copied: looking into a module may need the loader's lock, which a thread that
     *  enters its library holds already. */
    static std::vector<HINSTANCE> LibraryResources(const AFX_MODULE_STATE* pState);
};
