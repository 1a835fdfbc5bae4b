/** @file
 * A full repaint of the indicators, each against the stock control that shows the same; the chart, which has no stock
 * neighbour, with few and with many items.
 */

#include "BenchWindow.h"
#include "Runner.h"

#include <string>

namespace
{

constexpr UINT kId = 100;
constexpr RECT kBar = {10, 10, 310, 30};
constexpr RECT kPanel = {10, 10, 310, 110};
constexpr int kInfoRows = 5;

template <class Bar>
void RepaintProgress(benchmark::State& state)
{
    CBenchWindow owner;
    Bar bar;
    static_cast<CProgressCtrl&>(bar).Create(WS_CHILD | WS_VISIBLE, kBar, &owner, kId);
    bar.SetPos(45);
    MeasureRepaint(state, bar);
}

void RepaintStatusBar(benchmark::State& state)
{
    CBenchWindow owner;
    CQorStatusBar bar;
    bar.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, kBar, &owner, kId);
    int widths[] = {0, 80, 60};
    bar.SetParts(3, widths);
    bar.SetText(0, L"Ready");
    bar.SetText(1, L"120 files");
    bar.SetText(2, L"45%");
    MeasureRepaint(state, bar);
}

void RepaintStockStatusBar(benchmark::State& state)
{
    CBenchWindow owner;
    CWnd bar;
    bar.CreateEx(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE, kBar, &owner, kId);
    int edges[] = {160, 240, -1};
    bar.SendMessage(SB_SETPARTS, 3, reinterpret_cast<LPARAM>(edges));
    bar.SendMessage(SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(L"Ready"));
    bar.SendMessage(SB_SETTEXTW, 1, reinterpret_cast<LPARAM>(L"120 files"));
    bar.SendMessage(SB_SETTEXTW, 2, reinterpret_cast<LPARAM>(L"45%"));
    MeasureRepaint(state, bar);
}

void RepaintInfo(benchmark::State& state)
{
    CBenchWindow owner;
    CQorInfo info;
    info.Create(L"", WS_CHILD | WS_VISIBLE, kPanel, &owner, kId);
    for (int row = 0; row < kInfoRows; ++row) {
        info.AddItem(L"Path", L"C:\\Users\\Name\\Documents");
    }
    MeasureRepaint(state, info);
}

/** What a dialog without the panel has: two texts a row. */
void RepaintStockInfo(benchmark::State& state)
{
    CBenchWindow owner;
    CWnd panel;
    panel.CreateEx(WS_EX_CONTROLPARENT, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_BTNFACE)), L"",
                   WS_CHILD | WS_VISIBLE, kPanel, &owner, kId);
    CStatic labels[kInfoRows];
    CStatic values[kInfoRows];
    for (int row = 0; row < kInfoRows; ++row) {
        const CRect place(0, 16 * row, 60, 16 * row + 16);
        labels[row].Create(L"Path:", WS_CHILD | WS_VISIBLE, place, &panel);
        labels[row].SetFont(GuiFont());
        values[row].Create(L"C:\\Users\\Name\\Documents", WS_CHILD | WS_VISIBLE,
                           CRect(place.right, place.top, 300, place.bottom), &panel);
        values[row].SetFont(GuiFont());
    }
    for (auto _ : state) {
        panel.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
}

void RepaintChart(benchmark::State& state, int type, int items)
{
    CBenchWindow owner;
    CChartCtrl chart;
    chart.Create(L"Snapshots", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 400), &owner, kId);
    chart.SetType(type);
    for (int i = 0; i < items; ++i) {
        chart.AddItem(L"Weekly", static_cast<UINT>(i + 1));
    }
    MeasureRepaint(state, chart);
}

void RegisterChart(const std::string& kind, int type)
{
    for (const int items : {5, 500}) {
        const std::string name = "chart of " + std::to_string(items) + ' ' + kind + ", one of them";
        MeasureAlone(name, items, [type, items](benchmark::State& state) { RepaintChart(state, type, items); });
    }
}

} // namespace

int main(int argc, char** argv)
{
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_BAR_CLASSES | ICC_PROGRESS_CLASS};
    ::InitCommonControlsEx(&controls);
    ComparePair("progress bar repaint", &RepaintProgress<CProgressBar>, &RepaintProgress<CProgressCtrl>);
    ComparePair("status bar repaint", &RepaintStatusBar, &RepaintStockStatusBar);
    ComparePair("information panel repaint", &RepaintInfo, &RepaintStockInfo);
    RegisterChart("bars", QOR_CHART_BARS);
    RegisterChart("ring pieces", QOR_CHART_RING);
    return RunBenchmarks(argc, argv);
}
