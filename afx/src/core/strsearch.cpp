#include "strinternal.h"

/* Comparison */

template <typename T>
int CStringT<T>::Compare(PCXSTR psz) const
{
    return Chars<T>::Compare(m_pszData, AfxOrEmpty(psz));
}

template <typename T>
int CStringT<T>::CompareNoCase(PCXSTR psz) const
{
    return Chars<T>::CompareNoCase(m_pszData, AfxOrEmpty(psz));
}

template <typename T>
int CStringT<T>::Collate(PCXSTR psz) const
{
    return Chars<T>::Collate(m_pszData, AfxOrEmpty(psz));
}

template <typename T>
int CStringT<T>::CollateNoCase(PCXSTR psz) const
{
    return Chars<T>::CollateNoCase(m_pszData, AfxOrEmpty(psz));
}

template <typename T>
int CStringT<T>::Order(const CStringT& str1, const CStringT& str2) noexcept
{
    return str1.m_pszData == str2.m_pszData ? 0 : Chars<T>::Compare(str1.m_pszData, str2.m_pszData);
}

/* Parts */

template <typename T>
CStringT<T> CStringT<T>::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength());
}

template <typename T>
CStringT<T> CStringT<T>::Mid(int iFirst, int nCount) const
{
    const int nLength = GetLength();
    iFirst = (std::min)((std::max)(iFirst, 0), nLength);
    nCount = (std::min)((std::max)(nCount, 0), nLength - iFirst);
    return nCount == nLength ? *this : CStringT(m_pszData + iFirst, nCount);
}

template <typename T>
CStringT<T> CStringT<T>::Left(int nCount) const
{
    return Mid(0, nCount);
}

template <typename T>
CStringT<T> CStringT<T>::Right(int nCount) const
{
    const int nLength = GetLength();
    return Mid(nLength - (std::min)((std::max)(nCount, 0), nLength));
}

template <typename T>
CStringT<T> CStringT<T>::SpanIncluding(PCXSTR pszCharSet) const
{
    AfxCheckArgument(pszCharSet != nullptr);
    return Left(Chars<T>::SpanOf(m_pszData, pszCharSet));
}

template <typename T>
CStringT<T> CStringT<T>::SpanExcluding(PCXSTR pszCharSet) const
{
    AfxCheckArgument(pszCharSet != nullptr);
    return Left(Chars<T>::SpanNotOf(m_pszData, pszCharSet));
}

template <typename T>
CStringT<T> CStringT<T>::Tokenize(PCXSTR pszTokens, int& iStart) const
{
    AfxCheckArgument(iStart >= 0);
    const int nLength = GetLength();
    if (iStart < nLength && !*AfxOrEmpty(pszTokens)) {
        return Mid(std::exchange(iStart, nLength));
    }
    if (iStart < nLength) {
        const int iFirst = iStart + Chars<T>::SpanOf(m_pszData + iStart, pszTokens);
        if (iFirst < nLength) {
            const int nCount = Chars<T>::SpanNotOf(m_pszData + iFirst, pszTokens);
            iStart = iFirst + nCount + 1;
            return Mid(iFirst, nCount);
        }
    }
    iStart = -1;
    return CStringT();
}

/* Search */

template <typename T>
int CStringT<T>::Find(XCHAR ch, int iStart) const noexcept
{
    if (iStart < 0 || iStart >= GetLength()) {
        return -1;
    }
    const PCXSTR psz = Chars<T>::FindChar(m_pszData + iStart, ch);
    return psz ? static_cast<int>(psz - m_pszData) : -1;
}

template <typename T>
int CStringT<T>::Find(PCXSTR pszSub, int iStart) const noexcept
{
    if (!pszSub || iStart < 0 || iStart > GetLength()) {
        return -1;
    }
    const PCXSTR psz = Chars<T>::FindString(m_pszData + iStart, pszSub);
    return psz ? static_cast<int>(psz - m_pszData) : -1;
}

template <typename T>
int CStringT<T>::ReverseFind(XCHAR ch) const noexcept
{
    const PCXSTR psz = IsEmpty() ? nullptr : Chars<T>::FindLastChar(m_pszData, ch);
    return psz ? static_cast<int>(psz - m_pszData) : -1;
}

template <typename T>
int CStringT<T>::FindOneOf(PCXSTR pszCharSet) const noexcept
{
    const PCXSTR psz = Chars<T>::FindAnyOf(m_pszData, AfxOrEmpty(pszCharSet));
    return psz ? static_cast<int>(psz - m_pszData) : -1;
}

template class CStringT<char>;
template class CStringT<wchar_t>;
