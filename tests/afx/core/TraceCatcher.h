#pragma once

#include <afx.h>

inline CString g_strOutput; ///< what the traces said since the last catcher was made

/** Keeps the diagnostic output of a test in `g_strOutput` instead of writing it. */
class TraceCatcher
{
  public:
    TraceCatcher() : m_pfnOld(AfxSetTraceHook([](LPCWSTR lpszText) { g_strOutput += lpszText; }))
    {
        g_strOutput.Empty();
    }
    ~TraceCatcher() { AfxSetTraceHook(m_pfnOld); }
    TraceCatcher(const TraceCatcher&) = delete;
    TraceCatcher& operator=(const TraceCatcher&) = delete;

  private:
    AFX_TRACE_HOOK m_pfnOld;
};
