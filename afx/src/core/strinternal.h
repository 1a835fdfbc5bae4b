#pragma once

/* Shared by the sources of CStringT. Each instantiates the members that it defines. */

#include "chartraits.h"

/** The one buffer of all empty strings; it is never counted and never written. */
template <typename XCHAR>
struct AfxEmptyBuffer
{
    CStringData data;
    XCHAR achText[2];
};
inline constinit AfxEmptyBuffer<char> g_emptyA = {};
inline constinit AfxEmptyBuffer<wchar_t> g_emptyW = {};

inline AfxEmptyBuffer<char>& AfxEmptyOf(char)
{
    return g_emptyA;
}

inline AfxEmptyBuffer<wchar_t>& AfxEmptyOf(wchar_t)
{
    return g_emptyW;
}

template <typename T>
using Chars = CharFunctions<T>;

inline void AfxCheckArgument(bool bValid)
{
    if (!bValid) {
        AfxThrowInvalidArgException();
    }
}

template <typename T>
const T* AfxOrEmpty(const T* psz)
{
    static const T kEmpty[1] = {};
    return psz ? psz : kEmpty;
}

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::NilBuffer() noexcept
{
    return AfxEmptyOf(T()).achText;
}

template <typename T>
void CStringT<T>::ReleaseRef(PXSTR pszData) noexcept
{
    if (pszData == NilBuffer()) {
        return;
    }
    auto* const pData = reinterpret_cast<CStringData*>(pszData) - 1;
    if (pData->IsLocked() || InterlockedDecrement(&pData->nRefs) <= 0) {
        AfxFreeTracked(pData);
    }
}
