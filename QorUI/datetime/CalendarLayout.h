#pragma once

/** @file
 * Places, months and ranges of the month calendar, worked out without a window. All measures in pixels.
 */

#include <QorUI/app/module/QorUIDef.h>

#include <afxdisp.h>

#include <algorithm>

namespace QorMonth
{

inline constexpr int kWeeks = 6;
inline constexpr int kWeekDays = 7;
inline constexpr int kSlots = kWeeks * kWeekDays;
inline constexpr int kMonths = 12;
inline constexpr int kMaxGrid = 20;        ///< most rows or columns of months
inline constexpr int kDayGap = 5;          ///< between the columns of days
inline constexpr int kDayLeft = 3;         ///< a day's area begins so far left of its text
inline constexpr int kWeekGap = 2;         ///< between the weeks
inline constexpr int kRowExtra = 30;       ///< width of a week beyond its seven columns: six gaps
inline constexpr int kCellExtra = 40;      ///< width of a cell beyond seven columns
inline constexpr int kUnderInitials = 4;   ///< from the bottom of the weekday initials to the days
inline constexpr int kFirstYear = 101;     ///< earliest year of the calendar
inline constexpr int kLastYear = 9999;     ///< latest year of the calendar and of the list of months
inline constexpr int kFirstListYear = 100; ///< earliest year of the list of months
inline constexpr int kListRows = 7;        ///< months in the list
inline constexpr int kListMiddle = 3;      ///< the row that the list is opened for
inline constexpr int kNear = 16;           ///< up to this distance from the list it scrolls slowly
inline constexpr int kScrollAt = 10;       ///< counter at which the list scrolls

/** A month of a year. */
struct Month
{
    int year;
    int month; ///< 1 to 12

    bool operator==(const Month&) const = default;
};

/** The month so many months later. @param count may be negative */
constexpr Month AddMonths(Month from, int count)
{
    const int index = from.month - 1 + count;
    const int years = (index >= 0 ? index : index - (kMonths - 1)) / kMonths;
    return {from.year + years, index - years * kMonths + 1};
}

/** Height of six weeks. */
constexpr int DaysHeight(int dayHeight)
{
    return (3 * dayHeight + kWeeks) * 2;
}

/** @param headerText width of the longest header; @param dayWidth width of the widest day number or weekday initial */
constexpr int CellWidth(int headerText, int dayWidth)
{
    return (std::max)(headerText + 4, kWeekDays * dayWidth + kCellExtra);
}

constexpr int CellHeight(int header, int initials, int days)
{
    return header + initials + days + kUnderInitials;
}

/** Width of a week. */
constexpr int RowWidth(int dayWidth)
{
    return kWeekDays * dayWidth + kRowExtra;
}

/** Left end of the weeks of the cell that begins at `x`. */
constexpr int RowLeft(int x, int cellWidth, int dayWidth)
{
    return x + cellWidth / 2 - RowWidth(dayWidth) / 2;
}

/** What stands in the header of a cell. */
inline CRect HeaderText(int x, int y, int cellWidth, int headerHeight)
{
    return {x + 1, y + 1, x + cellWidth - 10, y + headerHeight - 2};
}

/** Where a press opens the list of months. */
inline CRect HeaderHit(int x, int y, int cellWidth, int headerHeight)
{
    return {x + 10, y + 1, x + cellWidth - 20, y + headerHeight - 2};
}

/** One of the arrows that page: lines from the apex to a column of points. */
struct Arrow
{
    CPoint apex;
    int base; ///< x of the points that the lines go to
    int half; ///< the points are this far above and below the apex
    CRect hit;
};

inline Arrow LeftArrow(int x, int y, int headerHeight)
{
    const int a = headerHeight / 4;
    const int m = y + headerHeight / 2;
    return {{x + 6, m}, x + a + 6, a, {x + 5, m - a - 1, x + a + 7, m + a + 1}};
}

inline Arrow RightArrow(int x, int y, int cellWidth, int headerHeight)
{
    const int a = headerHeight / 4;
    const int m = y + headerHeight / 2;
    const int right = x + cellWidth - 10;
    return {{right, m}, right - a, a, {right - a - 1, m - a - 1, right + 1, m + a + 1}};
}

/** The rectangles of a day. */
struct DayPlace
{
    CRect text;
    CRect area; ///< what the selection fills and the mouse hits
};

/**
 * @param left left end of the weeks
 * @param top top of the first week
 * @param slot 0 to 41, seven to a week
 */
inline DayPlace PlaceOfDay(int left, int top, int slot, int dayWidth, int dayHeight)
{
    const int x = left + slot % kWeekDays * (dayWidth + kDayGap);
    const int y = top + slot / kWeekDays * (dayHeight + kWeekGap);
    return {{x, y + 1, x + dayWidth, y + dayHeight + 1}, {x - kDayLeft, y, x + dayWidth + 2, y + dayHeight + kWeekGap}};
}

/** The slot of a month's first day: its place in a week that begins with the given weekday; 1 is Sunday. */
inline int FirstSlot(const COleDateTime& first, int firstDayOfWeek)
{
    return (first.GetDayOfWeek() - firstDayOfWeek + kWeekDays) % kWeekDays;
}

/** First and last day of a selection. */
struct DayRange
{
    COleDateTime start;
    COleDateTime end;
};

/** The selection of a drag from one day to another: at most `maxDays` days with the day where it began at one end. */
inline DayRange DragRange(const COleDateTime& anchor, const COleDateTime& day, UINT maxDays)
{
    if (maxDays == 1) {
        return {day, day};
    }
    DayRange range = day < anchor ? DayRange{day, anchor} : DayRange{anchor, day};
    if ((range.end - range.start).GetTotalDays() < maxDays) {
        return range;
    }
    const COleDateTimeSpan rest(static_cast<double>(maxDays) - 1);
    return day < anchor ? DayRange{anchor - rest, anchor} : DayRange{anchor, anchor + rest};
}

/** The row of the list of months that a height points at; above the first one it is the first, below the last one the
 * last. */
constexpr int ListRow(int y, int lineHeight)
{
    return lineHeight > 0 ? std::clamp(y / lineHeight, 0, kListRows - 1) : 0;
}

/** Counters of mouse moves above and below the list of months. */
struct ScrollCount
{
    int up = 0;
    int down = 0;
};

/**
 * Counts a mouse move.
 * @param y the mouse; @param top,bottom the list's window, both on the screen
 * @return months to scroll by: 0, or 1 or 2 into the direction of the mouse
 */
constexpr int CountMove(ScrollCount& count, int y, int top, int bottom)
{
    if (y >= top && y < bottom) {
        count = {};
        return 0;
    }
    const bool above = y < top;
    int& counter = above ? count.up : count.down;
    (above ? count.down : count.up) = 0;
    const int step = (above ? top - y : y - bottom + 1) <= kNear ? 1 : 2;
    counter += step;
    if (counter < kScrollAt) {
        return 0;
    }
    counter = 0;
    return above ? -step : step;
}

/** Scrolls the list of months by single months, not farther than into its first or last year. */
constexpr Month ScrollMonths(Month month, int count)
{
    const int step = count < 0 ? -1 : 1;
    for (; count != 0 && (step < 0 ? month.year > kFirstListYear : month.year < kLastYear); count -= step) {
        month = AddMonths(month, step);
    }
    return month;
}

} // namespace QorMonth
