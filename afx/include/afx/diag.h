#pragma once

/** @file
 *  Checks and reports for debug builds (`_DEBUG`), and the optional tracking of framework heap blocks. */

#include <afx/config.h>

#include <crtdbg.h>

/** Called for a failed assertion.
 *  @param lpszFileName source file of the assertion
 *  @param nLine        line in that file
 *  @return nonzero to break into the debugger, zero to go on */
typedef BOOL(AFXAPI* AFX_ASSERT_HOOK)(LPCSTR lpszFileName, int nLine);

/** Called with every line of diagnostic output (traces, dumps, assertion reports). */
typedef void(AFXAPI* AFX_TRACE_HOOK)(LPCWSTR lpszText);

/** Replaces what happens at a failed assertion after it was reported; null restores the default (break).
 *  @return the hook that was in place */
AFX_LIB AFX_ASSERT_HOOK AFXAPI AfxSetAssertHook(AFX_ASSERT_HOOK pfnHook);

/** Sends diagnostic output to a function instead of the debugger and stderr; null restores the default.
 *  @return the hook that was in place */
AFX_LIB AFX_TRACE_HOOK AFXAPI AfxSetTraceHook(AFX_TRACE_HOOK pfnHook);

/** Reports a failed assertion as `file(line)` on the diagnostic output and asks the assert hook.
 *  @return nonzero when the caller shall break into the debugger */
AFX_LIB BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);

/** Stops in the debugger. */
AFX_LIB void AFXAPI AfxDebugBreak();

/** Writes formatted diagnostic output. The text is not limited in length. */
AFX_LIB void AFX_CDECL AfxTrace(LPCWSTR lpszFormat, ...);
AFX_LIB void AFX_CDECL AfxTrace(LPCSTR lpszFormat, ...);

/** Asserts that an object is a plausible framework object and calls its AssertValid. */
AFX_LIB void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);

/** Dumps an object to `afxDump`. */
AFX_LIB void AFXAPI AfxDump(const CObject* pOb);

/** Tells whether a range of memory can be read (and written).
 *  @param lp         start of the range
 *  @param nBytes     its length in bytes
 *  @param bReadWrite TRUE asks for write access too */
AFX_LIB BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);

/** Tells whether a string can be read up to its terminator, or for `nLength` characters when that is not -1. */
AFX_LIB BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, INT_PTR nLength = -1);
AFX_LIB BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, INT_PTR nLength = -1);

/** Turns the tracking of framework heap blocks (objects derived from CObject, string buffers) on or off.
 *  It is on from the start in a debug build of afx.dll and off otherwise; blocks made while it is on stay tracked.
 *  While it is on, afx.dll reports on the debugger's output and stderr what is left when it is unloaded: handles that
 *  objects still own, and blocks. The trace hook does not see that report, its module may be gone.
 *  @return the former setting */
AFX_LIB BOOL AFXAPI AfxEnableMemoryTracking(BOOL bTrack);

/** Checks the guard bytes behind every tracked block and reports each damaged one.
 *  @return TRUE when all are intact */
AFX_LIB BOOL AFXAPI AfxCheckMemory();

/** Tells whether a tracked block starts at an address.
 *  @param nBytes           its size in bytes as requested
 *  @param plRequestNumber  receives the number of its allocation; may be null */
AFX_LIB BOOL AFXAPI AfxIsMemoryBlock(const void* p, UINT nBytes, LONG* plRequestNumber = nullptr);

/** A snapshot of the tracked heap blocks, for finding leaks between two points of a program. */
struct CMemoryState
{
    enum BlockUsage
    {
        freeBlock,   ///< not used, always 0
        objectBlock, ///< objects derived from CObject
        bitBlock,    ///< other framework memory (string buffers)
        crtBlock,    ///< not used, always 0
        ignoredBlock,
        nBlockUseMax
    };

    LONG m_lRequestNumber = 0; ///< number of the last allocation before the snapshot
    SIZE_T m_lCounts[nBlockUseMax] = {};
    SIZE_T m_lSizes[nBlockUseMax] = {}; ///< in bytes

    /** Takes the snapshot. */
    AFX_LIB void Checkpoint();
    /** Stores new minus old.
     *  @return TRUE when the two snapshots differ in the number or size of their blocks */
    AFX_LIB BOOL Difference(const CMemoryState& oldState, const CMemoryState& newState);
    /** Writes the counts and sizes to the diagnostic output. */
    AFX_LIB void DumpStatistics() const;
    /** Writes every tracked object allocated after the snapshot and still alive to the diagnostic output. */
    AFX_LIB void DumpAllObjectsSince() const;
};

