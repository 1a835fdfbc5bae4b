#include "Calendar.h"

#include <tests/support/NoWindowClasses.h>
#include <tests/support/Refusals.h>

#include <algorithm>
#include <clocale>
#include <map>
#include <new>

namespace
{

COleDateTime Invalid()
{
    COleDateTime date(2009, 3, 1, 0, 0, 0);
    date.SetStatus(COleDateTime::invalid);
    return date;
}

int g_fontsLeft = 0;

/** The system's function until its fonts run out. */
HFONT WINAPI FewFonts(const LOGFONTW* font)
{
    return g_fontsLeft-- > 0 ? ::CreateFontIndirectW(font) : nullptr;
}

void* NoMemory(size_t, const std::nothrow_t&) noexcept
{
    return nullptr;
}

std::vector<std::wstring> g_measured;

/** Gives a letter, a day and a header each a size of its own. */
BOOL WINAPI SizeByKind(HDC, LPCWSTR text, int length, SIZE* size)
{
    g_measured.emplace_back(text, static_cast<size_t>(length));
    *size = length == 1 ? SIZE{20, 9} : length == 2 ? SIZE{12, 40} : SIZE{10, 13};
    return TRUE;
}

std::wstring ClassOf(const CWnd& wnd)
{
    WCHAR name[100] = L"";
    ::GetClassNameW(wnd.m_hWnd, name, _countof(name));
    return name;
}

class Calendar : public CalendarFixture
{
  protected:
    std::wstring SelectedBy(COleDateTime start, COleDateTime end)
    {
        m_calendar.SetSelDate(start, end);
        return Selection(m_calendar);
    }

    bool NeedsPaint() { return GetUpdateRect(m_calendar.m_hWnd, nullptr, FALSE) != FALSE; }

    CSize Extent(CFont& font, const CString& text)
    {
        CClientDC dc(&m_calendar);
        CFont* old = dc.SelectObject(&font);
        const CSize size = dc.GetTextExtent(text);
        dc.SelectObject(old);
        return size;
    }
};

} // namespace

TEST_F(Calendar, NewOneShowsTodaysMonthAndSelectsNothing)
{
    const COleDateTime today = COleDateTime::GetCurrentTime();
    const CTestCalendar calendar;
    EXPECT_EQ(today.GetYear(), calendar.m_nYear);
    EXPECT_EQ(today.GetMonth(), calendar.m_nMonth);
    EXPECT_EQ(1u, calendar.m_nMaxSelDays);
    EXPECT_EQ(L"none", Selection(m_calendar));
    EXPECT_EQ(0, calendar.m_nRows);
}

TEST_F(Calendar, NewOneHasItsDefaultColours)
{
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), m_calendar.m_crBk);
    EXPECT_EQ(GetSysColor(COLOR_GRAYTEXT), m_calendar.m_crNormal);
    EXPECT_EQ(RGB(0, 0, 255), m_calendar.m_crSpecial);
}

TEST_F(Calendar, BuildingLeavesEnglishDatesInTheRuntime)
{
    setlocale(LC_TIME, "C");
    const CTestCalendar calendar;
    EXPECT_EQ(0u, std::string(setlocale(LC_TIME, nullptr)).find("English"));
}

TEST_F(Calendar, MonthNamesEndWithTheYear)
{
    m_calendar.m_strMonths[2] = L"March";
    EXPECT_STREQ(L"March 2009", m_calendar.GetMonthName(3, 2009).GetString());
    EXPECT_STREQ(L" 2009", m_calendar.GetMonthName(0, 2009).GetString());
    EXPECT_STREQ(L" 2009", m_calendar.GetMonthName(13, 2009).GetString());
}

TEST_F(Calendar, WeekdayOutOfRangeIsIgnored)
{
    m_calendar.SetFirstDayOfWeek(3);
    m_calendar.SetFirstDayOfWeek(0);
    m_calendar.SetFirstDayOfWeek(8);
    EXPECT_EQ(3, m_calendar.m_nFirstDayOfWeek);
}

TEST_F(Calendar, CreateRefusesAMissingParent)
{
    EXPECT_FALSE(m_calendar.Create(nullptr, kCalendarId, nullptr, nullptr, 1, 1));
    CWnd noWindow;
    EXPECT_FALSE(m_calendar.Create(&noWindow, kCalendarId, nullptr, nullptr, 1, 1));
    EXPECT_EQ(0, m_calendar.m_nRows);
    EXPECT_EQ(0, m_calendar.m_nCols);
    EXPECT_EQ(nullptr, m_calendar.m_pCells.get());
}

