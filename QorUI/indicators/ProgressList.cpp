#include "ProgressList.h"

#include "ClippedText.h"
#include "ProgressParts.h"

#include <QorUI/app/look/SysLook.h>

BEGIN_MESSAGE_MAP(CProgressList, CFlatList)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CProgressList::OnCustomDraw)
END_MESSAGE_MAP()

namespace
{

constexpr COLORREF kFill = RGB(6, 177, 36);

void DrawCell(CDC& dc, CRect rect, const QorProgress::Cell& cell)
{
    rect.DeflateRect(2, 1);
    if (rect.IsRectEmpty()) {
        return; // GDI would turn the rectangle round and draw into the neighbours
    }
    dc.Rectangle(&rect);
    rect.DeflateRect(1, 1);
    if (rect.IsRectEmpty()) {
        return;
    }
    const CRect filled = QorProgress::FilledCell(rect, cell.percent);
    const CRect empty = QorProgress::Empty(rect, filled);
    dc.FillSolidRect(&filled, kFill);
    dc.FillSolidRect(&empty, QorSysLook.m_clrBtnFace);
    if (!cell.label.IsEmpty()) {
        QorDrawClippedText(dc, cell.label, filled, rect, QorSysLook.m_clrWindow);
        QorDrawClippedText(dc, cell.label, empty, rect, QorSysLook.m_clrWindowText);
    }
}

} // namespace

void CProgressList::OnCustomDraw(NMHDR* header, LRESULT* result)
{
    auto* draw = reinterpret_cast<NMLVCUSTOMDRAW*>(header);
    *result = 0;
    switch (draw->nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
    case CDDS_ITEMPREPAINT:
        *result = CDRF_NOTIFYSUBITEMDRAW;
        break;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        *result = DrawSubItem(draw);
        break;
    default:
        break;
    }
}

LRESULT CProgressList::DrawSubItem(NMLVCUSTOMDRAW* draw)
{
    CDC* dc = draw && draw->nmcd.hdc ? CDC::FromHandle(draw->nmcd.hdc) : nullptr;
    if (!dc || !m_hWnd) {
        return CDRF_DODEFAULT;
    }
    const int row = static_cast<int>(draw->nmcd.dwItemSpec);
    const QorProgress::Cell cell = QorProgress::ParseCell(GetItemText(row, draw->iSubItem));
    if (!cell.valid) {
        return CDRF_DODEFAULT;
    }
    CRect rect(0, 0, 0, 0);
    const BOOL found = draw->iSubItem == 0 ? GetItemRect(row, &rect, LVIR_BOUNDS)
                                           : GetSubItemRect(row, draw->iSubItem, LVIR_BOUNDS, rect);
    if (found) {
        DrawCell(*dc, rect, cell);
    }
    return CDRF_SKIPDEFAULT;
}