/** A snapshot of the handles that objects of the calling thread own, for finding handles that are left open between two
 *  points of a program. What was never attached to an object is not seen. */
struct CHandleState
{
    enum HandleKind
    {
        windows, ///< CWnd
        menus,   ///< CMenu
        deviceContexts,
        gdiObjects,
        imageLists,
        nHandleKinds
    };

    LONG m_lCounts[nHandleKinds] = {};

    /** Takes the snapshot. */
    AFX_LIB void Checkpoint();
    /** Stores new minus old.
     *  @return TRUE when the two snapshots differ in the number of handles of some kind */
    AFX_LIB BOOL Difference(const CHandleState& oldState, const CHandleState& newState);
    /** Writes the counts to the diagnostic output. */
    AFX_LIB void DumpStatistics() const;
};

/** Writes every handle that an object of the calling thread owns to the diagnostic output, with the object's address.
 *  @return their number */
AFX_LIB UINT AFXAPI AfxDumpHandles();

/** Formatted output for CObject::Dump. Goes where the traces go. */
class CDumpContext
{
  public:
    CDumpContext() = default;
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    AFX_LIB CDumpContext& operator<<(LPCWSTR lpsz);
    AFX_LIB CDumpContext& operator<<(LPCSTR lpsz);
    AFX_LIB CDumpContext& operator<<(const void* lp);
    AFX_LIB CDumpContext& operator<<(const CObject* pOb);
    AFX_LIB CDumpContext& operator<<(const CObject& ob);
    AFX_LIB CDumpContext& operator<<(BYTE by);
    AFX_LIB CDumpContext& operator<<(WORD w);
    AFX_LIB CDumpContext& operator<<(UINT u);
    AFX_LIB CDumpContext& operator<<(DWORD dw);
    AFX_LIB CDumpContext& operator<<(int n);
    AFX_LIB CDumpContext& operator<<(LONG l);
    AFX_LIB CDumpContext& operator<<(LONGLONG n);
    AFX_LIB CDumpContext& operator<<(ULONGLONG n);
    AFX_LIB CDumpContext& operator<<(float f);
    AFX_LIB CDumpContext& operator<<(double d);

    /** 0: objects are dumped shallow; above 0: collections dump their elements too. */
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }
    AFX_LIB void Flush();

  private:
    int m_nDepth = 0;
};

extern AFX_LIB CDumpContext afxDump;

#ifdef _DEBUG
#define THIS_FILE __FILE__
#define ASSERT(f) ((f) || !::AfxAssertFailedLine(__FILE__, __LINE__) ? (void)0 : ::AfxDebugBreak())
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (::AfxAssertValidObject((pOb), __FILE__, __LINE__))
#define DEBUG_ONLY(f) (f)
#define TRACE ::AfxTrace
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(pOb) ((void)0)
#define DEBUG_ONLY(f) ((void)0)
#define TRACE(...) (false ? ::AfxTrace(__VA_ARGS__) : (void)0)
#endif
// The run-time library's own names for it, which do nothing there.
#undef _ASSERT
#undef _ASSERTE
#define _ASSERT(f) ASSERT(f)
#define _ASSERTE(f) ASSERT(f)
#define ASSERT_POINTER(p, type) ASSERT((p) && ::AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_NULL_OR_POINTER(p, type) ASSERT(!(p) || ::AfxIsValidAddress((p), sizeof(type), FALSE))
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define TRACE0(sz) TRACE(_T("%s"), _T(sz))
#define TRACE1(sz, p1) TRACE(_T(sz), p1)
#define TRACE2(sz, p1, p2) TRACE(_T(sz), p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(_T(sz), p1, p2, p3)

/** `new` with the place of the allocation, as `#define new DEBUG_NEW` uses it. The place is kept for tracked objects.
 */
AFX_LIB void* AFX_CDECL operator new(std::size_t nSize, LPCSTR lpszFileName, int nLine);
AFX_LIB void* AFX_CDECL operator new[](std::size_t nSize, LPCSTR lpszFileName, int nLine);
AFX_LIB void AFX_CDECL operator delete(void* p, LPCSTR lpszFileName, int nLine) noexcept;
AFX_LIB void AFX_CDECL operator delete[](void* p, LPCSTR lpszFileName, int nLine) noexcept;
#ifdef _DEBUG
#define DEBUG_NEW new (__FILE__, __LINE__)
#else
#define DEBUG_NEW new
#endif
