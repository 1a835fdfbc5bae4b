#pragma once

/** Whether a member function was called through a null pointer, as the documented interface allows for the functions
 * that give a handle. The compiler takes it for impossible, so it must not see what is compared. */
inline bool AfxIsNullThis(const void* pThis)
{
    const void* const volatile pCalled = pThis;
    return !pCalled;
}