TEST_F(Calendar, CreateRefusesSizesOutOfRange)
{
    for (const int count : {0, -1, 21, INT_MAX, INT_MIN}) {
        EXPECT_FALSE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, count, 1)) << count;
        EXPECT_FALSE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, count)) << count;
    }
    EXPECT_EQ(nullptr, m_calendar.m_hWnd);
}

TEST_F(Calendar, CreateWorksAfterARefusal)
{
    EXPECT_FALSE(m_calendar.Create(nullptr, kCalendarId, nullptr, nullptr, 1, 1));
    EXPECT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 1));
    EXPECT_FALSE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 1));
    EXPECT_EQ(1, m_calendar.m_nRows);
}

TEST_F(Calendar, CreateFailsWithoutItsFontsOrItsWindow)
{
    const auto create = [this] { return m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 2, 3); };
    for (const int fonts : {0, 1, 2, 3}) { // each of the two is made twice
        const ts::ReplacedImport few(L"afx.dll", "CreateFontIndirectW", &FewFonts);
        g_fontsLeft = fonts;
        EXPECT_FALSE(create()) << fonts;
        EXPECT_EQ(nullptr, m_calendar.m_hWnd) << fonts;
        EXPECT_EQ(nullptr, m_calendar.m_pCells.get()) << fonts;
        EXPECT_EQ(0, m_calendar.m_nRows + m_calendar.m_nCols) << fonts;
    }
    {
        const ts::ReplacedImport none(L"afx.dll", "CreateWindowExW", &ts::NoWindow);
        EXPECT_FALSE(create());
        EXPECT_EQ(nullptr, m_calendar.m_pCells.get());
        EXPECT_EQ(0, m_calendar.m_nRows + m_calendar.m_nCols);
    }
    EXPECT_EQ(nullptr, ::GetWindow(m_host.m_hWnd, GW_CHILD)) << "no window is left";
    EXPECT_TRUE(create());
}

TEST_F(Calendar, CreateFailsWithoutMemoryForItsCells)
{
    const auto create = [this] { return m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 2, 3); };
    {
        const ts::ReplacedImport none(L"QorUI.dll", "_ZnayRKSt9nothrow_t", &NoMemory);
        EXPECT_FALSE(create());
    }
    EXPECT_EQ(nullptr, m_calendar.m_pCells.get());
    EXPECT_EQ(0, m_calendar.m_nRows + m_calendar.m_nCols);
    EXPECT_EQ(nullptr, ::GetWindow(m_host.m_hWnd, GW_CHILD));
    EXPECT_TRUE(create());
}

TEST_F(Calendar, CreateFailsWithoutADeviceContextOrAWindowClass)
{
    const auto create = [this] { return m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 2, 3); };
    {
        const ts::ReplacedImport none(L"afx.dll", "GetDC", &ts::NoDc);
        EXPECT_FALSE(create());
    }
    EXPECT_EQ(nullptr, m_calendar.m_hWnd);
    EXPECT_EQ(nullptr, m_calendar.m_pCells.get());
    EXPECT_EQ(0, m_calendar.m_nRows + m_calendar.m_nCols);
    {
        const ts::NoWindowClasses none;
        EXPECT_FALSE(create());
    }
    EXPECT_EQ(nullptr, m_calendar.m_pCells.get());
    EXPECT_EQ(0, m_calendar.m_nRows + m_calendar.m_nCols);
    EXPECT_EQ(nullptr, ::GetWindow(m_host.m_hWnd, GW_CHILD)) << "no window is left";
    EXPECT_TRUE(create());
}

TEST_F(Calendar, CellsOfAFormerWindowDoNotOutliveAFailedCreate)
{
    Make(2, 3);
    m_calendar.DestroyWindow();
    EXPECT_FALSE(m_calendar.Create(nullptr, kCalendarId, nullptr, nullptr, 1, 1));
    EXPECT_EQ(nullptr, m_calendar.m_pCells.get());
    EXPECT_EQ(0, m_calendar.m_nRows + m_calendar.m_nCols);
    Make(2, 3);
    m_calendar.DestroyWindow();
    {
        const ts::ReplacedImport none(L"QorUI.dll", "_ZnayRKSt9nothrow_t", &NoMemory);
        EXPECT_FALSE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 1));
    }
    ASSERT_EQ(0, m_calendar.m_nRows + m_calendar.m_nCols);
    CPoint point(5, 5);
    EXPECT_FALSE(m_calendar.InCellHdr(point));
    EXPECT_FALSE(m_calendar.InCellDay(point));
    m_calendar.ScrollRight(1);
    EXPECT_EQ(3, m_calendar.m_nMonth) << "there is no grid to page by";
}

