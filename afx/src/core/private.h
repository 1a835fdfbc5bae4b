#pragma once

/* Shared by the core sources only. */

#include <afx.h>

/** Holds a slim lock exclusively for a block. */
class ExclusiveLock
{
  public:
    explicit ExclusiveLock(SRWLOCK& lock) : m_lock(lock) { AcquireSRWLockExclusive(&m_lock); }
    ~ExclusiveLock() { ReleaseSRWLockExclusive(&m_lock); }
    ExclusiveLock(const ExclusiveLock&) = delete;
    ExclusiveLock& operator=(const ExclusiveLock&) = delete;

  private:
    SRWLOCK& m_lock;
};

/** Framework memory that the optional block tracking sees; null when memory is short. */
void* AfxAllocTracked(size_t nBytes, bool bObject, LPCSTR lpszFileName = nullptr, int nLine = 0) noexcept;
void AfxFreeTracked(void* p) noexcept;

/** Whether the tracking of blocks is on. */
bool AfxIsMemoryTracked();
/** Nothing is said of blocks that are left at the end: threads that were killed could not free theirs. */
void AfxOmitBlockReport();

/** Writes a text to the trace hook, or to the debugger and stderr. */
void AfxWriteDiagnostic(LPCWSTR lpszText);

/** A string inside a string-table resource. */
struct AfxStringResource
{
    LPCWSTR lpsz = nullptr; ///< not terminated; null when there is none
    int nLength = 0;
};

/** Finds a string resource of a module; empty strings count as missing. */
AfxStringResource AfxLocateString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);

/** Finds a class by name among the modules that the current module state searches. */
CRuntimeClass* AfxFindClass(LPCSTR lpszClassName);

/** Module that contains an address. */
HMODULE AfxModuleFromAddress(const void* p);

/** Handle of afx.dll. */
HINSTANCE AfxFrameworkInstance();

/** Told by the entry function when the process ends: nothing is freed from then on. */
void AfxSetProcessTerminating();
