#include "wnd/ask.h"

#include <afx/checklist.h>
#include <afxwin.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
    ON_WM_CREATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_ENABLE()
END_MESSAGE_MAP()

namespace
{
constexpr int kBoxSize = 13;
constexpr int kBoxIndent = 1;  // left of the box
constexpr int kTextIndent = 3; // between box and text
constexpr int kTextMargin = 1; // between the selection's left end and the text

/** The tick, three pixels high, in a box of 13 pixels. */
constexpr POINT kTick[] = {{3, 6}, {5, 8}, {10, 3}};
constexpr int kTickHeight = 3;
constexpr int kBlockMargin = 4; // of the block that shows the third state

constexpr DWORD kOwnerDrawn = LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE;
constexpr DWORD kManySelections = LBS_MULTIPLESEL | LBS_EXTENDEDSEL;

bool HasThreeStates(UINT nStyle)
{
    return nStyle == BS_3STATE || nStyle == BS_AUTO3STATE;
}

bool ChangesItself(UINT nStyle)
{
    return nStyle == BS_AUTOCHECKBOX || nStyle == BS_AUTO3STATE;
}

bool ChangesItems(UINT message)
{
    switch (message) {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_DELETESTRING:
    case LB_RESETCONTENT:
    case LB_ADDFILE:
    case LB_DIR:
        return true;
    default:
        return false;
    }
}

void DrawTick(CDC& dc, const CRect& rect, COLORREF colour)
{
    CPen pen(PS_SOLID, 1, colour);
    CPen* pOld = dc.SelectObject(&pen);
    for (int i = 0; i < kTickHeight; ++i) {
        dc.MoveTo(rect.left + kTick[0].x, rect.top + kTick[0].y + i);
        dc.LineTo(rect.left + kTick[1].x, rect.top + kTick[1].y + i);
        dc.LineTo(rect.left + kTick[2].x, rect.top + kTick[2].y + i);
    }
    dc.SelectObject(pOld);
}
} // namespace

CCheckListBox::CCheckListBox() : m_nCheckStyle(BS_AUTOCHECKBOX) {}

BOOL CCheckListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if ((dwStyle & kOwnerDrawn) == 0) {
        dwStyle |= LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
    }
    return CListBox::Create(dwStyle, rect, pParentWnd, nID);
}

void CCheckListBox::PreSubclassWindow()
{
    m_boxes.RemoveAll(); // those of a former window
    CListBox::PreSubclassWindow();
    ApplyItemHeight();
}

int CCheckListBox::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CListBox::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    ApplyItemHeight();
    return 0;
}

void CCheckListBox::ApplyItemHeight()
{
    if (GetStyle() & LBS_OWNERDRAWFIXED) {
        SetItemHeight(0, static_cast<UINT>(CalcMinimumItemHeight()));
    }
}

int CCheckListBox::CalcMinimumItemHeight()
{
    CClientDC dc(this);
    CFont* pOld = dc.SelectObject(GetFont());
    TEXTMETRIC metric = {};
    dc.GetTextMetrics(&metric);
    if (pOld) {
        dc.SelectObject(pOld);
    }
    return (std::max)(static_cast<int>(metric.tmHeight), kBoxSize + 1);
}

void CCheckListBox::SetCheckStyle(UINT nStyle)
{
    m_nCheckStyle = nStyle;
}

UINT CCheckListBox::GetCheckStyle() const
{
    return m_nCheckStyle;
}

bool CCheckListBox::IsItem(int nIndex) const
{
    return m_hWnd && nIndex >= 0 && nIndex < GetCount();
}

bool CCheckListBox::HasManySelections() const
{
    return (GetStyle() & kManySelections) != 0;
}

bool CCheckListBox::IsSelected(int nIndex) const
{
    return GetSel(nIndex) > 0;
}

CCheckListBox::Box CCheckListBox::BoxOf(int nIndex) const
{
    return nIndex >= 0 && nIndex < m_boxes.GetCount() ? m_boxes[nIndex] : Box();
}

CCheckListBox::Box& CCheckListBox::ChangeBoxOf(int nIndex)
{
    if (nIndex >= m_boxes.GetCount()) {
        m_boxes.SetSize(nIndex + 1);
    }
    return m_boxes[nIndex];
}

void CCheckListBox::SetCheck(int nIndex, int nCheck)
{
    const int nGreatest = HasThreeStates(m_nCheckStyle) ? BST_INDETERMINATE : BST_CHECKED;
    if (!IsItem(nIndex) || nCheck < BST_UNCHECKED || nCheck > nGreatest) {
        return;
    }
    ChangeBoxOf(nIndex).nCheck = nCheck;
    InvalidateItem(nIndex);
}

