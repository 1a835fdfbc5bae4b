#include "ListWidth.h"

#include <algorithm>

namespace
{

constexpr int kMarginBorders = 3; ///< borders' widths that stand for the margin

} // namespace

CListMeasure::CListMeasure(CListBox& list)
    : m_dc(&list),
      m_font(m_dc.m_hDC, reinterpret_cast<HGDIOBJ>(list.SendMessage(WM_GETFONT))),
      m_margin(kMarginBorders * ::GetSystemMetrics(SM_CXBORDER))
{
}

int CListMeasure::Width(LPCWSTR text, int length) const
{
    SIZE size = {};
    ::GetTextExtentPoint32W(m_dc.m_hDC, text, length, &size);
    return size.cx + m_margin;
}

int QorWidenList(CListBox& list, int widest, LPCWSTR text)
{
    const int width = CListMeasure(list).Width(text, text ? ::lstrlenW(text) : 0);
    if (width > widest) {
        widest = width;
        list.SetHorizontalExtent(widest);
    }
    return widest;
}

int QorRefitList(CListBox& list)
{
    const CListMeasure measure(list);
    const int count = list.GetCount();
    int widest = 0;
    CString text;
    for (int i = 0; i < count; ++i) {
        list.GetText(i, text);
        widest = (std::max)(widest, measure.Width(text, text.GetLength()));
    }
    list.SetHorizontalExtent(widest);
    return widest;
}
