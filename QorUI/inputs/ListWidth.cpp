#include "ListWidth.h"

#include <QorUI/app/GdiSavers.h>

#include <algorithm>

namespace
{

constexpr int kMarginBorders = 3; ///< borders' widths that stand for the margin

/** Measures texts in a list's own font. */
class CListMeasure
{
  public:
    explicit CListMeasure(CListBox& list)
        : m_dc(&list),
          m_font(m_dc.m_hDC, reinterpret_cast<HGDIOBJ>(list.SendMessage(WM_GETFONT))),
          m_margin(kMarginBorders * ::GetSystemMetrics(SM_CXBORDER))
    {
    }

    int Margin() const { return m_margin; }
    HDC Dc() const { return m_dc.m_hDC; }

    int Width(LPCWSTR text, int length) const
    {
        SIZE size = {};
        ::GetTextExtentPoint32W(m_dc.m_hDC, text, length, &size);
        return size.cx + m_margin;
    }

  private:
    CClientDC m_dc;
    CSelectSaver m_font;
    int m_margin;
};

} // namespace

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

bool CTextBound::Learn(CListBox& list)
{
    const CListMeasure measure(list);
    TEXTMETRICW metric = {};
    m_known = ::GetTextMetricsW(measure.Dc(), &metric) &&
              ::GetCharWidth32W(measure.Dc(), 0, kCharacters - 1, m_widths.data());
    m_base = measure.Margin() + metric.tmOverhang;
    return m_known;
}

bool CTextBound::Fits(CListBox& list, LPCWSTR text, int width)
{
    if (!text || (!m_known && !Learn(list))) {
        return false;
    }
    int needed = m_base;
    for (; *text != L'\0' && needed <= width; ++text) {
        if (*text >= kCharacters) {
            return false;
        }
        needed += m_widths[*text];
    }
    return needed <= width;
}
