#include "wnd/reflection.h"

#include <afx/draglist.h>

IMPLEMENT_DYNAMIC(CDragListBox, CListBox)

CDragListBox::CDragListBox() : m_nInsert(-1) {}

void CDragListBox::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    ASSERT((GetStyle() & (LBS_SORT | LBS_MULTIPLESEL)) == 0);
    VERIFY(::MakeDragList(m_hWnd));
}

int CDragListBox::ItemFromPt(CPoint pt, BOOL bAutoScroll) const
{
    return m_hWnd ? ::LBItemFromPt(m_hWnd, pt, bAutoScroll) : -1;
}

void CDragListBox::DrawInsert(int nItem)
{
    ::DrawInsert(::GetParent(m_hWnd), m_hWnd, nItem);
}

void CDragListBox::ShowInsert(int nItem)
{
    if (nItem == m_nInsert) {
        return;
    }
    m_nInsert = nItem;
    DrawInsert(nItem);
}

BOOL CDragListBox::BeginDrag(CPoint pt)
{
    m_nInsert = -1;
    ShowInsert(ItemFromPt(pt));
    return TRUE;
}

void CDragListBox::CancelDrag(CPoint)
{
    ShowInsert(-1);
}

UINT CDragListBox::Dragging(CPoint pt)
{
    const int nItem = ItemFromPt(pt, FALSE); // the mark must be gone before the list scrolls under it
    if (nItem == -1) {
        ShowInsert(-1);
    }
    ShowInsert(ItemFromPt(pt));
    return m_nInsert == -1 ? DL_STOPCURSOR : DL_MOVECURSOR;
}

void CDragListBox::Dropped(int nSrcIndex, CPoint pt)
{
    ShowInsert(-1);
    const int nBefore = ItemFromPt(pt);
    if (nSrcIndex < 0 || nSrcIndex >= GetCount() || nBefore == -1) {
        return;
    }
    const int nDest = nBefore > nSrcIndex ? nBefore - 1 : nBefore; // where it stands when its old place is gone
    if (nDest == nSrcIndex) {
        return;
    }
    CString strText;
    GetText(nSrcIndex, strText);
    const DWORD_PTR dwData = GetItemData(nSrcIndex);
    CListBox::DeleteString(static_cast<UINT>(nSrcIndex));
    const int nNew = CListBox::InsertString(nDest, strText);
    SetItemData(nNew, dwData);
    SetCurSel(nNew);
}

BOOL CDragListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (message != kDragListMessage) {
        return CListBox::OnChildNotify(message, wParam, lParam, pResult);
    }
    const auto* pInfo = reinterpret_cast<const DRAGLISTINFO*>(lParam);
    LRESULT lResult = 0;
    switch (pInfo->uNotification) {
    case DL_BEGINDRAG:
        lResult = BeginDrag(pInfo->ptCursor);
        break;
    case DL_DRAGGING:
        lResult = Dragging(pInfo->ptCursor);
        break;
    case DL_DROPPED:
        Dropped(GetCurSel(), pInfo->ptCursor);
        break;
    case DL_CANCELDRAG:
        CancelDrag(pInfo->ptCursor);
        break;
    default:
        return FALSE;
    }
    if (pResult) {
        *pResult = lResult;
    }
    return TRUE;
}
