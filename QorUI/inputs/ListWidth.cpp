#include "ListWidth.h"

#include <algorithm>

namespace
{

constexpr int kMarginBorders = 3; ///< borders' widths that stand for the margin

} // namespace

ListMeasure::ListMeasure(CListBox& list)
    : m_dc(::GetDC(list.m_hWnd)),
      m_font(m_dc.Get(), reinterpret_cast<HGDIOBJ>(list.SendMessage(WM_GETFONT))),
      m_margin(kMarginBorders * ::GetSystemMetrics(SM_CXBORDER))
{
}

int ListMeasure::Width(LPCWSTR text, int length) const
{
    SIZE size = {};
    ::GetTextExtentPoint32W(m_dc.Get(), text, length, &size);
    return size.cx + m_margin;
}

int QorWidenList(CListBox& list, int widest, LPCWSTR text)
{
    const ListMeasure measure(list);
    const int width = measure.Width(text, text ? ::lstrlenW(text) : 0);
    if (measure.Dc() && width > widest) {
        widest = width;
        list.SetHorizontalExtent(widest);
    }
    return widest;
}

int QorRefitList(CListBox& list, int former)
{
    const ListMeasure measure(list);
    if (!measure.Dc()) {
        return former;
    }
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

int QorWidestOf(const CListBox& list)
{
    return list.GetCount() > 0 ? list.GetHorizontalExtent() : 0;
}
