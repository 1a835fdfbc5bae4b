#include "strinternal.h"

template <typename T>
CStringT<T>& CStringT<T>::MakeUpper()
{
    Chars<T>::Upper(GetBuffer(), GetLength());
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::MakeLower()
{
    Chars<T>::Lower(GetBuffer(), GetLength());
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::MakeReverse()
{
    if (GetLength() > 1) {
        Chars<T>::Reverse(GetBuffer(), GetLength());
    }
    return *this;
}

template <typename T>
int CStringT<T>::Replace(XCHAR chOld, XCHAR chNew)
{
    int nCount = 0;
    if (chOld == chNew) {
        return 0;
    }
    for (int i = Find(chOld); i >= 0; i = Find(chOld, i + 1)) {
        SetAt(i, chNew);
        ++nCount;
    }
    return nCount;
}

template <typename T>
int CStringT<T>::Replace(PCXSTR pszOld, PCXSTR pszNew)
{
    const int nOld = StringLength(pszOld);
    if (nOld == 0 || Find(pszOld) < 0) {
        return 0;
    }
    /* The result is built apart, so both arguments may point into this string. */
    CStringT strResult;
    int nCount = 0;
    int iFrom = 0;
    for (int i = Find(pszOld); i >= 0; i = Find(pszOld, iFrom)) {
        strResult.Append(m_pszData + iFrom, i - iFrom);
        strResult.Append(pszNew);
        iFrom = i + nOld;
        ++nCount;
    }
    strResult.Append(m_pszData + iFrom, GetLength() - iFrom);
    SetString(strResult, strResult.GetLength());
    return nCount;
}

template <typename T>
int CStringT<T>::Remove(XCHAR chRemove)
{
    const int nLength = GetLength();
    if (Find(chRemove) < 0) {
        return 0;
    }
    PXSTR const psz = GetBuffer();
    PXSTR pDest = psz;
    for (PCXSTR p = psz; p < psz + nLength;) {
        const PCXSTR pNext = (std::min)(Chars<T>::Next(p), static_cast<PCXSTR>(psz + nLength));
        if (*p != chRemove) {
            pDest = std::copy(p, pNext, pDest);
        }
        p = pNext;
    }
    const int nNewLength = static_cast<int>(pDest - psz);
    SetDataLength(nNewLength);
    return nLength - nNewLength;
}

template <typename T>
int CStringT<T>::Insert(int iIndex, XCHAR ch)
{
    const XCHAR szText[2] = {ch, 0};
    if (ch != 0) {
        return Insert(iIndex, szText);
    }
    iIndex = (std::min)((std::max)(iIndex, 0), GetLength());
    const CStringT strTail(Mid(iIndex));
    GetBufferSetLength(iIndex);
    AppendChar(ch);
    Append(strTail);
    return GetLength();
}

template <typename T>
int CStringT<T>::Insert(int iIndex, PCXSTR psz)
{
    const int nInsert = StringLength(psz);
    const int nLength = GetLength();
    if (nInsert == 0) {
        return nLength;
    }
    if (nInsert > INT_MAX - nLength) {
        AfxThrowMemoryException();
    }
    iIndex = (std::min)((std::max)(iIndex, 0), nLength);
    const bool bInside = psz >= m_pszData && psz <= m_pszData + nLength;
    const CStringT strInsert(bInside ? CStringT(psz, nInsert) : CStringT());
    PXSTR const pszBuffer = GetBuffer(nLength + nInsert);
    CopyCharsOverlapped(pszBuffer + iIndex + nInsert, pszBuffer + iIndex, nLength - iIndex);
    CopyChars(pszBuffer + iIndex, bInside ? strInsert.GetString() : psz, nInsert);
    SetDataLength(nLength + nInsert);
    return nLength + nInsert;
}

template <typename T>
int CStringT<T>::Delete(int iIndex, int nCount)
{
    const int nLength = GetLength();
    iIndex = (std::max)(iIndex, 0);
    if (iIndex >= nLength || nCount <= 0) {
        return nLength;
    }
    nCount = (std::min)(nCount, nLength - iIndex);
    PXSTR const psz = GetBuffer();
    CopyCharsOverlapped(psz + iIndex, psz + iIndex + nCount, nLength - iIndex - nCount);
    SetDataLength(nLength - nCount);
    return nLength - nCount;
}

/** Null targets stand for white space. */
template <typename T>
void CStringT<T>::TrimEnds(PCXSTR pszTargets, bool bLeft, bool bRight)
{
    const PCXSTR pszEnd = m_pszData + GetLength();
    const auto IsTarget = [=](PCXSTR p) {
        return pszTargets ? *p != 0 && Chars<T>::FindChar(pszTargets, *p) != nullptr : Chars<T>::IsSpace(p);
    };
    PCXSTR pszFirst = m_pszData;
    while (bLeft && pszFirst < pszEnd && IsTarget(pszFirst)) {
        pszFirst = Chars<T>::Next(pszFirst);
    }
    PCXSTR pszLast = bRight ? pszFirst : pszEnd;
    for (PCXSTR p = pszFirst; bRight && p < pszEnd; p = Chars<T>::Next(p)) {
        if (!IsTarget(p)) {
            pszLast = (std::min)(Chars<T>::Next(p), pszEnd);
        }
    }
    if (pszFirst != m_pszData || pszLast != pszEnd) {
        SetString(pszFirst, static_cast<int>(pszLast - pszFirst));
    }
}

template <typename T>
CStringT<T>& CStringT<T>::Trim()
{
    TrimEnds(nullptr, true, true);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::Trim(XCHAR chTarget)
{
    const XCHAR szTargets[2] = {chTarget, 0};
    TrimEnds(szTargets, true, true);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::Trim(PCXSTR pszTargets)
{
    TrimEnds(AfxOrEmpty(pszTargets), true, true);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::TrimLeft()
{
    TrimEnds(nullptr, true, false);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::TrimLeft(XCHAR chTarget)
{
    const XCHAR szTargets[2] = {chTarget, 0};
    TrimEnds(szTargets, true, false);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::TrimLeft(PCXSTR pszTargets)
{
    TrimEnds(AfxOrEmpty(pszTargets), true, false);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::TrimRight()
{
    TrimEnds(nullptr, false, true);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::TrimRight(XCHAR chTarget)
{
    const XCHAR szTargets[2] = {chTarget, 0};
    TrimEnds(szTargets, false, true);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::TrimRight(PCXSTR pszTargets)
{
    TrimEnds(AfxOrEmpty(pszTargets), false, true);
    return *this;
}

template <typename T>
void CStringT<T>::ConvertCodePage(bool bToOem)
{
    if constexpr (std::is_same_v<T, char>) {
        const DWORD nLength = static_cast<DWORD>(GetLength());
        PXSTR const psz = GetBuffer();
        if (bToOem) {
            CharToOemBuffA(psz, psz, nLength);
        } else {
            OemToCharBuffA(psz, psz, nLength);
        }
    }
}

template class CStringT<char>;
template class CStringT<wchar_t>;
