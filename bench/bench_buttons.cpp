/** @file
 * A full repaint of each kind of button, against the stock button of the same size that the system draws.
 */

#include "BenchWindow.h"
#include "Runner.h"

namespace
{

constexpr UINT kDialogCloseStrip = 223;

void Repaint(benchmark::State& state, CWnd& wnd)
{
    wnd.SetFont(GuiFont());
    MeasureRepaint(state, wnd);
}

template <class Button>
void Draw(benchmark::State& state, DWORD style, const CRect& rect)
{
    CBenchWindow owner;
    Button button;
    static_cast<CButton&>(button).Create(L"Text", WS_CHILD | WS_VISIBLE | style, rect, &owner, 100);
    Repaint(state, button);
}

void DrawBitmapButton(benchmark::State& state, const CRect& rect)
{
    CBenchWindow owner;
    CBmpBtn button;
    button.Create(rect, &owner, 100);
    button.SetImage(::GetModuleHandleW(L"QorUI.dll"), kDialogCloseStrip, nullptr, CLR_NONE);
    Repaint(state, button);
}

template <class Button>
void Pair(const char* name, DWORD style, DWORD stockStyle, const CRect& rect)
{
    ComparePair(
        name, [=](benchmark::State& state) { Draw<Button>(state, style, rect); },
        [=](benchmark::State& state) { Draw<CButton>(state, stockStyle, rect); });
}

} // namespace

int main(int argc, char** argv)
{
    const CRect small(10, 10, 110, 31);
    const CRect close(10, 10, 52, 27);
    const CRect large(10, 10, 210, 66);
    Pair<CQorBtn>("push button", BS_OWNERDRAW, BS_PUSHBUTTON, small);
    Pair<CCmdBtn>("command button", BS_OWNERDRAW, BS_PUSHBUTTON, large);
    Pair<CCheckBox>("check box", BS_AUTOCHECKBOX, BS_AUTOCHECKBOX, small);
    Pair<CRadioBox>("radio button", BS_AUTORADIOBUTTON, BS_AUTORADIOBUTTON, small);
    ComparePair(
        "bitmap button", [=](benchmark::State& state) { DrawBitmapButton(state, close); },
        [=](benchmark::State& state) { Draw<CButton>(state, BS_PUSHBUTTON, close); });
    return RunBenchmarks(argc, argv);
}
