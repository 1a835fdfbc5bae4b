#pragma once

/** @file
 *  What the collections ask of their elements and keys. Specialise the templates for an own meaning. */

#include <afx/str.h>

#include <type_traits>

/** Tells whether two elements are equal; specialise it for an own meaning. */
template <class TYPE, class ARG_TYPE>
BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2;
}

/** Copies elements between two arrays; specialise it for an own meaning. */
template <class TYPE>
void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount)
{
    for (INT_PTR i = 0; i < nCount; ++i) {
        pDest[i] = pSrc[i];
    }
}

/** Hash of a string's characters. */
template <typename XCHAR>
UINT AfxHashString(const XCHAR* psz)
{
    UINT nHash = 2166136261U;
    for (; psz && *psz; ++psz) {
        nHash = (nHash ^
                 static_cast<UINT>(
                     static_cast<std::make_unsigned_t<std::conditional_t<sizeof(XCHAR) == 1, char, short>>>(*psz))) *
                16777619U;
    }
    return nHash;
}

/** Hash of a map key; specialise it for key types that are neither numbers, pointers nor strings. */
template <class ARG_KEY>
UINT AFXAPI HashKey(ARG_KEY key)
{
    typedef std::remove_cv_t<std::remove_reference_t<ARG_KEY>> KEY_TYPE;
    if constexpr (std::is_convertible_v<ARG_KEY, LPCWSTR> && !std::is_null_pointer_v<KEY_TYPE>) {
        return AfxHashString<wchar_t>(key);
    } else if constexpr (std::is_convertible_v<ARG_KEY, LPCSTR> && !std::is_null_pointer_v<KEY_TYPE>) {
        return AfxHashString<char>(key);
    } else {
        const ULONGLONG n = (ULONGLONG)(key); // pointers, numbers and enumerations alike
        return static_cast<UINT>((n ^ (n >> 32)) * 2654435761U >> 4);
    }
}

template <>
inline UINT AFXAPI HashKey<const GUID&>(const GUID& key)
{
    UINT nHash = static_cast<UINT>(key.Data1) ^ key.Data2 ^ (static_cast<UINT>(key.Data3) << 16);
    for (const BYTE by : key.Data4) {
        nHash = nHash * 31 + by;
    }
    return nHash;
}
