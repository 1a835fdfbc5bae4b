#pragma once

/** @file
 *  Strings: CStringT over `char` and `wchar_t`, known as CStringA, CStringW and CString.
 *
 *  A string is one pointer to a shared, counted buffer: copying is cheap and thread-safe, the first change of a shared
 *  buffer makes it a string's own. Conversions between the widths use the code page of the thread. A CString never goes
 *  through `...`: pass `GetString()`. */

#include <afx/config.h>

#include <type_traits>

/** Header that stands before the characters of every string buffer. */
struct CStringData
{
    volatile LONG nRefs; ///< number of owners; -1 while the only owner has it locked; 0 for the empty buffer
    int nDataLength;     ///< characters in use, without the terminator
    int nAllocLength;    ///< characters that fit, without the terminator
    int nReserved;

    bool IsShared() const { return nRefs > 1; }
    bool IsLocked() const { return nRefs < 0; }
};

template <typename BaseType>
class CStringT
{
    static_assert(std::is_same_v<BaseType, char> || std::is_same_v<BaseType, wchar_t>);

  public:
    typedef BaseType XCHAR;                                                          ///< own character
    typedef std::conditional_t<std::is_same_v<BaseType, char>, wchar_t, char> YCHAR; ///< the other width
    typedef XCHAR* PXSTR;
    typedef const XCHAR* PCXSTR;
    typedef YCHAR* PYSTR;
    typedef const YCHAR* PCYSTR;

    /** @name Construction
     *  A null pointer makes an empty string. A pointer made by MAKEINTRESOURCE loads that string resource. A negative
     *  length or count raises CInvalidArgException.
     *  @{ */
    AFX_LIB CStringT() noexcept;
    AFX_LIB CStringT(const CStringT& strSrc);
    AFX_LIB CStringT(CStringT&& strSrc) noexcept;
    AFX_LIB CStringT(const CStringT<YCHAR>& strSrc);
    AFX_LIB CStringT(PCXSTR pszSrc);
    AFX_LIB CStringT(PCYSTR pszSrc);
    AFX_LIB CStringT(const unsigned char* pszSrc);
    AFX_LIB CStringT(const VARIANT& varSrc);
    AFX_LIB explicit CStringT(char ch, int nLength = 1);
    AFX_LIB explicit CStringT(wchar_t ch, int nLength = 1);
    AFX_LIB CStringT(PCXSTR pch, int nLength);
    AFX_LIB CStringT(PCYSTR pch, int nLength);
    AFX_LIB ~CStringT() noexcept;
    /** @} */

    AFX_LIB CStringT& operator=(const CStringT& strSrc);
    AFX_LIB CStringT& operator=(CStringT&& strSrc) noexcept;
    AFX_LIB CStringT& operator=(const CStringT<YCHAR>& strSrc);
    AFX_LIB CStringT& operator=(PCXSTR pszSrc);
    AFX_LIB CStringT& operator=(PCYSTR pszSrc);
    AFX_LIB CStringT& operator=(const unsigned char* pszSrc);
    AFX_LIB CStringT& operator=(char ch);
    AFX_LIB CStringT& operator=(wchar_t ch);
    AFX_LIB CStringT& operator=(const VARIANT& varSrc);

    AFX_LIB CStringT& operator+=(const CStringT& str);
    AFX_LIB CStringT& operator+=(const CStringT<YCHAR>& str);
    AFX_LIB CStringT& operator+=(PCXSTR pszSrc);
    AFX_LIB CStringT& operator+=(PCYSTR pszSrc);
    AFX_LIB CStringT& operator+=(char ch);
    AFX_LIB CStringT& operator+=(unsigned char ch);
    AFX_LIB CStringT& operator+=(wchar_t ch);
    AFX_LIB CStringT& operator+=(const VARIANT& var);

