#pragma once

#include <QorUI/QorUI.h>

#include <benchmark/benchmark.h>

/** A visible window that carries what is measured. */
class CBenchWindow : public CWnd
{
  public:
    explicit CBenchWindow(int cx = 1000, int cy = 700)
    {
        CreateEx(0, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)), L"Owner", WS_POPUP | WS_VISIBLE,
                 0, 0, cx, cy, nullptr, nullptr);
    }
};

inline CFont* GuiFont()
{
    return CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
}

/** One full repaint, frame included. */
inline void Redraw(CWnd& wnd)
{
    wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
}

inline void MeasureRepaint(benchmark::State& state, CWnd& wnd)
{
    if (!wnd.GetSafeHwnd()) {
        state.SkipWithError("the window could not be created");
    }
    for (auto _ : state) {
        Redraw(wnd);
    }
}
