#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>

namespace
{

using namespace ids::calendar;

constexpr int kLeft = 12;
constexpr int kTop = 40;
constexpr int kSideLeft = 500;
constexpr int kSideRight = 716;
constexpr int kResultTop = 560;

constexpr SIZE kGrids[] = {{1, 1}, {2, 2}, {3, 4}};
constexpr UINT kMostDays[] = {0, 1, 7};

/** Sample data: the days on which something was recorded. */
int IsRecorded(COleDateTime& date, void* /*data*/)
{
    return date.GetDay() % 9 == 3 || date.GetDayOfWeek() == 6;
}

/** A calendar that the page's buttons can page, too. */
class CPageCalendar : public CQorCalendar
{
  public:
    using CQorCalendar::ScrollLeft;
    using CQorCalendar::ScrollRight;
    using CQorCalendar::SetFirstDayOfWeek;

    /** Opens the list of months as a click on the first header does, with the pointer on its middle row. */
    HWND OpenList()
    {
        const CPoint header = CRect(m_pCells[0].rcHdr).CenterPoint();
        SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(header.x, header.y));
        CWnd* list = m_bTrackMonth ? GetActiveWindow() : nullptr;
        if (!list) {
            return nullptr;
        }
        CPoint middle(header);
        ClientToScreen(&middle);
        CRect place;
        list->GetWindowRect(place);
        place.OffsetRect(middle - place.CenterPoint());
        list->MoveWindow(place);
        ::GetCursorPos(&m_pointer);
        ::SetCursorPos(middle.x, middle.y);
        return list->m_hWnd;
    }

    void CloseList()
    {
        SendMessage(WM_LBUTTONUP);
        ::SetCursorPos(m_pointer.x, m_pointer.y);
    }

    CString MonthAndYear() { return GetMonthName(m_nMonth, m_nYear); }
    int Year() const { return m_nYear; }
    int Month() const { return m_nMonth; }

  private:
    CPoint m_pointer; // where it was before the list of months
};

class CCalendarPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"four-months",
                 [this] {
                     Show({1, 2, 0, true, 10, 16});
                 }},
                {L"one-month",
                 [this] {
                     Show({0, 1, 1, false, 20, 20});
                 }},
                {L"twelve-months",
                 [this] {
                     Show({2, 2, 1, true, 28, 31});
                 }},
                {L"no-selection", [this] {
                     Show({0, 0, 0, true, 1, 1});
                 }}};
    }

    std::vector<PopupShot> Popups() override
    {
        return {{L"calendar-months", [this] { return m_calendar->OpenList(); }, [this] { m_calendar->CloseList(); }}};
    }

  protected:
    bool Build() override
    {
        if (!BuildChoices() || !AddLabel(L"", CRect(kLeft, kResultTop, kSideRight, kResultTop + 18), kResult)) {
            return false;
        }
        const COleDateTime today = COleDateTime::GetCurrentTime();
        m_year = today.GetYear();
        m_month = today.GetMonth();
        return Rebuild();
    }

    void Draw(CDC& dc) override
    {
        DrawHeading(dc, ConText(L"STR_CON_CALENDAR"), CRect(kLeft, 8, kSideLeft - 16, 28));
        DrawHeading(dc, ConText(L"STR_CON_CAL_OPTIONS"), CRect(kSideLeft, 8, kSideRight, 28));
    }

    afx_msg void OnGrid(UINT id)
    {
        m_grid = id - kGridFirst;
        Rebuild();
    }

    afx_msg void OnDays(UINT id)
    {
        m_days = id - kDaysFirst;
        m_calendar->SetMaxSelDays(kMostDays[m_days]);
        ShowResult();
    }

    afx_msg void OnWeek(UINT id)
    {
        m_week = id - kWeekFirst;
        Rebuild();
    }

    afx_msg void OnMarks()
    {
        m_marks = SendDlgItemMessage(kMarks, BM_GETCHECK) == BST_CHECKED;
        Rebuild();
    }

    afx_msg void OnEarlier()
    {
        m_calendar->ScrollLeft(1);
        ShowResult();
    }

    afx_msg void OnLater()
    {
        m_calendar->ScrollRight(1);
        ShowResult();
    }

    afx_msg void OnToday()
    {
        COleDateTime today = COleDateTime::GetCurrentTime();
        m_calendar->SetCurrentYearMonth(today.GetYear(), today.GetMonth());
        m_calendar->SetSelDate(today, today);
        ShowResult();
    }

    afx_msg void OnPrevious() { SelectOther(-1, -1); }
    afx_msg void OnNext() { SelectOther(1, 1); }
    afx_msg void OnLonger() { SelectOther(0, 1); }

    afx_msg void OnPicked(NMHDR* /*header*/, LRESULT* result)
    {
        ShowResult();
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()

  private:
    /** What is chosen on the page: indexes of radio buttons, and days of March 2009. */
    struct Choices
    {
        UINT grid;
        UINT days;
        UINT week;
        bool marks;
        int firstDay;
        int lastDay;
    };

    void Show(const Choices& shown)
    {
        m_marks = shown.marks;
        SendDlgItemMessage(kMarks, BM_SETCHECK, m_marks ? BST_CHECKED : BST_UNCHECKED);
        Choose(kGridFirst, kGridLast, m_grid = shown.grid);
        Choose(kDaysFirst, kDaysLast, m_days = shown.days);
        Choose(kWeekFirst, kWeekLast, m_week = shown.week);
        Rebuild();
        m_calendar->SetCurrentYearMonth(2009, 3);
        COleDateTime start(2009, 3, shown.firstDay, 0, 0, 0);
        COleDateTime end(2009, 3, shown.lastDay, 0, 0, 0);
        m_calendar->SetSelDate(start, end);
        ShowResult();
    }

    bool BuildChoices()
    {
        static constexpr LPCWSTR kRadioKeys[] = {L"STR_CON_CAL_ONE",  L"STR_CON_CAL_FOUR", L"STR_CON_CAL_TWELVE",
                                                 L"STR_CON_CAL_NONE", L"STR_CON_CAL_DAY",  L"STR_CON_CAL_WEEK",
                                                 L"STR_CON_CAL_SUN",  L"STR_CON_CAL_MON"};
        int y = kTop;
        for (UINT id = kGridFirst; id <= kWeekLast; ++id) {
            const bool first = id == kGridFirst || id == kDaysFirst || id == kWeekFirst;
            y += first && id != kGridFirst ? 16 : 0;
            if (!AddRadio(ConText(kRadioKeys[id - kGridFirst]), CRect(kSideLeft, y, kSideRight, y + 18), id, first)) {
                return false;
            }
            y += 22;
        }
        Choose(kGridFirst, kGridLast, m_grid);
        Choose(kDaysFirst, kDaysLast, m_days);
        Choose(kWeekFirst, kWeekLast, m_week);
        y += 16;
        CCheckBox* marks = AddCheck(ConText(L"STR_CON_CAL_MARKS"), CRect(kSideLeft, y, kSideRight, y + 18), kMarks);
        if (!marks) {
            return false;
        }
        marks->ModifyStyle(0, WS_GROUP); // ends the group of the radio buttons
        SendDlgItemMessage(kMarks, BM_SETCHECK, BST_CHECKED);
        return BuildButtons(y + 36);
    }

    bool BuildButtons(int y)
    {
        const CRect left(kSideLeft, y, kSideLeft + 100, y + 21);
        const CRect right(kSideLeft + 108, y, kSideLeft + 208, y + 21);
        return AddPush(ConText(L"STR_CON_CAL_EARLIER"), left, kEarlier) &&
               AddPush(ConText(L"STR_CON_CAL_LATER"), right, kLater) &&
               AddPush(ConText(L"STR_CON_CAL_TODAY"), left + CPoint(0, 30), kToday) &&
               AddPush(ConText(L"STR_CON_CAL_LONGER"), right + CPoint(0, 30), kLonger) &&
               AddPush(ConText(L"STR_CON_CAL_PREVIOUS"), left + CPoint(0, 60), kPrevious) &&
               AddPush(ConText(L"STR_CON_CAL_NEXT"), right + CPoint(0, 60), kNext);
    }

    /** Moves the ends of the selection, which only the mouse can do in the calendar itself. */
    void SelectOther(int startDays, int endDays)
    {
        COleDateTime end;
        COleDateTime start = m_calendar->GetSelDate(&end);
        if (start.GetStatus() != COleDateTime::valid) {
            OnToday();
            return;
        }
        start += COleDateTimeSpan(startDays, 0, 0, 0);
        end += COleDateTimeSpan(endDays, 0, 0, 0);
        if ((end - start).GetTotalDays() < kMostDays[m_days]) {
            m_calendar->SetSelDate(start, end);
        }
        ShowResult();
    }

    void Choose(UINT first, UINT last, UINT index) { CheckRadioButton(first, last, first + index); }

    /** Makes the calendar anew: its grid and its data are given at creation. */
    bool Rebuild()
    {
        if (m_calendar) {
            m_year = m_calendar->Year();
            m_month = m_calendar->Month();
            m_calendar->DestroyWindow();
        }
        m_calendar = std::make_unique<CPageCalendar>();
        m_calendar->SetBkColor(QorLook::kWhite);
        m_calendar->SetColors(RGB(70, 70, 70), QorLook::kSpecialDay);
        m_calendar->SetFirstDayOfWeek(m_week == 0 ? 1 : 2);
        m_calendar->SetMaxSelDays(kMostDays[m_days]);
        m_calendar->SetCurrentYearMonth(m_year, m_month);
        const SIZE grid = kGrids[m_grid];
        if (!m_calendar->Create(this, kCalendar, m_marks ? &IsRecorded : nullptr, nullptr, grid.cy, grid.cx)) {
            return false;
        }
        m_calendar->SetWindowPos(nullptr, kLeft, kTop, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        Invalidate(FALSE);
        ShowResult();
        return true;
    }

    void ShowResult()
    {
        COleDateTime end;
        const COleDateTime start = m_calendar->GetSelDate(&end);
        CString text;
        if (start.GetStatus() != COleDateTime::valid) {
            text.Format(ConFormat(L"STR_CON_CAL_EMPTY", L"%s"), m_calendar->MonthAndYear().GetString());
        } else {
            text.Format(ConFormat(L"STR_CON_CAL_RANGE", L"%s: %s - %s"), m_calendar->MonthAndYear().GetString(),
                        start.Format(VAR_DATEVALUEONLY).GetString(), end.Format(VAR_DATEVALUEONLY).GetString());
        }
        SetDlgItemText(kResult, text);
    }

    std::unique_ptr<CPageCalendar> m_calendar;
    UINT m_grid = 1;
    UINT m_days = 2;
    UINT m_week = 0;
    bool m_marks = true;
    int m_year = 0;
    int m_month = 0;
};

BEGIN_MESSAGE_MAP(CCalendarPage, CConsolePage)
    ON_CONTROL_RANGE(BN_CLICKED, kGridFirst, kGridLast, &CCalendarPage::OnGrid)
    ON_CONTROL_RANGE(BN_CLICKED, kDaysFirst, kDaysLast, &CCalendarPage::OnDays)
    ON_CONTROL_RANGE(BN_CLICKED, kWeekFirst, kWeekLast, &CCalendarPage::OnWeek)
    ON_BN_CLICKED(kMarks, &CCalendarPage::OnMarks)
    ON_BN_CLICKED(kEarlier, &CCalendarPage::OnEarlier)
    ON_BN_CLICKED(kLater, &CCalendarPage::OnLater)
    ON_BN_CLICKED(kToday, &CCalendarPage::OnToday)
    ON_BN_CLICKED(kPrevious, &CCalendarPage::OnPrevious)
    ON_BN_CLICKED(kNext, &CCalendarPage::OnNext)
    ON_BN_CLICKED(kLonger, &CCalendarPage::OnLonger)
    ON_NOTIFY(NM_CLICK, kCalendar, &CCalendarPage::OnPicked)
    ON_NOTIFY(NM_DBLCLK, kCalendar, &CCalendarPage::OnPicked)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeCalendarPage()
{
    return std::make_unique<CCalendarPage>();
}