TEST_F(Calendar, WindowIsAsLargeAsItsMonths)
{
    Make(2, 3);
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_VISIBLE), m_calendar.GetStyle() & ~WS_CLIPSIBLINGS);
    CWnd plain;
    ASSERT_TRUE(plain.Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 0, 0), &m_host, kCalendarId + 1));
    EXPECT_EQ(ClassOf(plain), ClassOf(m_calendar));
    CRect rect;
    m_calendar.GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(CRect(0, 0, 3 * m_calendar.m_nCellWidth, 2 * m_calendar.m_nCellHeight), rect);
    EXPECT_EQ(static_cast<int>(kCalendarId), m_calendar.GetDlgCtrlID());
}

TEST_F(Calendar, LargestGridIsCreated)
{
    Make(20, 20);
    CRect rect;
    m_calendar.GetClientRect(rect);
    EXPECT_EQ(CSize(20 * m_calendar.m_nCellWidth, 20 * m_calendar.m_nCellHeight), rect.Size());
}

TEST_F(Calendar, CellsBeginWithoutPlacesAndWithValidDates)
{
    m_calendar.SetFirstDayOfWeek(1);
    ASSERT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 2, 2));
    for (const CalendarDay& day : m_calendar.m_pCells[3].days) {
        EXPECT_TRUE(IsRectEmpty(&day.rc));
        EXPECT_EQ(COleDateTime::valid, day.date.GetStatus());
        EXPECT_EQ(0.0, day.date.m_dt);
    }
}

TEST_F(Calendar, FontsAreTahomaOfSevenPoints)
{
    Make();
    LOGFONTW bold = {};
    LOGFONTW normal = {};
    ASSERT_TRUE(m_calendar.m_fontBold.GetLogFont(&bold));
    ASSERT_TRUE(m_calendar.m_fontNormal.GetLogFont(&normal));
    CClientDC dc(&m_calendar);
    const LONG height = -MulDiv(7, dc.GetDeviceCaps(LOGPIXELSY), 72);
    for (const LOGFONTW& font : {bold, normal}) {
        EXPECT_STREQ(L"Tahoma", font.lfFaceName);
        EXPECT_EQ(height, font.lfHeight);
        EXPECT_EQ(PROOF_QUALITY, font.lfQuality);
    }
    EXPECT_EQ(700, bold.lfWeight);
    EXPECT_EQ(500, normal.lfWeight);
}

TEST_F(Calendar, GeometryComesFromTheMeasuredTexts)
{
    Make();
    int dayWidth = 0;
    int dayHeight = 0;
    for (int day = 1; day <= 31; ++day) {
        CString text;
        text.Format(L"%02d", day);
        const CSize size = Extent(m_calendar.m_fontNormal, text);
        dayWidth = (std::max)(dayWidth, static_cast<int>(size.cx));
        dayHeight = (std::max)(dayHeight, static_cast<int>(size.cy));
    }
    int letterWidth = 0;
    int letterHeight = 0;
    for (const wchar_t* letter : {L"S", L"M", L"T", L"W", L"F"}) {
        const CSize size = Extent(m_calendar.m_fontNormal, letter);
        letterWidth = (std::max)(letterWidth, static_cast<int>(size.cx));
        letterHeight = (std::max)(letterHeight, static_cast<int>(size.cy));
    }
    const int days = (3 * dayHeight + 6) * 2;
    int headerWidth = days;
    int headerHeight = 0;
    for (int year = 1999; year <= 2019; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const CSize size = Extent(m_calendar.m_fontBold, m_calendar.GetMonthName(month, year));
            headerWidth = (std::max)(headerWidth, static_cast<int>(size.cx));
            headerHeight = (std::max)(headerHeight, static_cast<int>(size.cy));
        }
    }
    EXPECT_EQ(dayHeight, m_calendar.m_nDayHeight);
    EXPECT_EQ((std::max)(dayWidth, letterWidth), m_calendar.m_nDayWidth);
    EXPECT_EQ(letterHeight, m_calendar.m_nDowHeight);
    EXPECT_EQ(headerHeight + 2, m_calendar.m_nHdrHeight);
    EXPECT_EQ((std::max)({headerWidth + 4, 7 * letterWidth + 40, 7 * dayWidth + 40}), m_calendar.m_nCellWidth);
    EXPECT_EQ(headerHeight + 2 + letterHeight + days + 4, m_calendar.m_nCellHeight);
}

