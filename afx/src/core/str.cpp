#include "chartraits.h"

namespace
{
template <typename XCHAR>
using Chars = CCharFunctions<XCHAR>;

/** The one buffer of all empty strings; it is never counted and never written. */
template <typename XCHAR>
struct EmptyBuffer
{
    CStringData data;
    XCHAR achText[2];
};
constinit EmptyBuffer<char> g_emptyA = {};
constinit EmptyBuffer<wchar_t> g_emptyW = {};

EmptyBuffer<char>& EmptyOf(char)
{
    return g_emptyA;
}

EmptyBuffer<wchar_t>& EmptyOf(wchar_t)
{
    return g_emptyW;
}

void CheckArgument(bool bValid)
{
    if (!bValid) {
        AfxThrowInvalidArgException();
    }
}

template <typename XCHAR>
const XCHAR* OrEmpty(const XCHAR* psz)
{
    static const XCHAR szEmpty[1] = {};
    return psz ? psz : szEmpty;
}

/** Holds a variant's text form for as long as it is read. */
class CVariantText
{
  public:
    explicit CVariantText(const VARIANT& var)
    {
        VariantInit(&m_var);
        CheckArgument(SUCCEEDED(VariantChangeType(&m_var, const_cast<VARIANT*>(&var), 0, VT_BSTR)));
    }
    ~CVariantText() { VariantClear(&m_var); }
    CVariantText(const CVariantText&) = delete;
    CVariantText& operator=(const CVariantText&) = delete;
    BSTR Get() const { return m_var.bstrVal; }

  private:
    VARIANT m_var;
};
} // namespace

/* Buffers */

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::NilBuffer() noexcept
{
    return EmptyOf(T()).achText;
}

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
void CStringT<T>::AssignConverted(PCYSTR pch, int nLength)
{
    CheckArgument(nLength >= 0 && (pch || nLength == 0));
    if (nLength == 0) {
        Empty();
        return;
    }
    const int nDest = Chars<T>::Convert(pch, nLength, nullptr, 0);
    PXSTR const psz = AllocBuffer(nDest);
    Chars<T>::Convert(pch, nLength, psz, nDest);
    Attach(psz);
    SetDataLength(nDest);
}

template <typename T>
void CStringT<T>::AssignVariant(const VARIANT& var)
{
    if (V_VT(&var) == VT_EMPTY || V_VT(&var) == VT_NULL) {
        Empty();
        return;
    }
    const CVariantText text(var);
    *this = CStringT(static_cast<const wchar_t*>(text.Get()), static_cast<int>(SysStringLen(text.Get())));
}

/** A pointer made by MAKEINTRESOURCE names a string resource. */
template <typename T>
bool CStringT<T>::LoadIfResource(const void* psz)
{
    if (!psz || !IS_INTRESOURCE(psz)) {
        return false;
    }
    LoadString(static_cast<UINT>(reinterpret_cast<UINT_PTR>(psz)));
    return true;
}

/* Construction */

template <typename T>
CStringT<T>::CStringT() noexcept : m_pszData(NilBuffer())
{
}

template <typename T>
CStringT<T>::CStringT(const CStringT& strSrc) : m_pszData(ShareBuffer(strSrc))
{
}

template <typename T>
CStringT<T>::CStringT(CStringT&& strSrc) noexcept : CStringT()
{
    *this = std::move(strSrc);
}

template <typename T>
CStringT<T>::CStringT(const CStringT<YCHAR>& strSrc) : CStringT()
{
    AssignConverted(strSrc.m_pszData, strSrc.GetLength());
}

template <typename T>
CStringT<T>::CStringT(PCXSTR pszSrc) : CStringT()
{
    if (!LoadIfResource(pszSrc)) {
        SetString(pszSrc);
    }
}

template <typename T>
CStringT<T>::CStringT(PCYSTR pszSrc) : CStringT()
{
    if (!LoadIfResource(pszSrc)) {
        *this = pszSrc;
    }
}

template <typename T>
CStringT<T>::CStringT(const unsigned char* pszSrc) : CStringT(reinterpret_cast<const char*>(pszSrc))
{
}

template <typename T>
CStringT<T>::CStringT(const VARIANT& varSrc) : CStringT()
{
    AssignVariant(varSrc);
}

template <typename T>
CStringT<T>::CStringT(char ch, int nLength) : CStringT()
{
    CheckArgument(nLength >= 0);
    if constexpr (std::is_same_v<T, char>) {
        if (nLength > 0) {
            memset(GetBufferSetLength(nLength), ch, static_cast<size_t>(nLength));
        }
    } else {
        *this = CStringT(CStringT<char>(ch, nLength));
    }
}

