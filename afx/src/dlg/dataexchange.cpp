#include "wnd/ask.h"

#include <afxwin.h>

#include <cerrno>
#include <limits>
#include <string>

namespace
{
const LPCTSTR kAskWholeNumber = _T("Please enter a whole number.");
const LPCTSTR kAskNumber = _T("Please enter a number.");
const LPCTSTR kAskUnsigned = _T("Please enter a whole number that is not negative.");

CString ControlText(HWND hWnd)
{
    CString strText;
    const int nLength = ::GetWindowTextLength(hWnd);
    if (nLength > 0) {
        ::GetWindowText(hWnd, strText.GetBufferSetLength(nLength), nLength + 1);
        strText.ReleaseBuffer();
    }
    return strText;
}

void Refuse(CDataExchange* pDX, LPCTSTR lpszMessage)
{
    AfxMessageBox(lpszMessage, MB_OK | MB_ICONEXCLAMATION);
    pDX->Fail();
}

bool OnlyBlanksFollow(const wchar_t* p)
{
    while (::iswspace(*p)) {
        ++p;
    }
    return *p == 0;
}

/** Reads a number from text; false when the text is something else or the value does not fit. */
template <class T>
bool ParseInteger(const CString& strText, T& value)
{
    const wchar_t* p = strText;
    wchar_t* pEnd = nullptr;
    while (::iswspace(*p)) {
        ++p;
    }
    errno = 0;
    if constexpr (std::is_signed_v<T>) {
        const long long n = ::wcstoll(p, &pEnd, 10);
        if (n < (std::numeric_limits<T>::min)() || n > (std::numeric_limits<T>::max)()) {
            return false;
        }
        value = static_cast<T>(n);
    } else {
        if (*p == L'-') {
            return false;
        }
        const unsigned long long n = ::wcstoull(p, &pEnd, 10);
        if (n > (std::numeric_limits<T>::max)()) {
            return false;
        }
        value = static_cast<T>(n);
    }
    return pEnd != p && errno == 0 && OnlyBlanksFollow(pEnd);
}

template <class T>
void ExchangeInteger(CDataExchange* pDX, int nIDC, T& value)
{
    const HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        AfxSetWindowText(hWnd, std::to_wstring(value).c_str());
        return;
    }
    T parsed = 0;
    if (!ParseInteger(ControlText(hWnd), parsed)) {
        Refuse(pDX, std::is_signed_v<T> ? kAskWholeNumber : kAskUnsigned);
    }
    value = parsed;
}

template <class T>
void ExchangeReal(CDataExchange* pDX, int nIDC, T& value)
{
    const HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        CString strText;
        strText.Format(_T("%.*g"), std::numeric_limits<T>::digits10, static_cast<double>(value));
        AfxSetWindowText(hWnd, strText);
        return;
    }
    const CString strText = ControlText(hWnd);
    wchar_t* pEnd = nullptr;
    const double parsed = ::wcstod(strText, &pEnd);
    if (pEnd == strText.GetString() || !OnlyBlanksFollow(pEnd)) {
        Refuse(pDX, kAskNumber);
    }
    value = static_cast<T>(parsed);
}

template <class T>
void CheckRange(CDataExchange* pDX, T value, T minVal, T maxVal, LPCTSTR lpszFormat)
{
    if (value >= minVal && value <= maxVal) {
        return;
    }
    if (!pDX->m_bSaveAndValidate) {
        TRACE(_T("Initial value of a dialog is out of range.\n"));
        return;
    }
    CString strMessage;
    strMessage.Format(lpszFormat, minVal, maxVal);
    Refuse(pDX, strMessage);
}

void ExchangeIndex(CDataExchange* pDX, int nIDC, int& index, UINT getMessage, UINT setMessage)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        index = Ask<int>(hWnd, getMessage);
    } else {
        Ask(hWnd, setMessage, index);
    }
}

CString ListBoxText(HWND hWnd)
{
    CString strText;
    const auto nIndex = Ask<int>(hWnd, LB_GETCURSEL);
    const auto nLength = nIndex >= 0 ? Ask<int>(hWnd, LB_GETTEXTLEN, nIndex) : 0;
    if (nLength > 0) {
        Ask(hWnd, LB_GETTEXT, nIndex, strText.GetBufferSetLength(nLength));
        strText.ReleaseBuffer();
    }
    return strText;
}

void ExchangeListString(CDataExchange* pDX, int nIDC, CString& value, bool exact)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = ListBoxText(hWnd);
    } else if (!exact) {
        Ask(hWnd, LB_SELECTSTRING, -1, value.GetString());
    } else {
        Ask(hWnd, LB_SETCURSEL, Ask(hWnd, LB_FINDSTRINGEXACT, -1, value.GetString()));
    }
}