TEST_F(Calendar, HeadersAreAtLeastAsWideAsTheWeeksAreHigh)
{
    g_measured.clear();
    {
        const ts::ReplacedImport sizes(L"afx.dll", "GetTextExtentPoint32W", &SizeByKind);
        Make();
    }
    EXPECT_EQ(20, m_calendar.m_nDayWidth) << "as wide as a letter";
    EXPECT_EQ(40, m_calendar.m_nDayHeight);
    EXPECT_EQ(9, m_calendar.m_nDowHeight);
    EXPECT_EQ(13 + 2, m_calendar.m_nHdrHeight);
    EXPECT_EQ(252 + 4, m_calendar.m_nCellWidth);
    EXPECT_EQ(15 + 9 + 252 + 4, m_calendar.m_nCellHeight);
}

TEST_F(Calendar, DaysLettersAndTheHeadersOfTwentyOneYearsAreMeasured)
{
    g_measured.clear();
    {
        const ts::ReplacedImport sizes(L"afx.dll", "GetTextExtentPoint32W", &SizeByKind);
        Make();
    }
    std::map<size_t, std::vector<std::wstring>> texts; // by length; all headers under 3
    for (const std::wstring& text : g_measured) {
        texts[(std::min)(text.size(), size_t{3})].push_back(text);
    }
    ASSERT_EQ(3u, texts.size());
    EXPECT_EQ((std::vector<std::wstring>{L"S", L"M", L"T", L"W", L"F"}), texts[1]);
    ASSERT_EQ(31u, texts[2].size());
    EXPECT_EQ(L"01", texts[2].front());
    EXPECT_EQ(L"31", texts[2].back());
    ASSERT_EQ(21u * 12, texts[3].size());
    EXPECT_EQ(m_calendar.GetMonthName(1, 1999).GetString(), texts[3].front());
    EXPECT_EQ(m_calendar.GetMonthName(12, 2019).GetString(), texts[3].back());
}

TEST_F(Calendar, MeasuringAgainLeavesTheWindowInItsPlace)
{
    Make();
    m_calendar.MoveWindow(30, 40, 10, 10);
    EXPECT_TRUE(m_calendar.AdjustWndPos());
    CRect rect;
    m_calendar.GetWindowRect(rect);
    m_host.ScreenToClient(rect);
    EXPECT_EQ(CRect(CPoint(30, 40), CSize(m_calendar.m_nCellWidth, m_calendar.m_nCellHeight)), rect);
}

TEST_F(Calendar, LongHeadersWidenTheCells)
{
    for (CString& name : m_calendar.m_strMonths) {
        name = L"A month with an unusually long name";
    }
    Make();
    EXPECT_EQ(Extent(m_calendar.m_fontBold, L"A month with an unusually long name 2009").cx + 4,
              m_calendar.m_nCellWidth);
}

TEST_F(Calendar, HeadersOfTheNextTenYearsFit)
{
    for (CString& name : m_calendar.m_strMonths) {
        name = L"A month with an unusually long name";
    }
    const auto width = [this](int year) {
        m_calendar.SetCurrentYearMonth(year, 1);
        EXPECT_TRUE(m_calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 1, 1));
        const int cell = m_calendar.m_nCellWidth;
        m_calendar.DestroyWindow();
        return cell;
    };
    const int digits = width(500); // three in every year
    EXPECT_EQ(digits, width(989));
    EXPECT_LT(digits, width(990)) << "the year 1000";
}

