/** @file
 * The flat list and its header against the stock list view: many rows, and a full repaint of each.
 */

#include "BenchWindow.h"
#include "Runner.h"

#include <array>
#include <string>

namespace
{

constexpr RECT kPlace = {10, 10, 510, 410};
constexpr UINT kId = 100;
constexpr std::array<LPCWSTR, 3> kHeadings = {L"Name", L"Size", L"Changed"};

/** Both lists show the same columns; the flat one has an InsertColumn of its own. */
template <class List>
void AddColumns(List& list)
{
    int column = 0;
    for (const LPCWSTR heading : kHeadings) {
        list.InsertColumn(column++, heading, LVCFMT_LEFT, 140);
    }
}

template <class List>
void Make(List& list, CWnd& owner)
{
    const DWORD style = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS;
    static_cast<CListCtrl&>(list).Create(style, kPlace, &owner, kId);
    list.SetFont(GuiFont());
    AddColumns(list);
}

template <class List>
void AddRows(List& list, int count)
{
    CString text;
    for (int row = 0; row < count; ++row) {
        text.Format(L"Report %d.txt", row);
        list.InsertItem(row, text);
        list.SetItemText(row, 1, L"120 KB");
        list.SetItemText(row, 2, L"2026-05-04");
    }
}

template <class List>
void Fill(benchmark::State& state, int count)
{
    CBenchWindow owner;
    List list;
    Make(list, owner);
    list.SetRedraw(FALSE);
    for (auto _ : state) {
        AddRows(list, count);
        state.PauseTiming();
        list.DeleteAllItems();
        state.ResumeTiming();
    }
}

template <class List>
void RepaintList(benchmark::State& state)
{
    CBenchWindow owner;
    List list;
    Make(list, owner);
    AddRows(list, 100);
    MeasureRepaint(state, list);
}

/** The header alone, without the list around it. */
template <class Header>
void RepaintHeader(benchmark::State& state)
{
    CBenchWindow owner;
    Header header;
    header.Create(WS_CHILD | WS_VISIBLE | HDS_HORZ | HDS_BUTTONS, CRect(10, 10, 510, 30), &owner, kId);
    header.SetFont(GuiFont());
    int column = 0;
    for (const LPCWSTR heading : kHeadings) {
        HDITEMW item = {};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.fmt = HDF_STRING | HDF_LEFT;
        item.cxy = 140;
        item.pszText = const_cast<LPWSTR>(heading); // only read when it is inserted
        header.InsertItem(column++, &item);
    }
    if constexpr (std::is_same_v<Header, CFlatHdr>) {
        header.SetOwnerDraw();
    }
    MeasureRepaint(state, header);
}

} // namespace

int main(int argc, char** argv)
{
    static constexpr std::array<int, 3> kCounts = {1000, 10000, 100000};
    for (const int count : kCounts) {
        const std::string name = "list, " + std::to_string(count) + " rows";
        ComparePair(
            name, [count](benchmark::State& state) { Fill<CFlatList>(state, count); },
            [count](benchmark::State& state) { Fill<CListCtrl>(state, count); });
    }
    ComparePair("list repaint", &RepaintList<CFlatList>, &RepaintList<CListCtrl>);
    ComparePair("header repaint", &RepaintHeader<CFlatHdr>, &RepaintHeader<CHeaderCtrl>);
    return RunBenchmarks(argc, argv);
}
