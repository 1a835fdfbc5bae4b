/** @file
 * Creation and repaint of the month calendar: one month against the system's month calendar, and the time that a month
 * takes in grids of different sizes, which should stay the same.
 */

#include "Owner.h"
#include "Ratio.h"

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

void CountMonths(benchmark::State& state, int months)
{
    state.counters["per month"] = benchmark::Counter(
        static_cast<double>(months), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void RepaintOurs(benchmark::State& state, int side)
{
    COwner owner;
    CQorCalendar calendar;
    if (!calendar.Create(&owner, kId, &IsWeekend, nullptr, side, side)) {
        state.SkipWithError("the calendar could not be created");
    }
    MeasureRepaint(state, calendar);
    CountMonths(state, side * side);
}

void RepaintStock(benchmark::State& state)
{
    COwner owner;
    CStockCalendar calendar;
    if (!calendar.Make(owner)) {
        state.SkipWithError("the system's calendar could not be created");
    }
    MeasureRepaint(state, calendar);
}

void CreateOurs(benchmark::State& state, int side)
{
    COwner owner;
    for (auto _ : state) {
        CQorCalendar calendar;
        calendar.Create(&owner, kId, &IsWeekend, nullptr, side, side);
        calendar.DestroyWindow();
    }
    CountMonths(state, side * side);
}

void CreateStock(benchmark::State& state)
{
    COwner owner;
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
        const std::string size = std::to_string(side) + " x " + std::to_string(side) + " months";
        benchmark::RegisterBenchmark(("repaint of " + size).c_str(), &RepaintOurs, side)->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark(("creation of " + size).c_str(), &CreateOurs, side)->Unit(benchmark::kMicrosecond);
    }
    return RunBenchmarks(argc, argv);
}