template <typename T>
CStringT<T>::CStringT(wchar_t ch, int nLength) : CStringT()
{
    CheckArgument(nLength >= 0);
    if constexpr (std::is_same_v<T, wchar_t>) {
        if (nLength > 0) {
            std::fill_n(GetBufferSetLength(nLength), nLength, ch);
        }
    } else {
        *this = CStringT(CStringT<wchar_t>(ch, nLength));
    }
}

template <typename T>
CStringT<T>::CStringT(PCXSTR pch, int nLength) : CStringT()
{
    SetString(pch, nLength);
}

template <typename T>
CStringT<T>::CStringT(PCYSTR pch, int nLength) : CStringT()
{
    AssignConverted(pch, nLength);
}

template <typename T>
CStringT<T>::~CStringT() noexcept
{
    ReleaseRef(m_pszData);
}

/* Assignment */

template <typename T>
CStringT<T>& CStringT<T>::operator=(const CStringT& strSrc)
{
    if (m_pszData == strSrc.m_pszData) {
        return *this;
    }
    if (GetData()->IsLocked()) {
        SetString(strSrc, strSrc.GetLength());
    } else {
        Attach(ShareBuffer(strSrc));
    }
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator=(CStringT&& strSrc) noexcept
{
    if (this == &strSrc) {
        return *this;
    }
    Attach(std::exchange(strSrc.m_pszData, NilBuffer()));
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator=(const CStringT<YCHAR>& strSrc)
{
    AssignConverted(strSrc.m_pszData, strSrc.GetLength());
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator=(PCXSTR pszSrc)
{
    SetString(pszSrc);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator=(PCYSTR pszSrc)
{
    AssignConverted(pszSrc, pszSrc ? Chars<YCHAR>::Length(pszSrc) : 0);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator=(const unsigned char* pszSrc)
{
    return *this = reinterpret_cast<const char*>(pszSrc);
}

template <typename T>
CStringT<T>& CStringT<T>::operator=(char ch)
{
    return *this = CStringT(ch);
}

template <typename T>
CStringT<T>& CStringT<T>::operator=(wchar_t ch)
{
    return *this = CStringT(ch);
}

template <typename T>
CStringT<T>& CStringT<T>::operator=(const VARIANT& varSrc)
{
    AssignVariant(varSrc);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator+=(const CStringT& str)
{
    Append(str);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator+=(const CStringT<YCHAR>& str)
{
    Append(CStringT(str));
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator+=(PCXSTR pszSrc)
{
    Append(pszSrc);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator+=(PCYSTR pszSrc)
{
    CStringT str;
    str = pszSrc;
    Append(str);
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator+=(char ch)
{
    if constexpr (std::is_same_v<T, char>) {
        AppendChar(ch);
    } else {
        Append(CStringT(ch));
    }
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator+=(unsigned char ch)
{
    return *this += static_cast<char>(ch);
}

template <typename T>
CStringT<T>& CStringT<T>::operator+=(wchar_t ch)
{
    if constexpr (std::is_same_v<T, wchar_t>) {
        AppendChar(ch);
    } else {
        Append(CStringT(ch));
    }
    return *this;
}

template <typename T>
CStringT<T>& CStringT<T>::operator+=(const VARIANT& var)
{
    Append(CStringT(var));
    return *this;
}

template <typename T>
CStringT<T> CStringT<T>::Concatenate(PCXSTR psz1, int nLength1, PCXSTR psz2, int nLength2)
{
    CStringT str;
    if (nLength1 == 0 && nLength2 == 0) {
        return str;
    }
    if (nLength1 > INT_MAX - nLength2) {
        AfxThrowMemoryException();
    }
    str.m_pszData = AllocBuffer(nLength1 + nLength2);
    CopyChars(str.m_pszData, OrEmpty(psz1), nLength1);
    CopyChars(str.m_pszData + nLength1, OrEmpty(psz2), nLength2);
    str.SetDataLength(nLength1 + nLength2);
    return str;
}

/* Content */

template <typename T>
void CStringT<T>::Empty() noexcept
{
    if (GetData()->IsLocked()) {
        SetDataLength(0);
    } else {
        Attach(NilBuffer());
    }
}

template <typename T>
typename CStringT<T>::XCHAR CStringT<T>::GetAt(int iChar) const
{
    CheckArgument(iChar >= 0 && iChar <= GetLength());
    return m_pszData[iChar];
}

template <typename T>
void CStringT<T>::SetAt(int iChar, XCHAR ch)
{
    const int nLength = GetLength();
    CheckArgument(iChar >= 0 && iChar < nLength);
    MakeOwn(nLength);
    m_pszData[iChar] = ch;
}

template <typename T>
void CStringT<T>::SetString(PCXSTR pszSrc)
{
    SetString(pszSrc, StringLength(pszSrc));
}

template <typename T>
void CStringT<T>::SetString(PCXSTR pszSrc, int nLength)
{
    CheckArgument(nLength >= 0 && (pszSrc || nLength == 0));
    if (nLength == 0) {
        Empty();
        return;
    }
    if (GetData()->IsShared() || m_pszData == NilBuffer() || GetData()->nAllocLength < nLength) {
        const LONG nRefs = GetData()->IsLocked() ? -1 : 1;
        PXSTR const psz = AllocBuffer(nLength);
        CopyChars(psz, pszSrc, nLength);
        Attach(psz);
        GetData()->nRefs = nRefs;
    } else {
        CopyCharsOverlapped(m_pszData, pszSrc, nLength);
    }
    SetDataLength(nLength);
}

template <typename T>
void CStringT<T>::Append(PCXSTR pszSrc)
{
    Append(pszSrc, StringLength(pszSrc));
}

template <typename T>
void CStringT<T>::Append(PCXSTR pszSrc, int nLength)
{
    CheckArgument(nLength >= 0 && (pszSrc || nLength == 0));
    if (nLength == 0) {
        return;
    }
    const int nOldLength = GetLength();
    if (nLength > INT_MAX - nOldLength) {
        AfxThrowMemoryException();
    }
    const bool bInside = pszSrc >= m_pszData && pszSrc <= m_pszData + nOldLength;
    const INT_PTR nOffset = bInside ? pszSrc - m_pszData : 0;
    MakeOwn(nOldLength + nLength);
    CopyCharsOverlapped(m_pszData + nOldLength, bInside ? m_pszData + nOffset : pszSrc, nLength);
    SetDataLength(nOldLength + nLength);
}

template <typename T>
void CStringT<T>::Append(const CStringT& strSrc)
{
    if (IsEmpty() && !GetData()->IsLocked()) {
        *this = strSrc;
    } else {
        Append(strSrc.m_pszData, strSrc.GetLength());
    }
}

template <typename T>
void CStringT<T>::AppendChar(XCHAR ch)
{
    Append(&ch, 1);
}

template <typename T>
int CStringT<T>::StringLength(PCXSTR psz) noexcept
{
    return psz ? Chars<T>::Length(psz) : 0;
}

/* Direct access */

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::GetBuffer()
{
    MakeOwn(GetLength());
    return m_pszData;
}

template <typename T>
typename CStringT<T>::PXSTR CStringT<T>::GetBuffer(int nMinBufferLength)
{
    CheckArgument(nMinBufferLength >= 0);
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
    CheckArgument(nNewLength >= 0 && nNewLength <= GetData()->nAllocLength);
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
    CheckArgument(nNewLength >= 0);
    if (nNewLength < GetLength()) {
        GetBufferSetLength(nNewLength);
    }
}

/* Comparison */

template <typename T>
int CStringT<T>::Compare(PCXSTR psz) const
{
    return Chars<T>::Compare(m_pszData, OrEmpty(psz));
}

template <typename T>
int CStringT<T>::CompareNoCase(PCXSTR psz) const
{
    return Chars<T>::CompareNoCase(m_pszData, OrEmpty(psz));
}

template <typename T>
int CStringT<T>::Collate(PCXSTR psz) const
{
    return Chars<T>::Collate(m_pszData, OrEmpty(psz));
}

template <typename T>
int CStringT<T>::CollateNoCase(PCXSTR psz) const
{
    return Chars<T>::CollateNoCase(m_pszData, OrEmpty(psz));
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
    CheckArgument(pszCharSet != nullptr);
    return Left(Chars<T>::SpanOf(m_pszData, pszCharSet));
}

template <typename T>
CStringT<T> CStringT<T>::SpanExcluding(PCXSTR pszCharSet) const
{
    CheckArgument(pszCharSet != nullptr);
    return Left(Chars<T>::SpanNotOf(m_pszData, pszCharSet));
}

template <typename T>
CStringT<T> CStringT<T>::Tokenize(PCXSTR pszTokens, int& iStart) const
{
    CheckArgument(iStart >= 0);
    const int nLength = GetLength();
    if (iStart < nLength && !*OrEmpty(pszTokens)) {
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
    const PCXSTR psz = Chars<T>::FindAnyOf(m_pszData, OrEmpty(pszCharSet));
    return psz ? static_cast<int>(psz - m_pszData) : -1;
}

#include "strchange.inl"
#include "strformat.inl"

template class CStringT<char>;
template class CStringT<wchar_t>;
