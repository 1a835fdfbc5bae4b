/** @file
 * The input controls against the stock controls: many texts into the flat list box, a full repaint of the flat combo
 * box.
 */

#include "BenchWindow.h"
#include "Runner.h"

#include <array>
#include <string>
#include <vector>

namespace
{

std::vector<CString> Texts(int count)
{
    std::vector<CString> texts(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        texts[static_cast<size_t>(i)].Format(L"C:\\Users\\Name\\Documents\\Report %d.txt", i * 7919 % count);
    }
    return texts;
}

template <class List>
void Fill(benchmark::State& state, int count)
{
    const std::vector<CString> texts = Texts(count);
    CBenchWindow owner;
    List list;
    static_cast<CListBox&>(list).Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, CRect(10, 10, 210, 210),
                                        &owner, 100);
    list.SetFont(GuiFont());
    list.SetRedraw(FALSE);
    for (auto _ : state) {
        list.ResetContent();
        for (const CString& text : texts) {
            list.AddString(text);
        }
    }
}

template <class Combo>
void Repaint(benchmark::State& state)
{
    CBenchWindow owner;
    Combo combo;
    static_cast<CComboBox&>(combo).Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(10, 10, 210, 210), &owner,
                                          100);
    combo.SetFont(GuiFont());
    combo.AddString(L"Every day");
    combo.SetCurSel(0);
    MeasureRepaint(state, combo);
}

} // namespace

int main(int argc, char** argv)
{
    static constexpr std::array<int, 3> kCounts = {1000, 10000, 100000};
    for (const int count : kCounts) {
        const std::string name = "list box, " + std::to_string(count) + " texts";
        ComparePair(
            name, [count](benchmark::State& state) { Fill<CFlatListBox>(state, count); },
            [count](benchmark::State& state) { Fill<CListBox>(state, count); });
    }
    ComparePair(
        "combo box repaint", [](benchmark::State& state) { Repaint<CFlatCombo>(state); },
        [](benchmark::State& state) { Repaint<CComboBox>(state); });
    return RunBenchmarks(argc, argv);
}