int CCheckListBox::GetCheck(int nIndex) const
{
    return IsItem(nIndex) ? BoxOf(nIndex).nCheck : BST_UNCHECKED;
}

void CCheckListBox::SetSelectionCheck(int nCheck)
{
    const int nCount = m_hWnd ? GetCount() : 0;
    for (int i = 0; i < nCount; ++i) {
        if (IsSelected(i) && BoxOf(i).bEnabled) {
            SetCheck(i, nCheck);
        }
    }
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled)
{
    if (!IsItem(nIndex)) {
        return;
    }
    ChangeBoxOf(nIndex).bEnabled = bEnabled != FALSE;
    InvalidateItem(nIndex);
}

BOOL CCheckListBox::IsEnabled(int nIndex) const
{
    return IsItem(nIndex) && BoxOf(nIndex).bEnabled;
}

void CCheckListBox::InvalidateItem(int nIndex)
{
    CRect rect;
    if (GetItemRect(nIndex, &rect) != LB_ERR) {
        InvalidateRect(&rect, FALSE);
    }
}

LRESULT CCheckListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFONT) {
        const LRESULT lResult = CListBox::WindowProc(message, wParam, lParam);
        ApplyItemHeight();
        return lResult;
    }
    if (!ChangesItems(message)) {
        return CListBox::WindowProc(message, wParam, lParam);
    }
    const int nCountBefore = GetCount();
    const LRESULT lResult = CListBox::WindowProc(message, wParam, lParam);
    FollowChange(message, wParam, lResult, nCountBefore);
    return lResult;
}

void CCheckListBox::FollowChange(UINT message, WPARAM wParam, LRESULT lResult, int nCountBefore)
{
    switch (message) {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_ADDFILE:
        if (lResult >= 0 && lResult < m_boxes.GetCount()) {
            m_boxes.InsertAt(lResult, Box());
        }
        break;
    case LB_DELETESTRING:
        if (lResult != LB_ERR && wParam < static_cast<WPARAM>(m_boxes.GetCount())) {
            m_boxes.RemoveAt(static_cast<INT_PTR>(wParam));
        }
        break;
    case LB_RESETCONTENT:
        m_boxes.RemoveAll();
        break;
    default:
        // File names go in by order; what was set before the call would land on other items.
        if (GetCount() != nCountBefore && (GetStyle() & LBS_SORT)) {
            m_boxes.RemoveAll();
        }
        break;
    }
}

CRect CCheckListBox::OnGetCheckPosition(CRect, CRect rectCheckBox)
{
    return rectCheckBox;
}

CRect CCheckListBox::BoxRect(const CRect& rectItem)
{
    const CPoint corner(rectItem.left + kBoxIndent, rectItem.top + (rectItem.Height() - kBoxSize) / 2);
    return OnGetCheckPosition(rectItem, CRect(corner, CSize(kBoxSize, kBoxSize)));
}

CRect CCheckListBox::BoxRectOf(int nIndex)
{
    CRect rect(0, 0, 0, 0);
    return GetItemRect(nIndex, &rect) != LB_ERR ? BoxRect(rect) : CRect(0, 0, 0, 0);
}

int CCheckListBox::BoxFromPoint(CPoint point)
{
    BOOL bOutside = TRUE;
    const auto nIndex = static_cast<int>(ItemFromPoint(point, bOutside));
    return !bOutside && IsItem(nIndex) && BoxRectOf(nIndex).PtInRect(point) ? nIndex : -1;
}

int CCheckListBox::NextCheck(int nCheck) const
{
    return (nCheck + 1) % (HasThreeStates(m_nCheckStyle) ? 3 : 2);
}

void CCheckListBox::NotifyChange()
{
    const WPARAM wParam = MAKEWPARAM(::GetDlgCtrlID(m_hWnd), CLBN_CHKCHANGE);
    Ask(::GetParent(m_hWnd), WM_COMMAND, wParam, m_hWnd);
}

void CCheckListBox::Toggle(int nIndex)
{
    if (!IsEnabled(nIndex)) {
        return;
    }
    if (ChangesItself(m_nCheckStyle)) {
        const int nCheck = NextCheck(GetCheck(nIndex));
        SetCheck(nIndex, nCheck);
        if (HasManySelections() && IsSelected(nIndex)) {
            SetSelectionCheck(nCheck);
        }
    }
    NotifyChange();
}