    /** @name Content
     *  @{ */
    operator PCXSTR() const noexcept { return m_pszData; }
    PCXSTR GetString() const noexcept { return m_pszData; }
    int GetLength() const noexcept { return GetData()->nDataLength; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    int GetAllocLength() const noexcept { return GetData()->nAllocLength; }
    AFX_LIB void Empty() noexcept;
    /** Character at an index, 0 to GetLength(); the last is the terminator. Else CInvalidArgException is raised. */
    AFX_LIB XCHAR GetAt(int iChar) const;
    XCHAR operator[](int iChar) const { return GetAt(iChar); }
    /** Replaces the character at an index, 0 to GetLength() - 1; else CInvalidArgException is raised. */
    AFX_LIB void SetAt(int iChar, XCHAR ch);
    AFX_LIB void SetString(PCXSTR pszSrc);
    /** @param nLength characters to take; pszSrc may point into this string */
    AFX_LIB void SetString(PCXSTR pszSrc, int nLength);
    AFX_LIB void Append(PCXSTR pszSrc);
    AFX_LIB void Append(PCXSTR pszSrc, int nLength);
    AFX_LIB void Append(const CStringT& strSrc);
    AFX_LIB void AppendChar(XCHAR ch);
    /** @} */

    /** @name Direct access to the buffer
     *  @{ */
    /** Gives a writable buffer of the string's own; call ReleaseBuffer before any other use of the string. */
    AFX_LIB PXSTR GetBuffer();
    /** @param nMinBufferLength characters that shall fit, without the terminator */
    AFX_LIB PXSTR GetBuffer(int nMinBufferLength);
    AFX_LIB PXSTR GetBufferSetLength(int nLength);
    /** @param nNewLength new length in characters, -1 to look for the terminator */
    AFX_LIB void ReleaseBuffer(int nNewLength = -1);
    AFX_LIB void ReleaseBufferSetLength(int nNewLength);
    /** Makes the buffer unshared and keeps it so until UnlockBuffer: copies of the string copy the characters. */
    AFX_LIB PXSTR LockBuffer();
    AFX_LIB void UnlockBuffer() noexcept;
    AFX_LIB void FreeExtra();
    /** @param nLength characters to make room for */
    AFX_LIB void Preallocate(int nLength);
    /** Cuts the string to at most its first nNewLength characters. */
    AFX_LIB void Truncate(int nNewLength);
    /** @} */

    /** @name Comparison: below, at or above zero
     *  @{ */
    AFX_LIB int Compare(PCXSTR psz) const;
    AFX_LIB int CompareNoCase(PCXSTR psz) const;
    AFX_LIB int Collate(PCXSTR psz) const;
    AFX_LIB int CollateNoCase(PCXSTR psz) const;
    /** @} */

    /** @name Parts. Indexes and counts outside the string are moved to its ends.
     *  @{ */
    AFX_LIB CStringT Mid(int iFirst) const;
    AFX_LIB CStringT Mid(int iFirst, int nCount) const;
    AFX_LIB CStringT Left(int nCount) const;
    AFX_LIB CStringT Right(int nCount) const;
    AFX_LIB CStringT SpanIncluding(PCXSTR pszCharSet) const;
    AFX_LIB CStringT SpanExcluding(PCXSTR pszCharSet) const;
    /** Gives the next part between delimiters.
     *  @param pszTokens delimiter characters; empty gives the whole rest
     *  @param iStart    index to begin at, moved on; -1 when there was no further part
     *  @return the part, empty when there is none */
    AFX_LIB CStringT Tokenize(PCXSTR pszTokens, int& iStart) const;
    /** @} */

    /** @name Changes
     *  @{ */
    AFX_LIB CStringT& MakeUpper();
    AFX_LIB CStringT& MakeLower();
    AFX_LIB CStringT& MakeReverse();
    /** @return number of replaced characters or substrings */
    AFX_LIB int Replace(XCHAR chOld, XCHAR chNew);
    AFX_LIB int Replace(PCXSTR pszOld, PCXSTR pszNew);
    /** @return number of removed characters */
    AFX_LIB int Remove(XCHAR chRemove);
    /** Inserts before an index, which is moved to the ends when outside.
     *  @return the new length */
    AFX_LIB int Insert(int iIndex, XCHAR ch);
    AFX_LIB int Insert(int iIndex, PCXSTR psz);
    /** @return the new length */
    AFX_LIB int Delete(int iIndex, int nCount = 1);
    AFX_LIB CStringT& Trim();
    AFX_LIB CStringT& Trim(XCHAR chTarget);
    AFX_LIB CStringT& Trim(PCXSTR pszTargets);
    AFX_LIB CStringT& TrimLeft();
    AFX_LIB CStringT& TrimLeft(XCHAR chTarget);
    AFX_LIB CStringT& TrimLeft(PCXSTR pszTargets);
    AFX_LIB CStringT& TrimRight();
    AFX_LIB CStringT& TrimRight(XCHAR chTarget);
    AFX_LIB CStringT& TrimRight(PCXSTR pszTargets);
    /** Changes between the ANSI and the OEM code page; only for narrow strings. */
    void AnsiToOem() requires std::is_same_v<BaseType, char> { ConvertCodePage(true); }
    void OemToAnsi() requires std::is_same_v<BaseType, char> { ConvertCodePage(false); }
    /** @} */

    /** @name Search: index of the first hit, -1 for none
     *  @{ */
    AFX_LIB int Find(XCHAR ch, int iStart = 0) const noexcept;
    AFX_LIB int Find(PCXSTR pszSub, int iStart = 0) const noexcept;
    AFX_LIB int ReverseFind(XCHAR ch) const noexcept;
    AFX_LIB int FindOneOf(PCXSTR pszCharSet) const noexcept;
    /** @} */

    /** @name Formatted output with the system's meaning of the conversions (`%s` takes a string of the own width)
     *  A null format raises CInvalidArgException; a missing format resource leaves an empty format.
     *  The arguments may point into this string.
     *  @{ */
    AFX_LIB void AFX_CDECL Format(PCXSTR pszFormat, ...);
    AFX_LIB void AFX_CDECL Format(UINT nFormatID, ...);
    AFX_LIB void FormatV(PCXSTR pszFormat, va_list args);
    AFX_LIB void AFX_CDECL AppendFormat(PCXSTR pszFormat, ...);
    AFX_LIB void AFX_CDECL AppendFormat(UINT nFormatID, ...);
    AFX_LIB void AppendFormatV(PCXSTR pszFormat, va_list args);
    /** As the system's FormatMessage, with `%1!d!` inserts. Raises CMemoryException when the system refuses. */
    AFX_LIB void AFX_CDECL FormatMessage(PCXSTR pszFormat, ...);
    AFX_LIB void AFX_CDECL FormatMessage(UINT nFormatID, ...);
    AFX_LIB void FormatMessageV(PCXSTR pszFormat, va_list* pArgList);
    /** @} */

    /** @name System
     *  @{ */
    /** Loads a string resource through the resource search chain of the current module.
     *  @return FALSE when it is not found; the string is then unchanged */
    AFX_LIB BOOL LoadString(UINT nID);
    AFX_LIB BOOL LoadString(HINSTANCE hInstance, UINT nID);
    AFX_LIB BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);
    /** @return a new BSTR, owned by the caller */
    AFX_LIB BSTR AllocSysString() const;
    /** Replaces the content of a BSTR.
     *  @return the new value of *pbstr */
    AFX_LIB BSTR SetSysString(BSTR* pbstr) const;
    /** @return FALSE when the variable is not set; the string is then empty */
    AFX_LIB BOOL GetEnvironmentVariable(PCXSTR pszVar);
    /** @} */

