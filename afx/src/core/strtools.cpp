#include "private.h"

namespace
{
/** Value of a placeholder character: 1 to 9, then A to Z; 0 for none. */
int PlaceholderNumber(TCHAR ch)
{
    if (ch >= L'1' && ch <= L'9') {
        return ch - L'0';
    }
    if (ch >= L'A' && ch <= L'Z') {
        return ch - L'A' + 10;
    }
    return 0;
}
} // namespace

int AFXAPI AfxLoadString(UINT nID, LPWSTR lpszBuf, UINT nMaxBuf)
{
    if (!lpszBuf || nMaxBuf == 0) {
        return 0;
    }
    *lpszBuf = 0;
    CString strText;
    if (!strText.LoadString(nID)) {
        return 0;
    }
    lstrcpynW(lpszBuf, strText, static_cast<int>(nMaxBuf));
    return lstrlenW(lpszBuf);
}

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep)
{
    const TCHAR* p = lpszFullString;
    for (; p && iSubString > 0; --iSubString) {
        p = wcschr(p, chSep);
        if (p) {
            ++p;
        }
    }
    if (!p || iSubString < 0) {
        rString.Empty();
        return FALSE;
    }
    const TCHAR* const pEnd = wcschr(p, chSep);
    rString.SetString(p, pEnd ? static_cast<int>(pEnd - p) : lstrlenW(p));
    return TRUE;
}

void AFXAPI AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz, int nString)
{
    CString strResult;
    for (const TCHAR* p = lpszFormat; p && *p; ++p) {
        const int nNumber = *p == L'%' ? PlaceholderNumber(p[1]) : 0;
        if (nNumber == 0) {
            strResult.AppendChar(*p);
            continue;
        }
        ++p;
        if (nNumber > nString) {
            strResult.AppendChar(L'?');
        } else {
            strResult.Append(rglpsz[nNumber - 1]);
        }
    }
    rString = strResult;
}

void AFXAPI AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString)
{
    CString strFormat;
    strFormat.LoadString(nIDS);
    AfxFormatStrings(rString, strFormat.GetString(), rglpsz, nString);
}

void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1)
{
    AfxFormatStrings(rString, nIDS, &lpsz1, 1);
}

void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2)
{
    const LPCTSTR rglpsz[] = {lpsz1, lpsz2};
    AfxFormatStrings(rString, nIDS, rglpsz, 2);
}
