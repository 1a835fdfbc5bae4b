#include "IntEdit.h"

#include <algorithm>

namespace
{

constexpr UINT kSpinId = 1;
constexpr int kSpinWidth = 16;
constexpr int kTextTop = 1;
constexpr int kTextRight = 18; ///< from the right edge to the end of the text
constexpr DWORD kSpinStyle = WS_CHILD | WS_VISIBLE | UDS_WRAP | UDS_NOTHOUSANDS;

/** After a key: what is typed next stands behind the digits. */
void ShowClamped(CIntEdit& edit, int value)
{
    const HWND wnd = edit.m_hWnd; // the parent may destroy the control when it is told of the change
    edit.SetValue(value);
    const int end = ::GetWindowTextLengthW(wnd);
    ::SendMessageW(wnd, EM_SETSEL, static_cast<WPARAM>(end), end);
}

} // namespace

BEGIN_MESSAGE_MAP(CIntEdit, CFlatEdit)
    ON_WM_CHAR()
    ON_WM_KEYUP()
    ON_MESSAGE(WM_GETDLGCODE, &CIntEdit::OnGetDlgCode)
    ON_NOTIFY(UDN_DELTAPOS, kSpinId, &CIntEdit::OnDeltaPos)
END_MESSAGE_MAP()

CIntEdit::CIntEdit() : m_nMin(0), m_nMax(0) {}

void CIntEdit::SetRange(int minimum, int maximum, int value)
{
    if (minimum > maximum) {
        return;
    }
    m_nMin = minimum;
    m_nMax = maximum;
    CString longest;
    longest.Format(L"%d", m_nMax);
    LimitText(longest.GetLength());
    SetValue(value);
}

int CIntEdit::GetRange(int* minimum)
{
    if (minimum) {
        *minimum = m_nMin;
    }
    return m_nMax;
}

void CIntEdit::SetValue(int value)
{
    CString text;
    text.Format(L"%d", std::clamp(value, m_nMin, m_nMax));
    SetWindowText(text);
    if (IsMultiLine()) {
        // A multi-line edit reports no change for a text that the program sets.
        const WPARAM change = MAKEWPARAM(GetDlgCtrlID(), EN_CHANGE);
        ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, change, reinterpret_cast<LPARAM>(m_hWnd));
    }
}

int CIntEdit::GetValue()
{
    CString text;
    GetWindowText(text);
    return _wtoi(text);
}

BOOL CIntEdit::AddSpin()
{
    if (!m_hWnd || m_spin.m_hWnd) {
        return FALSE;
    }
    CRect client;
    GetClientRect(&client);
    ModifyStyle(0, ES_MULTILINE);
    SetRect(CRect(0, kTextTop, client.right - kTextRight, client.bottom));
    return m_spin.Create(kSpinStyle, CRect(client.right - kSpinWidth, 0, client.right, client.bottom), this, kSpinId);
}

void CIntEdit::PreSubclassWindow()
{
    ModifyStyle(0, ES_NUMBER);
    CFlatEdit::PreSubclassWindow();
}

BOOL CIntEdit::PreCreateWindow(CREATESTRUCT& create)
{
    // An edit takes its kind from what it was created with.
    create.style |= ES_NUMBER;
    return CFlatEdit::PreCreateWindow(create);
}

void CIntEdit::OnChar(UINT character, UINT repeats, UINT flags)
{
    CFlatEdit::OnChar(character, repeats, flags);
    const int value = GetValue();
    if (value < m_nMin || value > m_nMax) {
        ShowClamped(*this, value);
    }
}

void CIntEdit::OnKeyUp(UINT key, UINT repeats, UINT flags)
{
    if (key == VK_DELETE && GetValue() < m_nMin) {
        ShowClamped(*this, m_nMin);
    }
    if (key == VK_RETURN && TakesReturn()) {
        ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), 0), 0);
    }
    CFlatEdit::OnKeyUp(key, repeats, flags);
}

LRESULT CIntEdit::OnGetDlgCode(WPARAM key, LPARAM message)
{
    const auto* asked = reinterpret_cast<const MSG*>(message);
    if (asked && asked->message == WM_KEYDOWN && key == VK_RETURN && TakesReturn()) {
        return DLGC_WANTALLKEYS;
    }
    return Default();
}

void CIntEdit::OnDeltaPos(NMHDR* header, LRESULT* result)
{
    *result = 0;
    const LONGLONG value = LONGLONG{GetValue()} - reinterpret_cast<const NMUPDOWN*>(header)->iDelta;
    if (value > m_nMax) {
        SetValue(m_nMin);
    } else if (value < m_nMin) {
        SetValue(m_nMax);
    } else {
        SetValue(static_cast<int>(value));
    }
}

bool CIntEdit::IsMultiLine() const
{
    return (GetStyle() & ES_MULTILINE) != 0;
}

bool CIntEdit::TakesReturn() const
{
    return !IsMultiLine() && (GetStyle() & ES_WANTRETURN);
}
