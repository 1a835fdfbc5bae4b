#pragma once

#include <afx.h>

inline CString g_strOutput; ///< what the traces said since the last catcher was made

/** Keeps the diagnostic output of a test in `g_strOutput` instead of writing it. */
class CTraceCatcher
{
  public:
    CTraceCatcher() : m_pfnOld(AfxSetTraceHook([](LPCWSTR lpszText) { g_strOutput += lpszText; }))
    {
        g_strOutput.Empty();
    }
    ~CTraceCatcher() { AfxSetTraceHook(m_pfnOld); }
    CTraceCatcher(const CTraceCatcher&) = delete;
    CTraceCatcher& operator=(const CTraceCatcher&) = delete;

  private:
    AFX_TRACE_HOOK m_pfnOld;
};
