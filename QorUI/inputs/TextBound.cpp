#include "TextBound.h"

#include "ListWidth.h"

bool TextBound::Learn(CListBox& list)
{
    const ListMeasure measure(list);
    TEXTMETRICW metric = {};
    m_known = ::GetTextMetricsW(measure.Dc(), &metric) &&
              ::GetCharWidth32W(measure.Dc(), 0, kCharacters - 1, m_widths.data());
    m_base = measure.Margin() + metric.tmOverhang;
    return m_known;
}

bool TextBound::Fits(CListBox& list, LPCWSTR text, int width)
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
