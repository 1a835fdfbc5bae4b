#pragma once

#include <windows.h>

namespace ts
{

/** Counts faults while it lives: the system may go on after one in a window procedure as if nothing had happened. */
class FaultCounter
{
  public:
    FaultCounter() : m_noting(::AddVectoredExceptionHandler(TRUE, &Note)) { s_faults = 0; }
    ~FaultCounter() { ::RemoveVectoredExceptionHandler(m_noting); }
    FaultCounter(const FaultCounter&) = delete;
    FaultCounter& operator=(const FaultCounter&) = delete;

    int Count() const { return s_faults; }

  private:
    static LONG CALLBACK Note(EXCEPTION_POINTERS* exception)
    {
        s_faults += exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION;
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static inline int s_faults = 0;

    void* m_noting;
};

} // namespace ts
