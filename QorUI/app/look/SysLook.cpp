#include "SysLook.h"

CQorSysLook QorSysLook;

CQorSysLook::CQorSysLook()
    : m_clrBtnHighlight(::GetSysColor(COLOR_BTNHIGHLIGHT)),
      m_clrBtnShadow(::GetSysColor(COLOR_BTNSHADOW)),
      m_clrBtnFace(::GetSysColor(COLOR_BTNFACE)),
      m_clrBtnText(::GetSysColor(COLOR_BTNTEXT)),
      m_clrGrayText(::GetSysColor(COLOR_GRAYTEXT)),
      m_clrWindowFrame(::GetSysColor(COLOR_WINDOWFRAME)),
      m_clrBarFace(::GetSysColor(COLOR_BTNFACE)),
      m_clrBarHighlight(::GetSysColor(COLOR_BTNHIGHLIGHT)),
      m_clrBarShadow(::GetSysColor(COLOR_BTNSHADOW)),
      m_clrHighlight(::GetSysColor(COLOR_HIGHLIGHT)),
      m_clrWindow(::GetSysColor(COLOR_WINDOW)),
      m_clrWindowText(::GetSysColor(COLOR_WINDOWTEXT))
{
    NONCLIENTMETRICSW metrics = {};
    static_assert(sizeof(metrics) == 504, "the structure with iPaddedBorderWidth is asked for");
    metrics.cbSize = sizeof(metrics);
    if (::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0)) {
        m_font.CreateFontIndirect(&metrics.lfMessageFont);
    }
}
