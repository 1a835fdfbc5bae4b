#include "strinternal.h"

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::AllocBuffer(int nLength)
{
    const size_t nBytes = sizeof(CStringData) + (static_cast<size_t>(nLength) + 1) * sizeof(T);
    auto* const pData =
        nLength >= 0 && nLength < INT_MAX / 4 ? static_cast<CStringData*>(AfxAllocTracked(nBytes, false)) : nullptr;
    if (!pData) {
        AfxThrowMemoryException();
    }
    *pData = {1, 0, nLength, 0};
    PXSTR const psz = reinterpret_cast<PXSTR>(pData + 1);
    psz[0] = 0;
    return psz;
}

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::ShareBuffer(const CStringT& strSrc)
{
    CStringData* const pData = strSrc.GetData();
    if (pData->IsLocked()) {
        PXSTR const psz = AllocBuffer(pData->nDataLength);
        CopyChars(psz, strSrc.m_pszData, pData->nDataLength + 1);
        (reinterpret_cast<CStringData*>(psz) - 1)->nDataLength = pData->nDataLength;
        return psz;
    }
    if (strSrc.m_pszData != NilBuffer()) {
        InterlockedIncrement(&pData->nRefs);
    }
    return strSrc.m_pszData;
}

template <typename T>
void CStringT<T>::Attach(PXSTR pszData) noexcept
{
    ReleaseRef(std::exchange(m_pszData, pszData));
}

template <typename T>
void CStringT<T>::SetDataLength(int nLength) noexcept
{
    GetData()->nDataLength = nLength;
    m_pszData[nLength] = 0;
}

/** Makes the buffer the string's own, with room for at least nMinAlloc characters. A locked buffer stays locked. */
template <typename T>
void CStringT<T>::MakeOwn(int nMinAlloc)
{
    const CStringData* const pData = GetData();
    const int nLength = pData->nDataLength;
    if (!pData->IsShared() && m_pszData != NilBuffer() && pData->nAllocLength >= nMinAlloc) {
        return;
    }
    const bool bGrowing = nMinAlloc > pData->nAllocLength && nLength > 0 && !pData->IsShared();
    const int nRoom = bGrowing && nMinAlloc < INT_MAX / 8 ? nMinAlloc + nMinAlloc / 2 : nMinAlloc;
    const LONG nRefs = pData->IsLocked() ? -1 : 1;
    PXSTR const psz = AllocBuffer((std::max)(nRoom, nLength));
    CopyChars(psz, m_pszData, nLength);
    Attach(psz);
    GetData()->nRefs = nRefs;
    SetDataLength(nLength);
}

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::GetBuffer()
{
    MakeOwn(GetLength());
    return m_pszData;
}

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::GetBuffer(int nMinBufferLength)
{
    AfxCheckArgument(nMinBufferLength >= 0);
    MakeOwn((std::max)(nMinBufferLength, GetLength()));
    return m_pszData;
}

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::GetBufferSetLength(int nLength)
{
    PXSTR const psz = GetBuffer(nLength);
    SetDataLength(nLength);
    return psz;
}

template <typename T>
void CStringT<T>::ReleaseBuffer(int nNewLength)
{
    if (nNewLength < 0) {
        const int nRoom = GetData()->nAllocLength;
        nNewLength = static_cast<int>(std::find(m_pszData, m_pszData + nRoom, T()) - m_pszData);
    }
    ReleaseBufferSetLength(nNewLength);
}

template <typename T>
void CStringT<T>::ReleaseBufferSetLength(int nNewLength)
{
    AfxCheckArgument(nNewLength >= 0 && nNewLength <= GetData()->nAllocLength);
    if (nNewLength == 0) {
        Empty();
    } else {
        MakeOwn(nNewLength);
        SetDataLength(nNewLength);
    }
}

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::LockBuffer()
{
    MakeOwn(GetLength());
    GetData()->nRefs = -1;
    return m_pszData;
}

template <typename T>
void CStringT<T>::UnlockBuffer() noexcept
{
    if (GetData()->IsLocked()) {
        GetData()->nRefs = 1;
    }
}

template <typename T>
void CStringT<T>::FreeExtra()
{
    const CStringData* const pData = GetData();
    if (pData->IsLocked() || pData->nAllocLength == pData->nDataLength) {
        return;
    }
    const int nLength = pData->nDataLength;
    PXSTR const psz = nLength > 0 ? AllocBuffer(nLength) : NilBuffer();
    CopyChars(psz, m_pszData, nLength);
    Attach(psz);
    if (nLength > 0) {
        SetDataLength(nLength);
    }
}

template <typename T>
void CStringT<T>::Preallocate(int nLength)
{
    MakeOwn((std::max)(nLength, GetLength()));
}

template <typename T>
void CStringT<T>::Truncate(int nNewLength)
{
    AfxCheckArgument(nNewLength >= 0);
    if (nNewLength < GetLength()) {
        GetBufferSetLength(nNewLength);
    }
}

template class CStringT<char>;
template class CStringT<wchar_t>;