void CCheckListBox::ClickBox(int nIndex)
{
    const bool bKeepSelection =
        (GetStyle() & LBS_MULTIPLESEL) || ((GetStyle() & LBS_EXTENDEDSEL) && IsSelected(nIndex));
    if (bKeepSelection) {
        SetFocus();
        SetCaretIndex(nIndex);
    } else {
        Default();
    }
    if (IsItem(nIndex)) { // a notification of the click may have changed the list
        Toggle(nIndex);
    }
}

void CCheckListBox::OnLButtonDown(UINT, CPoint point)
{
    const int nIndex = BoxFromPoint(point);
    if (nIndex == -1) {
        Default();
    } else {
        ClickBox(nIndex);
    }
}

void CCheckListBox::OnLButtonDblClk(UINT, CPoint point)
{
    // A quick second click on a box is a click; anywhere else it opens the item.
    const int nIndex = BoxFromPoint(point);
    if (nIndex == -1) {
        Default();
    } else {
        Toggle(nIndex);
    }
}

void CCheckListBox::OnKeyDown(UINT nChar, UINT, UINT)
{
    // With Ctrl the key selects, as in a list without boxes.
    if (nChar != VK_SPACE || ::GetKeyState(VK_CONTROL) < 0) {
        Default();
        return;
    }
    const int nIndex = GetCaretIndex();
    if (!IsItem(nIndex)) {
        return;
    }
    if (!HasManySelections() && GetCurSel() != nIndex) {
        SetCurSel(nIndex);
    }
    Toggle(nIndex);
}

void CCheckListBox::OnChar(UINT nChar, UINT, UINT)
{
    if (nChar != ' ') { // the list would go to an item that begins with it
        Default();
    }
}

void CCheckListBox::OnEnable(BOOL bEnable)
{
    CListBox::OnEnable(bEnable);
    Invalidate(FALSE);
}

BOOL CCheckListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != WM_DRAWITEM) {
        return CListBox::OnChildNotify(message, wParam, lParam, pResult);
    }
    PreDrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    if (pResult) {
        *pResult = TRUE;
    }
    return TRUE;
}

void CCheckListBox::PreDrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    DRAWITEMSTRUCT item = *lpDrawItemStruct;
    const int nIndex = static_cast<int>(item.itemID);
    if (nIndex >= 0) {
        const CRect rectItem(item.rcItem);
        const CRect rectBox = BoxRect(rectItem);
        if (rectBox.left <= rectItem.CenterPoint().x) {
            item.rcItem.left = rectBox.right + kTextIndent;
        } else {
            item.rcItem.right = rectBox.left - kTextIndent;
        }
        CDC* pDC = CDC::FromHandle(item.hDC);
        pDC->FillSolidRect(&rectItem, ::GetSysColor(COLOR_WINDOW));
        DrawBox(*pDC, rectBox, BoxOf(nIndex));
    }
    DrawItem(&item);
}

void CCheckListBox::DrawBox(CDC& dc, const CRect& rect, const Box& box) const
{
    const bool bGrey = !box.bEnabled || !IsWindowEnabled();
    const COLORREF frame = ::GetSysColor(bGrey ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT);
    dc.FillSolidRect(&rect, ::GetSysColor(bGrey ? COLOR_BTNFACE : COLOR_WINDOW));
    dc.Draw3dRect(&rect, frame, frame);
    if (box.nCheck == BST_CHECKED) {
        DrawTick(dc, rect, frame);
    } else if (box.nCheck == BST_INDETERMINATE) {
        CRect block(rect);
        block.DeflateRect(kBlockMargin, kBlockMargin);
        dc.FillSolidRect(&block, frame);
    }
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    const DRAWITEMSTRUCT& item = *lpDrawItemStruct;
    CDC* pDC = CDC::FromHandle(item.hDC);
    CRect rect(item.rcItem);
    const int nIndex = static_cast<int>(item.itemID);
    if (nIndex >= 0) {
        const bool bSelected = (item.itemState & ODS_SELECTED) != 0;
        const bool bGrey = !IsEnabled(nIndex) || !IsWindowEnabled();
        const int nText = bSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
        pDC->FillSolidRect(&rect, ::GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        pDC->SetTextColor(::GetSysColor(bGrey ? COLOR_GRAYTEXT : nText));
        pDC->SetBkMode(TRANSPARENT);
        CString strText;
        GetText(nIndex, strText);
        CRect rectText(rect);
        rectText.left += kTextMargin;
        pDC->DrawText(strText, &rectText, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    }
    if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) {
        pDC->DrawFocusRect(&rect);
    }
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    const auto nLeast = static_cast<UINT>(CalcMinimumItemHeight());
    lpMeasureItemStruct->itemHeight = (std::max)(lpMeasureItemStruct->itemHeight, nLeast);
}
