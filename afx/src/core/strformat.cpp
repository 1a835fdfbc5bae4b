#include "strinternal.h"

#include <common/Owner.h>

template <typename T>
void CStringT<T>::FormatV(PCXSTR pszFormat, va_list args)
{
    AfxCheckArgument(pszFormat != nullptr);
    va_list argsForLength;
    va_copy(argsForLength, args);
    const int nLength = Chars<T>::FormattedLength(pszFormat, argsForLength);
    va_end(argsForLength);
    AfxCheckArgument(nLength >= 0);
    /* The result is built apart, because format and arguments may lie in this string. */
    CStringT strResult;
    if (nLength > 0) {
        PXSTR const psz = strResult.GetBuffer(nLength);
        Chars<T>::Format(psz, nLength + 1, pszFormat, args);
        strResult.ReleaseBufferSetLength(nLength);
    }
    *this = strResult;
}

template <typename T>
void CStringT<T>::AppendFormatV(PCXSTR pszFormat, va_list args)
{
    CStringT str;
    str.FormatV(pszFormat, args);
    Append(str);
}

template <typename T>
void AFX_CDECL CStringT<T>::Format(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

template <typename T>
void AFX_CDECL CStringT<T>::Format(UINT nFormatID, ...)
{
    CStringT strFormat;
    strFormat.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatV(strFormat, args);
    va_end(args);
}

template <typename T>
void AFX_CDECL CStringT<T>::AppendFormat(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

template <typename T>
void AFX_CDECL CStringT<T>::AppendFormat(UINT nFormatID, ...)
{
    CStringT strFormat;
    strFormat.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    AppendFormatV(strFormat, args);
    va_end(args);
}

template <typename T>
void CStringT<T>::FormatMessageV(PCXSTR pszFormat, va_list* pArgList)
{
    AfxCheckArgument(pszFormat != nullptr);
    own::LocalMemory text;
    SetLastError(ERROR_SUCCESS);
    const DWORD nLength = Chars<T>::FormatSystem(pszFormat, reinterpret_cast<T**>(text.Receive()), pArgList);
    if (nLength == 0 && GetLastError() != ERROR_SUCCESS) {
        AfxThrowMemoryException();
    }
    SetString(static_cast<PCXSTR>(text.Get()), static_cast<int>(nLength));
}

template <typename T>
void AFX_CDECL CStringT<T>::FormatMessage(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatMessageV(pszFormat, &args);
    va_end(args);
}

template <typename T>
void AFX_CDECL CStringT<T>::FormatMessage(UINT nFormatID, ...)
{
    CStringT strFormat;
    strFormat.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatMessageV(strFormat, &args);
    va_end(args);
}

template <typename T>
BOOL CStringT<T>::LoadString(UINT nID)
{
    const HINSTANCE hInstance = AfxFindStringResourceHandle(nID);
    return hInstance && LoadString(hInstance, nID);
}

template <typename T>
BOOL CStringT<T>::LoadString(HINSTANCE hInstance, UINT nID)
{
    return LoadString(hInstance, nID, MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL));
}

template <typename T>
BOOL CStringT<T>::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    const AfxStringResource resource = AfxLocateString(hInstance, nID, wLanguageID);
    if (!resource.lpsz) {
        return FALSE;
    }
    *this = CStringT(resource.lpsz, resource.nLength);
    return TRUE;
}

template <typename T>
BSTR CStringT<T>::AllocSysString() const
{
    const CStringT<wchar_t> strWide(*this);
    BSTR const bstr = SysAllocStringLen(strWide.GetString(), static_cast<UINT>(strWide.GetLength()));
    if (!bstr) {
        AfxThrowMemoryException();
    }
    return bstr;
}

template <typename T>
BSTR CStringT<T>::SetSysString(BSTR* pbstr) const
{
    AfxCheckArgument(pbstr != nullptr);
    const CStringT<wchar_t> strWide(*this);
    if (!SysReAllocStringLen(pbstr, strWide.GetString(), static_cast<UINT>(strWide.GetLength()))) {
        AfxThrowMemoryException();
    }
    return *pbstr;
}

template <typename T>
BOOL CStringT<T>::GetEnvironmentVariable(PCXSTR pszVar)
{
    AfxCheckArgument(pszVar != nullptr);
    SetLastError(ERROR_SUCCESS);
    DWORD nSize = Chars<T>::Environment(pszVar, nullptr, 0);
    CStringT strValue;
    while (nSize > 0) {
        PXSTR const psz = strValue.GetBuffer(static_cast<int>(nSize));
        const DWORD nLength = Chars<T>::Environment(pszVar, psz, nSize);
        strValue.ReleaseBufferSetLength(nLength < nSize ? static_cast<int>(nLength) : 0);
        if (nLength < nSize) {
            break;
        }
        nSize = nLength;
    }
    const BOOL bFound = !strValue.IsEmpty() || (nSize > 0 && GetLastError() == ERROR_SUCCESS);
    *this = strValue;
    return bFound;
}

template class CStringT<char>;
template class CStringT<wchar_t>;
