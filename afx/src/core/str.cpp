#include "strinternal.h"

namespace
{
/** Holds a variant's text form for as long as it is read. */
class VariantText
{
  public:
    explicit VariantText(const VARIANT& var)
    {
        VariantInit(&m_var);
        AfxCheckArgument(SUCCEEDED(VariantChangeType(&m_var, const_cast<VARIANT*>(&var), 0, VT_BSTR)));
    }
    ~VariantText() { VariantClear(&m_var); }
    VariantText(const VariantText&) = delete;
    VariantText& operator=(const VariantText&) = delete;
    BSTR Get() const { return m_var.bstrVal; }

  private:
    VARIANT m_var;
};
} // namespace

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
    AfxCheckArgument(nLength >= 0);
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
    AfxCheckArgument(nLength >= 0);
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
    CopyChars(str.m_pszData, AfxOrEmpty(psz1), nLength1);
    CopyChars(str.m_pszData + nLength1, AfxOrEmpty(psz2), nLength2);
    str.SetDataLength(nLength1 + nLength2);
    return str;
}

template <typename T>
void CStringT<T>::AssignConverted(PCYSTR pch, int nLength)
{
    AfxCheckArgument(nLength >= 0 && (pch || nLength == 0));
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
    const VariantText text(var);
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
    AfxCheckArgument(iChar >= 0 && iChar <= GetLength());
    return m_pszData[iChar];
}

template <typename T>
void CStringT<T>::SetAt(int iChar, XCHAR ch)
{
    const int nLength = GetLength();
    AfxCheckArgument(iChar >= 0 && iChar < nLength);
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
    AfxCheckArgument(nLength >= 0 && (pszSrc || nLength == 0));
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
    AfxCheckArgument(nLength >= 0 && (pszSrc || nLength == 0));
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

template class CStringT<char>;
template class CStringT<wchar_t>;