TEST_F(Calendar, YearAndMonthAreTakenIntoRange)
{
    m_calendar.SetCurrentYearMonth(100, 5);
    EXPECT_EQ(101, m_calendar.m_nYear);
    EXPECT_EQ(5, m_calendar.m_nMonth);
    m_calendar.SetCurrentYearMonth(2009, 13);
    EXPECT_EQ(2009, m_calendar.m_nYear);
    EXPECT_EQ(12, m_calendar.m_nMonth);
    m_calendar.SetCurrentYearMonth(10000, 0);
    EXPECT_EQ(9999, m_calendar.m_nYear);
    EXPECT_EQ(1, m_calendar.m_nMonth);
    m_calendar.SetCurrentYearMonth(INT_MIN, INT_MAX);
    EXPECT_EQ(101, m_calendar.m_nYear);
    EXPECT_EQ(12, m_calendar.m_nMonth);
}

TEST_F(Calendar, OnlyANewMonthIsPainted)
{
    Make();
    m_calendar.SetCurrentYearMonth(2009, 3);
    EXPECT_FALSE(NeedsPaint());
    m_calendar.SetCurrentYearMonth(2009, 4);
    EXPECT_TRUE(NeedsPaint());
}

TEST_F(Calendar, ChangesAndRedrawsErase)
{
    Make();
    ts::MessageRecorder log(m_calendar.m_hWnd);
    log.RecordOnly({WM_ERASEBKGND});
    m_calendar.SetCurrentYearMonth(2009, 4);
    m_calendar.UpdateWindow();
    EXPECT_EQ(1u, log.Messages().size());
    m_calendar.ScrollRight(0);
    EXPECT_EQ(2u, log.Messages().size());
}

TEST_F(Calendar, OneDayTakesTheStartAlone)
{
    EXPECT_EQ(L"2009-03-10 to 2009-03-10", SelectedBy(Date(2009, 3, 10), Date(2009, 3, 20)));
    EXPECT_EQ(L"2009-03-10 to 2009-03-10", SelectedBy(Date(2009, 3, 10), Invalid()));
}

TEST_F(Calendar, RangeIsPutInOrderAndNotCutToTheMostDays)
{
    m_calendar.SetMaxSelDays(3);
    EXPECT_EQ(L"2009-03-10 to 2009-03-20", SelectedBy(Date(2009, 3, 10), Date(2009, 3, 20)));
    EXPECT_EQ(L"2009-03-10 to 2009-03-20", SelectedBy(Date(2009, 3, 20), Date(2009, 3, 10)));
}

TEST_F(Calendar, SelectionLosesTheTimeOfDay)
{
    m_calendar.SetMaxSelDays(7);
    COleDateTime start(2009, 3, 10, 23, 59, 59);
    COleDateTime end(2009, 3, 12, 12, 0, 0);
    m_calendar.SetSelDate(start, end);
    EXPECT_EQ(L"2009-03-10 00:00", Text(m_calendar.m_dtSelStart));
    EXPECT_EQ(L"2009-03-12 00:00", Text(m_calendar.m_dtSelEnd));
    EXPECT_EQ(L"2009-03-10 23:59", Text(start));
}

TEST_F(Calendar, InvalidDateSelectsNothing)
{
    m_calendar.SetMaxSelDays(7);
    SelectedBy(Date(2009, 3, 10), Date(2009, 3, 12));
    EXPECT_EQ(L"none", SelectedBy(Date(2009, 3, 10), Invalid()));
    EXPECT_NE(COleDateTime::valid, m_calendar.m_dtSelStart.GetStatus());
    EXPECT_NE(COleDateTime::valid, m_calendar.m_dtSelEnd.GetStatus());
    SelectedBy(Date(2009, 3, 10), Date(2009, 3, 12));
    EXPECT_EQ(L"none", SelectedBy(Invalid(), Date(2009, 3, 10)));
}

TEST_F(Calendar, ForbiddenSelectionIgnoresDates)
{
    m_calendar.SetMaxSelDays(0);
    EXPECT_EQ(L"none", SelectedBy(Date(2009, 3, 10), Date(2009, 3, 10)));
}

TEST_F(Calendar, FewerDaysCutTheSelection)
{
    m_calendar.SetMaxSelDays(7);
    SelectedBy(Date(2009, 3, 10), Date(2009, 3, 12));
    m_calendar.SetMaxSelDays(1);
    EXPECT_EQ(L"2009-03-10 to 2009-03-10", Selection(m_calendar));
    m_calendar.SetMaxSelDays(0);
    EXPECT_EQ(L"none", Selection(m_calendar));
}

TEST_F(Calendar, SelectionMayBeReadWithoutItsEnd)
{
    SelectedBy(Date(2009, 3, 10), Date(2009, 3, 10));
    EXPECT_EQ(L"2009-03-10 00:00", Text(m_calendar.GetSelDate(nullptr)));
}

