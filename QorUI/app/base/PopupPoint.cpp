#include "PopupPoint.h"

namespace
{

void MoveToItem(const CWnd& control, const RECT* item, CPoint& point)
{
    point = item ? CRect(*item).CenterPoint() : CPoint(0, 0);
    ::ClientToScreen(control.m_hWnd, &point);
}

bool GivenByMouse(const CPoint& point)
{
    return point.x >= 0 && point.y >= 0;
}

} // namespace

void QorGetTreePopupPoint(CTreeCtrl& tree, CPoint& point)
{
    if (GivenByMouse(point)) {
        return;
    }
    const HTREEITEM item = tree.GetSelectedItem();
    CRect rect;
    MoveToItem(tree, item && tree.GetItemRect(item, &rect, TRUE) ? &rect : nullptr, point);
}

void QorGetListPopupPoint(CListCtrl& list, CPoint& point)
{
    if (GivenByMouse(point)) {
        return;
    }
    const int item = list.GetNextItem(-1, LVNI_SELECTED);
    CRect rect;
    MoveToItem(list, item >= 0 && list.GetItemRect(item, &rect, LVIR_LABEL) ? &rect : nullptr, point);
}
