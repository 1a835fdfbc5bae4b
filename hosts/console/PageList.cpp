#include "PageList.h"

BOOL CPageList::Create(CWnd* parent, const CRect& area, UINT id)
{
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP | WS_BORDER | WS_VSCROLL | LBS_NOTIFY |
                        LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
    if (!CListBox::Create(style, area, parent, id)) {
        return FALSE;
    }
    SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
    return TRUE;
}

void CPageList::MeasureItem(LPMEASUREITEMSTRUCT item)
{
    item->itemHeight = kRowHeight;
}

void CPageList::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC& dc = *CDC::FromHandle(item->hDC);
    const CRect row(item->rcItem);
    const bool selected = (item->itemState & ODS_SELECTED) != 0;
    ::FillRect(dc, row, selected ? ::GetSysColorBrush(COLOR_HIGHLIGHT) : QorGetDlgBkBrush());
    if (item->itemID < static_cast<UINT>(GetCount())) {
        CString text;
        GetText(static_cast<int>(item->itemID), text);
        dc.SetTextColor(::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        dc.SetBkMode(TRANSPARENT);
        CRect place(row);
        place.DeflateRect(kMargin, 0);
        dc.DrawText(text, -1, place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    if ((item->itemState & (ODS_FOCUS | ODS_NOFOCUSRECT)) == ODS_FOCUS) {
        dc.DrawFocusRect(row);
    }
}