    /** Copies characters between buffers that do not overlap. */
    static void CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept
    {
        memcpy(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(XCHAR));
    }
    static void CopyChars(XCHAR* pchDest, size_t nDestLen, const XCHAR* pchSrc, int nChars) noexcept
    {
        const int nRoom = static_cast<int>(nDestLen);
        CopyChars(pchDest, pchSrc, nRoom < nChars ? nRoom : nChars);
    }
    static void CopyCharsOverlapped(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept
    {
        memmove(pchDest, pchSrc, static_cast<size_t>(nChars) * sizeof(XCHAR));
    }
    /** Length of a terminated string; 0 for null. */
    AFX_LIB static int StringLength(PCXSTR psz) noexcept;

    friend CStringT operator+(const CStringT& str1, const CStringT& str2)
    {
        return Concatenate(str1, str1.GetLength(), str2, str2.GetLength());
    }
    friend CStringT operator+(const CStringT& str1, PCXSTR psz2)
    {
        return Concatenate(str1, str1.GetLength(), psz2, StringLength(psz2));
    }
    friend CStringT operator+(PCXSTR psz1, const CStringT& str2)
    {
        return Concatenate(psz1, StringLength(psz1), str2, str2.GetLength());
    }
    friend CStringT operator+(const CStringT& str1, PCYSTR psz2) { return str1 + CStringT(psz2); }
    friend CStringT operator+(PCYSTR psz1, const CStringT& str2) { return CStringT(psz1) + str2; }
    friend CStringT operator+(const CStringT& str1, char ch2) { return str1 + CStringT(ch2); }
    friend CStringT operator+(const CStringT& str1, wchar_t ch2) { return str1 + CStringT(ch2); }
    friend CStringT operator+(char ch1, const CStringT& str2) { return CStringT(ch1) + str2; }
    friend CStringT operator+(wchar_t ch1, const CStringT& str2) { return CStringT(ch1) + str2; }

    /** @name Comparison by character code
     *  A null pointer compares as an empty string; a single character equals a string of just that character.
     *  @{ */
    friend bool operator==(const CStringT& str1, const CStringT& str2) { return Order(str1, str2) == 0; }
    friend bool operator==(const CStringT& str1, PCXSTR psz2) { return str1.Compare(psz2) == 0; }
    friend bool operator==(PCXSTR psz1, const CStringT& str2) { return str2.Compare(psz1) == 0; }
    friend bool operator==(const CStringT& str1, PCYSTR psz2) { return str1 == CStringT(psz2); }
    friend bool operator==(PCYSTR psz1, const CStringT& str2) { return CStringT(psz1) == str2; }
    friend bool operator!=(const CStringT& str1, const CStringT& str2) { return Order(str1, str2) != 0; }
    friend bool operator!=(const CStringT& str1, PCXSTR psz2) { return str1.Compare(psz2) != 0; }
    friend bool operator!=(PCXSTR psz1, const CStringT& str2) { return str2.Compare(psz1) != 0; }
    friend bool operator!=(const CStringT& str1, PCYSTR psz2) { return str1 != CStringT(psz2); }
    friend bool operator!=(PCYSTR psz1, const CStringT& str2) { return CStringT(psz1) != str2; }
    friend bool operator<(const CStringT& str1, const CStringT& str2) { return Order(str1, str2) < 0; }
    friend bool operator<(const CStringT& str1, PCXSTR psz2) { return str1.Compare(psz2) < 0; }
    friend bool operator<(PCXSTR psz1, const CStringT& str2) { return str2.Compare(psz1) > 0; }
    friend bool operator<(const CStringT& str1, PCYSTR psz2) { return str1 < CStringT(psz2); }
    friend bool operator<(PCYSTR psz1, const CStringT& str2) { return CStringT(psz1) < str2; }
    friend bool operator>(const CStringT& str1, const CStringT& str2) { return Order(str1, str2) > 0; }
    friend bool operator>(const CStringT& str1, PCXSTR psz2) { return str1.Compare(psz2) > 0; }
    friend bool operator>(PCXSTR psz1, const CStringT& str2) { return str2.Compare(psz1) < 0; }
    friend bool operator>(const CStringT& str1, PCYSTR psz2) { return str1 > CStringT(psz2); }
    friend bool operator>(PCYSTR psz1, const CStringT& str2) { return CStringT(psz1) > str2; }
    friend bool operator<=(const CStringT& str1, const CStringT& str2) { return Order(str1, str2) <= 0; }
    friend bool operator<=(const CStringT& str1, PCXSTR psz2) { return str1.Compare(psz2) <= 0; }
    friend bool operator<=(PCXSTR psz1, const CStringT& str2) { return str2.Compare(psz1) >= 0; }
    friend bool operator<=(const CStringT& str1, PCYSTR psz2) { return str1 <= CStringT(psz2); }
    friend bool operator<=(PCYSTR psz1, const CStringT& str2) { return CStringT(psz1) <= str2; }
    friend bool operator>=(const CStringT& str1, const CStringT& str2) { return Order(str1, str2) >= 0; }
    friend bool operator>=(const CStringT& str1, PCXSTR psz2) { return str1.Compare(psz2) >= 0; }
    friend bool operator>=(PCXSTR psz1, const CStringT& str2) { return str2.Compare(psz1) <= 0; }
    friend bool operator>=(const CStringT& str1, PCYSTR psz2) { return str1 >= CStringT(psz2); }
    friend bool operator>=(PCYSTR psz1, const CStringT& str2) { return CStringT(psz1) >= str2; }
    friend bool operator==(const CStringT& str1, XCHAR ch2) { return IsChar(str1, ch2) == true; }
    friend bool operator==(XCHAR ch1, const CStringT& str2) { return IsChar(str2, ch1) == true; }
    friend bool operator!=(const CStringT& str1, XCHAR ch2) { return IsChar(str1, ch2) != true; }
    friend bool operator!=(XCHAR ch1, const CStringT& str2) { return IsChar(str2, ch1) != true; }
    /** @} */

  private:
    friend class CStringT<YCHAR>;

    CStringData* GetData() const noexcept { return reinterpret_cast<CStringData*>(m_pszData) - 1; }
    static bool IsChar(const CStringT& str, XCHAR ch) { return str.GetLength() == 1 && str.m_pszData[0] == ch; }
    AFX_LIB static int Order(const CStringT& str1, const CStringT& str2) noexcept;
    AFX_LIB static CStringT Concatenate(PCXSTR psz1, int nLength1, PCXSTR psz2, int nLength2);
    AFX_LIB void ConvertCodePage(bool bToOem);

    static PXSTR NilBuffer() noexcept;
    static PXSTR AllocBuffer(int nLength);
    static PXSTR ShareBuffer(const CStringT& strSrc);
    static void ReleaseRef(PXSTR pszData) noexcept;
    void Attach(PXSTR pszData) noexcept;
    void SetDataLength(int nLength) noexcept;
    void MakeOwn(int nMinAlloc);
    void AssignConverted(PCYSTR pch, int nLength);
    void AssignVariant(const VARIANT& var);
    bool LoadIfResource(const void* psz);
    void TrimEnds(PCXSTR pszTargets, bool bLeft, bool bRight);

    PXSTR m_pszData;
};

typedef CStringT<char> CStringA;
typedef CStringT<wchar_t> CStringW;
typedef CStringT<TCHAR> CString;

static_assert(sizeof(CString) == sizeof(void*));

/** Loads a string resource through the resource search chain.
 *  @param nMaxBuf size of the buffer in characters, at least 1
 *  @return length of the loaded string; 0 when not found, the buffer is then empty */
AFX_LIB int AFXAPI AfxLoadString(UINT nID, LPWSTR lpszBuf, UINT nMaxBuf = 256);

/** Gives one part of a string.
 *  @param iSubString index of the part, from 0
 *  @param chSep      separator
 *  @return FALSE when there are not so many parts; rString is then empty */
AFX_LIB BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep = L'\n');

/** Replaces `%1` ... `%9`, `%A` ... `%Z` in a format (or a format resource) by the given strings.
 *  A number above nString gives "?". */
AFX_LIB void AFXAPI AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString);
AFX_LIB void AFXAPI AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz, int nString);
AFX_LIB void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
AFX_LIB void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