TEST_F(Calendar, ChangesArePaintedAndRepetitionsAreNot)
{
    Make();
    m_calendar.SetMaxSelDays(1);
    m_calendar.SetColors(m_calendar.m_crNormal, m_calendar.m_crSpecial);
    EXPECT_FALSE(NeedsPaint());
    m_calendar.SetMaxSelDays(7);
    EXPECT_TRUE(NeedsPaint());
    Show();
    m_calendar.SetColors(RGB(1, 1, 1), m_calendar.m_crSpecial);
    EXPECT_TRUE(NeedsPaint());
    Show();
    m_calendar.SetColors(RGB(1, 1, 1), RGB(2, 2, 2));
    EXPECT_TRUE(NeedsPaint());
    Show();
    m_calendar.SetBkColor(m_calendar.m_crBk);
    EXPECT_TRUE(NeedsPaint());
    Show();
    SelectedBy(Date(2009, 3, 10), Date(2009, 3, 10));
    EXPECT_TRUE(NeedsPaint());
}

TEST_F(Calendar, AllWorksWithoutAWindow)
{
    m_calendar.SetCurrentYearMonth(2009, 3);
    m_calendar.SetBkColor(RGB(1, 2, 3));
    m_calendar.SetColors(RGB(1, 2, 3), RGB(4, 5, 6));
    m_calendar.SetMaxSelDays(7);
    EXPECT_EQ(L"2009-03-10 to 2009-03-12", SelectedBy(Date(2009, 3, 10), Date(2009, 3, 12)));
    m_calendar.ClearDays();
    m_calendar.ScrollRight(1);
    m_calendar.FireNotify(1);
    CPoint point(5, 5);
    EXPECT_EQ(nullptr, m_calendar.DayHitTest(point));
    EXPECT_EQ(nullptr, m_calendar.HdrHitTest(point));
    EXPECT_EQ(3, m_calendar.m_nMonth);
}

TEST_F(Calendar, PlacesOutOfRangeAreIgnored)
{
    Make(2, 2);
    const RECT rect = {1, 2, 3, 4};
    COleDateTime date = Date(2009, 3, 1);
    std::vector<CRect> before;
    for (size_t i = 0; i < 4; ++i) {
        before.push_back(m_calendar.m_pCells[i].rcHdr);
        before.push_back(m_calendar.m_pCells[i].rcCell);
        before.push_back(m_calendar.m_pCells[i].days[41].rc);
    }
    for (const CPoint cell : {CPoint(0, 1), CPoint(1, 0), CPoint(3, 1), CPoint(1, 3), CPoint(-5, 1000)}) {
        m_calendar.SetCellHdrPos(cell.x, cell.y, rect);
        m_calendar.SetCellPos(cell.x, cell.y, rect);
        m_calendar.SetCellDayPos(cell.x, cell.y, 0, date, rect);
    }
    m_calendar.SetCellDayPos(1, 1, 42, date, rect);
    m_calendar.SetCellDayPos(1, 1, -1, date, rect);
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(before[3 * i], CRect(m_calendar.m_pCells[i].rcHdr));
        EXPECT_EQ(before[3 * i + 1], CRect(m_calendar.m_pCells[i].rcCell));
        EXPECT_EQ(before[3 * i + 2], CRect(m_calendar.m_pCells[i].days[41].rc));
    }
}

TEST_F(Calendar, CellsLieRowByRow)
{
    Make(2, 3);
    const CalendarCell& cell = m_calendar.m_pCells[4];
    EXPECT_EQ(2, cell.nRow);
    EXPECT_EQ(2, cell.nCol);
    EXPECT_TRUE(cell.days[20].date.GetMonth() == 7);
}

TEST_F(Calendar, SurvivesItsParent)
{
    Make();
    m_host.DestroyWindow();
    EXPECT_EQ(nullptr, m_calendar.m_hWnd);
    m_calendar.SetBkColor(RGB(1, 2, 3));
    m_calendar.ScrollRight(1);
    EXPECT_EQ(L"none", Selection(m_calendar));
}

TEST_F(Calendar, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak(
        [this] {
            CTestCalendar calendar;
            calendar.Create(&m_host, kCalendarId, nullptr, nullptr, 2, 2);
            calendar.RedrawWindow();
            calendar.DestroyWindow();
        },
        200));
}
