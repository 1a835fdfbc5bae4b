/** @file
 * Creation and repaint of the month calendar: one month against the system's month calendar, and the time that a month
 * takes in grids of different sizes, which should stay the same.
 */

#include "BenchWindow.h"
#include "Runner.h"

#include <string>

namespace
{

constexpr UINT kId = 100;

int IsWeekend(COleDateTime& date, void* /*data*/)
{
    const int day = date.GetDayOfWeek();
    return day == 1 || day == 7;
}

class CStockCalendar : public CWnd
{
  public:
    bool Make(CWnd& owner)
    {
        return CreateEx(0, MONTHCAL_CLASSW, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 220, 180), &owner, kId) != FALSE;
    }
};

void RepaintOurs(benchmark::State& state, int side)
{
    CBenchWindow owner;
    CQorCalendar calendar;
    if (!calendar.Create(&owner, kId, &IsWeekend, nullptr, side, side)) {
        state.SkipWithError("the calendar could not be created");
    }
    MeasureRepaint(state, calendar);
}

void RepaintStock(benchmark::State& state)
{
    CBenchWindow owner;
    CStockCalendar calendar;
    if (!calendar.Make(owner)) {
        state.SkipWithError("the system's calendar could not be created");
    }
    MeasureRepaint(state, calendar);
}

void CreateOurs(benchmark::State& state, int side)
{
    CBenchWindow owner;
    for (auto _ : state) {
        CQorCalendar calendar;
        calendar.Create(&owner, kId, &IsWeekend, nullptr, side, side);
        calendar.DestroyWindow();
    }
}

void CreateStock(benchmark::State& state)
{
    CBenchWindow owner;
    for (auto _ : state) {
        CStockCalendar calendar;
        calendar.Make(owner);
        calendar.DestroyWindow();
    }
}

} // namespace

int main(int argc, char** argv)
{
    INITCOMMONCONTROLSEX controls = {sizeof(controls), ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&controls);
    ComparePair(
        "month calendar repaint", [](benchmark::State& state) { RepaintOurs(state, 1); }, &RepaintStock);
    ComparePair(
        "month calendar creation", [](benchmark::State& state) { CreateOurs(state, 1); }, &CreateStock);
    for (const int side : {1, 5, 20}) {
        const int months = side * side;
        const std::string size = std::to_string(months) + (side == 1 ? " month" : " months, one of them");
        MeasureAlone("repaint of " + size, months, [side](benchmark::State& state) { RepaintOurs(state, side); });
        MeasureAlone("creation of " + size, months, [side](benchmark::State& state) { CreateOurs(state, side); });
    }
    return RunBenchmarks(argc, argv);
}
