#pragma once

#include <QorUI/datetime/QorCalendar.h>
#include <tests/support/Imports.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

/** @file What the tests of the calendar share. */

constexpr UINT kCalendarId = 77;

/** A calendar whose inside can be seen. */
class CTestCalendar : public CQorCalendar
{
  public:
    using CQorCalendar::AdjustWndPos;
    using CQorCalendar::ClearDays;
    using CQorCalendar::CreateFont;
    using CQorCalendar::DayHitTest;
    using CQorCalendar::DrawDays;
    using CQorCalendar::DrawDaysOfWeek;
    using CQorCalendar::DrawHeader;
    using CQorCalendar::FireNotify;
    using CQorCalendar::GetMonthName;
    using CQorCalendar::HdrHitTest;
    using CQorCalendar::InCellDay;
    using CQorCalendar::InCellHdr;
    using CQorCalendar::IsDateSelected;
    using CQorCalendar::IsSpecialDate;
    using CQorCalendar::m_bTrackArrow;
    using CQorCalendar::m_bTrackDay;
    using CQorCalendar::m_bTrackMonth;
    using CQorCalendar::m_crBk;
    using CQorCalendar::m_crNormal;
    using CQorCalendar::m_crSpecial;
    using CQorCalendar::m_dtAnchor;
    using CQorCalendar::m_dtSelEnd;
    using CQorCalendar::m_dtSelStart;
    using CQorCalendar::m_fontBold;
    using CQorCalendar::m_fontNormal;
    using CQorCalendar::m_nCellHeight;
    using CQorCalendar::m_nCellWidth;
    using CQorCalendar::m_nCols;
    using CQorCalendar::m_nDayHeight;
    using CQorCalendar::m_nDayWidth;
    using CQorCalendar::m_nDowHeight;
    using CQorCalendar::m_nFirstDayOfWeek;
    using CQorCalendar::m_nHdrHeight;
    using CQorCalendar::m_nMaxSelDays;
    using CQorCalendar::m_nMonth;
    using CQorCalendar::m_nRows;
    using CQorCalendar::m_nYear;
    using CQorCalendar::m_pCells;
    using CQorCalendar::m_pSelMonthWnd;
    using CQorCalendar::m_rcLeftArrow;
    using CQorCalendar::m_rcRightArrow;
    using CQorCalendar::m_strDays;
    using CQorCalendar::m_strMonths;
    using CQorCalendar::OnLButtonDown;
    using CQorCalendar::ScrollLeft;
    using CQorCalendar::ScrollRight;
    using CQorCalendar::SetCellDayPos;
    using CQorCalendar::SetCellHdrPos;
    using CQorCalendar::SetCellPos;
    using CQorCalendar::SetFirstDayOfWeek;
    using CQorCalendar::TrackCellDay;
};

inline COleDateTime Date(int year, int month, int day)
{
    return COleDateTime(year, month, day, 0, 0, 0);
}

inline std::wstring Text(const COleDateTime& date)
{
    return date.GetStatus() == COleDateTime::valid ? date.Format(L"%Y-%m-%d %H:%M").GetString() : L"none";
}

/** The selection as text: "first to last" or "none". */
inline std::wstring Selection(CQorCalendar& calendar)
{
    COleDateTime end;
    const COleDateTime start = calendar.GetSelDate(&end);
    if (start.GetStatus() != COleDateTime::valid || end.GetStatus() != COleDateTime::valid) {
        return L"none";
    }
    return std::wstring(start.Format(L"%Y-%m-%d")) + L" to " + end.Format(L"%Y-%m-%d").GetString();
}

/** Watches that a window changes only by pictures that are copied to it whole. */
class ScreenWatch
{
  public:
    explicit ScreenWatch(HWND wnd) : m_wnd(wnd), m_last(ts::CaptureWindow(wnd)) { s_current = this; }
    ~ScreenWatch() { s_current = nullptr; }
    ScreenWatch(const ScreenWatch&) = delete;
    ScreenWatch& operator=(const ScreenWatch&) = delete;

    /** How many pictures were copied. Fails the test when anything else was drawn. */
    int Copies()
    {
        Compare();
        return m_copies;
    }

  private:
    void Compare() { EXPECT_TRUE(ts::SamePicture(m_last, ts::CaptureWindow(m_wnd))) << "drawn beside the copies"; }

    static BOOL WINAPI Copy(HDC to, int x, int y, int cx, int cy, HDC from, int fromX, int fromY, DWORD operation)
    {
        const bool watched = s_current && ::WindowFromDC(to) == s_current->m_wnd;
        if (watched) {
            s_current->Compare();
        }
        const BOOL copied = ::BitBlt(to, x, y, cx, cy, from, fromX, fromY, operation);
        if (watched) {
            ++s_current->m_copies;
            s_current->m_last = ts::CaptureWindow(s_current->m_wnd);
        }
        return copied;
    }

    static inline ScreenWatch* s_current = nullptr;
    HWND m_wnd;
    ts::Picture m_last;
    int m_copies = 0;
    ts::ReplacedImport m_import{L"afx.dll", "BitBlt", &Copy};
};

/** A calendar in a window; weeks begin with Sunday and the first month is March 2009, which begins with one. */
class CalendarFixture : public testing::Test
{
  protected:
    void Make(int rows = 1, int cols = 1, QorSpecialDayProc isSpecial = nullptr, void* data = nullptr)
    {
        m_calendar.SetFirstDayOfWeek(1);
        m_calendar.SetCurrentYearMonth(2009, 3);
        ASSERT_TRUE(m_calendar.Create(&m_host, kCalendarId, isSpecial, data, rows, cols));
        Show();
    }

    void Show()
    {
        m_calendar.RedrawWindow();
        ts::Settle();
    }

    ts::Picture Look() { return ts::CaptureWindow(m_calendar.m_hWnd); }

    /** Where a day is shown; null when it is not. */
    const RECT* PlaceOf(const COleDateTime& date)
    {
        for (int cell = 0; cell < m_calendar.m_nRows * m_calendar.m_nCols; ++cell) {
            for (const CalendarDay& day : m_calendar.m_pCells[static_cast<size_t>(cell)].days) {
                if (!IsRectEmpty(&day.rc) && day.date == date) {
                    return &day.rc;
                }
            }
        }
        return nullptr;
    }

    void MoveTo(const COleDateTime& date)
    {
        const RECT* place = PlaceOf(date);
        ASSERT_NE(nullptr, place) << "the day is not shown";
        const CPoint middle = CRect(place).CenterPoint();
        ts::MoveMouse(m_calendar.m_hWnd, middle.x, middle.y);
    }

    void MoveTo(const RECT& rect)
    {
        const CPoint middle = CRect(rect).CenterPoint();
        ts::MoveMouse(m_calendar.m_hWnd, middle.x, middle.y);
    }

    void PressOn(const COleDateTime& date)
    {
        MoveTo(date);
        ts::MouseDown();
    }

    void Drag(const COleDateTime& from, const COleDateTime& to)
    {
        PressOn(from);
        MoveTo(to);
        ts::MouseUp();
    }

    std::wstring FirstMonth() { return m_calendar.GetMonthName(m_calendar.m_nMonth, m_calendar.m_nYear).GetString(); }

    ts::AfxHost m_host{500, 400};
    CTestCalendar m_calendar;
};
