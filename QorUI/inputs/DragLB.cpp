#include "DragLB.h"

#include "ListWidth.h"

CDragLB::CDragLB() : m_nMaxWidth(0), m_bEnableDrag(FALSE) {}

void CDragLB::EnableDrag(BOOL enable)
{
    m_bEnableDrag = enable;
}

int CDragLB::AddString(LPCWSTR text)
{
    const int index = m_hWnd ? CDragListBox::AddString(text) : LB_ERR;
    if (index >= 0) {
        UpdateWidth(text);
    }
    return index;
}

int CDragLB::InsertString(int index, LPCWSTR text)
{
    const int inserted = m_hWnd ? CDragListBox::InsertString(index, text) : LB_ERR;
    if (inserted >= 0) {
        UpdateWidth(text);
    }
    return inserted;
}

int CDragLB::DeleteString(int index)
{
    const int left = m_hWnd ? CDragListBox::DeleteString(static_cast<UINT>(index)) : LB_ERR;
    if (left >= 0) {
        m_nMaxWidth = QorRefitList(*this, m_nMaxWidth);
    }
    return left;
}

void CDragLB::ResetContent()
{
    CDragListBox::ResetContent();
    m_nMaxWidth = 0;
}

void CDragLB::UpdateWidth(LPCWSTR text)
{
    m_nMaxWidth = QorWidenList(*this, m_nMaxWidth, text);
}

void CDragLB::PreSubclassWindow()
{
    ModifyStyle(LBS_SORT | LBS_MULTIPLESEL, 0);
    m_nMaxWidth = QorWidestOf(*this); // not that of a former window
    CDragListBox::PreSubclassWindow();
}

BOOL CDragLB::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (m_bEnableDrag) {
        return CDragListBox::OnChildNotify(message, wParam, lParam, result);
    }
    // Past the drag list on purpose: that is what keeps the items where they are.
    return CListBox::OnChildNotify(message, wParam, lParam, result); // NOLINT(bugprone-parent-virtual-call)
}
