#include "private.h"

#include <cstdio>
#include <utility>

namespace
{
AFX_ASSERT_HOOK g_pfnAssertHook = nullptr;
AFX_TRACE_HOOK g_pfnTraceHook = nullptr;

bool IsAccessible(DWORD dwProtect, bool bWrite)
{
    if (dwProtect & (PAGE_GUARD | PAGE_NOACCESS)) {
        return false;
    }
    const DWORD dwWritable = PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    const DWORD dwReadable = dwWritable | PAGE_READONLY | PAGE_EXECUTE_READ;
    return (dwProtect & (bWrite ? dwWritable : dwReadable)) != 0;
}

template <typename XCHAR>
BOOL IsValidStringOf(const XCHAR* psz, INT_PTR nLength)
{
    if (!psz) {
        return FALSE;
    }
    if (nLength >= 0) {
        return nLength == 0 || AfxIsValidAddress(psz, static_cast<UINT_PTR>(nLength) * sizeof(XCHAR), FALSE);
    }
    const UINT_PTR nPageMask = 0xFFF;
    for (const XCHAR* p = psz;; ++p) {
        const bool bNewPage = p == psz || (reinterpret_cast<UINT_PTR>(p) & nPageMask) < sizeof(XCHAR);
        if (bNewPage && !AfxIsValidAddress(p, sizeof(XCHAR), FALSE)) {
            return FALSE;
        }
        if (*p == 0) {
            return TRUE;
        }
    }
}
} // namespace

AFX_ASSERT_HOOK AFXAPI AfxSetAssertHook(AFX_ASSERT_HOOK pfnHook)
{
    return std::exchange(g_pfnAssertHook, pfnHook);
}

AFX_TRACE_HOOK AFXAPI AfxSetTraceHook(AFX_TRACE_HOOK pfnHook)
{
    return std::exchange(g_pfnTraceHook, pfnHook);
}

void AfxWriteDiagnostic(LPCWSTR lpszText)
{
    if (g_pfnTraceHook) {
        g_pfnTraceHook(lpszText);
        return;
    }
    OutputDebugStringW(lpszText);
    const CStringA strNarrow(lpszText);
    fputs(strNarrow.GetString(), stderr);
    fflush(stderr);
}

BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine)
{
    const DWORD dwLastError = GetLastError();
    CString strReport;
    strReport.Format(L"%hs(%d): assertion failed\n", lpszFileName ? lpszFileName : "", nLine);
    AfxWriteDiagnostic(strReport);
    const BOOL bBreak = g_pfnAssertHook ? g_pfnAssertHook(lpszFileName, nLine) : TRUE;
    SetLastError(dwLastError);
    return bBreak;
}

void AFXAPI AfxDebugBreak()
{
    DebugBreak();
}

void AFX_CDECL AfxTrace(LPCWSTR lpszFormat, ...)
{
    CString strText;
    va_list args;
    va_start(args, lpszFormat);
    strText.FormatV(lpszFormat, args);
    va_end(args);
    AfxWriteDiagnostic(strText);
}

void AFX_CDECL AfxTrace(LPCSTR lpszFormat, ...)
{
    CStringA strText;
    va_list args;
    va_start(args, lpszFormat);
    strText.FormatV(lpszFormat, args);
    va_end(args);
    AfxWriteDiagnostic(CString(strText));
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine)
{
    const bool bPlausible = pOb && AfxIsValidAddress(pOb, sizeof(CObject), TRUE) &&
                            AfxIsValidAddress(*reinterpret_cast<void* const*>(pOb), sizeof(void*), FALSE) &&
                            AfxIsValidAddress(pOb, static_cast<UINT_PTR>(pOb->GetRuntimeClass()->m_nObjectSize), TRUE);
    if (bPlausible) {
        pOb->AssertValid();
    } else if (AfxAssertFailedLine(lpszFileName, nLine)) {
        AfxDebugBreak();
    }
}

BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite)
{
    if (!lp) {
        return FALSE;
    }
    auto* p = static_cast<const BYTE*>(lp);
    const BYTE* const pEnd = p + nBytes;
    if (pEnd < p) {
        return FALSE;
    }
    do {
        MEMORY_BASIC_INFORMATION info;
        if (!VirtualQuery(p, &info, sizeof(info)) || info.State != MEM_COMMIT ||
            !IsAccessible(info.Protect, bReadWrite != FALSE)) {
            return FALSE;
        }
        p = static_cast<const BYTE*>(info.BaseAddress) + info.RegionSize;
    } while (p < pEnd);
    return TRUE;
}

BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, INT_PTR nLength)
{
    return IsValidStringOf(lpsz, nLength);
}

BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, INT_PTR nLength)
{
    return IsValidStringOf(lpsz, nLength);
}