void ExchangeComboString(CDataExchange* pDX, int nIDC, CString& value, bool exact)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = ControlText(hWnd);
        return;
    }
    const UINT findMessage = exact ? CB_FINDSTRINGEXACT : CB_FINDSTRING;
    const auto nIndex = Ask(hWnd, findMessage, -1, value.GetString());
    if (nIndex != CB_ERR) {
        Ask(hWnd, CB_SETCURSEL, nIndex);
    } else {
        AfxSetWindowText(hWnd, value); // not in the list, but the edit part may hold it
    }
}
} // namespace

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate),
      m_pDlgWnd(pDlgWnd),
      m_hWndLastControl(nullptr),
      m_idLastControl(0),
      m_bEditLastControl(FALSE)
{
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    const HWND hWnd = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), nIDC);
    if (!hWnd) {
        TRACE(_T("Data exchange: no control %d.\n"), nIDC);
        AfxThrowNotSupportedException();
    }
    m_idLastControl = static_cast<UINT>(nIDC);
    m_hWndLastControl = hWnd;
    m_bEditLastControl = FALSE;
    return hWnd;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND hWnd = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return hWnd;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_hWndLastControl) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl) {
            Ask(m_hWndLastControl, EM_SETSEL, 0, -1);
        }
    }
    AfxThrowUserException();
}

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd) {
        return;
    }
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC))) {
        AfxThrowNotSupportedException();
    }
}

/** Data exchange of a text that stands for a number. */
#define EXCHANGE_TEXT(Type, Exchange)                                                                                  \
    void DDX_Text(CDataExchange* pDX, int nIDC, Type& value)                                                           \
    {                                                                                                                  \
        Exchange(pDX, nIDC, value);                                                                                    \
    }
EXCHANGE_TEXT(BYTE, ExchangeInteger)
EXCHANGE_TEXT(short, ExchangeInteger)
EXCHANGE_TEXT(int, ExchangeInteger)
EXCHANGE_TEXT(UINT, ExchangeInteger)
EXCHANGE_TEXT(long, ExchangeInteger)
EXCHANGE_TEXT(DWORD, ExchangeInteger)
EXCHANGE_TEXT(LONGLONG, ExchangeInteger)
EXCHANGE_TEXT(ULONGLONG, ExchangeInteger)
EXCHANGE_TEXT(float, ExchangeReal)
EXCHANGE_TEXT(double, ExchangeReal)
#undef EXCHANGE_TEXT

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = ControlText(hWnd);
    } else {
        AfxSetWindowText(hWnd, value);
    }
}

void DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen)
{
    const HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        AfxSetWindowText(hWnd, value);
    } else if (::GetWindowTextLength(hWnd) < nMaxLen) {
        ::GetWindowText(hWnd, value, nMaxLen);
    } else {
        CString strMessage;
        strMessage.Format(_T("Please enter no more than %d characters."), nMaxLen - 1);
        Refuse(pDX, strMessage);
    }
}

void DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = Ask<int>(hWnd, BM_GETCHECK);
    } else {
        Ask(hWnd, BM_SETCHECK, value >= BST_UNCHECKED && value <= BST_INDETERMINATE ? value : 0);
    }
}

void DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = -1;
    }
    int nIndex = 0;
    do {
        if (Ask(hWnd, WM_GETDLGCODE) & DLGC_RADIOBUTTON) {
            if (!pDX->m_bSaveAndValidate) {
                Ask(hWnd, BM_SETCHECK, nIndex == value);
            } else if (Ask(hWnd, BM_GETCHECK) != BST_UNCHECKED) {
                value = nIndex;
            }
            ++nIndex;
        }
        hWnd = ::GetWindow(hWnd, GW_HWNDNEXT);
    } while (hWnd && !(::GetWindowLong(hWnd, GWL_STYLE) & WS_GROUP));
}

void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    ExchangeIndex(pDX, nIDC, index, LB_GETCURSEL, LB_SETCURSEL);
}

void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeListString(pDX, nIDC, value, false);
}

void DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeListString(pDX, nIDC, value, true);
}

void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    ExchangeIndex(pDX, nIDC, index, CB_GETCURSEL, CB_SETCURSEL);
}

void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboString(pDX, nIDC, value, false);
}

void DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboString(pDX, nIDC, value, true);
}

void DDX_Scroll(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = ::GetScrollPos(hWnd, SB_CTL);
    } else {
        ::SetScrollPos(hWnd, SB_CTL, value, TRUE);
    }
}

void DDX_Slider(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = Ask<int>(hWnd, TBM_GETPOS);
    } else {
        Ask(hWnd, TBM_SETPOS, TRUE, value);
    }
}

void DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal)
{
    DDV_MinMaxInt(pDX, value, minVal, maxVal);
}

void DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal)
{
    DDV_MinMaxInt(pDX, value, minVal, maxVal);
}

void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("Please enter a whole number between %d and %d."));
}

void DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("Please enter a whole number between %ld and %ld."));
}

void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("Please enter a whole number between %u and %u."));
}

void DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("Please enter a whole number between %lu and %lu."));
}

void DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal)
{
    DDV_MinMaxDouble(pDX, value, minVal, maxVal);
}

void DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, _T("Please enter a number between %g and %g."));
}

void DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars)
{
    if (!pDX->m_bSaveAndValidate) {
        if (pDX->m_hWndLastControl && pDX->m_bEditLastControl) {
            Ask(pDX->m_hWndLastControl, EM_LIMITTEXT, nChars);
        }
        return;
    }
    if (value.GetLength() <= nChars) {
        return;
    }
    CString strMessage;
    strMessage.Format(_T("Please enter no more than %d characters."), nChars);
    Refuse(pDX, strMessage);
}
