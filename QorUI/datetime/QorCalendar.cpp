#include "QorCalendar.h"

#include "CalendarLayout.h"
#include "CalendarNames.h"
#include "SelMonthWnd.h"

#include <QorUI/app/base/Invalidate.h>
#include <QorUI/app/base/NotifyParent.h>
#include <QorUI/app/draw/GdiSavers.h>
#include <QorUI/app/draw/MemDC.h>
#include <QorUI/app/look/Palette.h>
#include <QorUI/app/look/SysLook.h>

#include <new>
#include <utility>

BEGIN_MESSAGE_MAP(CQorCalendar, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_FONTCHANGE()
    ON_WM_TIMECHANGE()
    ON_WM_PALETTECHANGED()
    ON_WM_DEVMODECHANGE()
    ON_WM_SETTINGCHANGE()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace
{

constexpr LPCWSTR kFace = L"Tahoma";
constexpr int kPoints = 7;
constexpr LONG kNormalWeight = 500;
constexpr LONG kBoldWeight = 700;
constexpr COLORREF kSelected = RGB(0, 84, 227);
constexpr COLORREF kSelectedText = QorLook::kWhite;
constexpr int kMeasuredYears = 10; ///< headers are measured so many years around the first one
constexpr int kLinedRows = 7;      ///< the grid height that gets a line under each month

COleDateTime NoDate()
{
    COleDateTime date;
    date.SetStatus(COleDateTime::invalid);
    return date;
}

bool IsValid(const COleDateTime& date)
{
    return date.GetStatus() == COleDateTime::valid;
}

COleDateTime DateOnly(const COleDateTime& date)
{
    return COleDateTime(date.GetYear(), date.GetMonth(), date.GetDay(), 0, 0, 0);
}

/** Grows a size to hold another one. */
void Grow(CSize& size, const CSize& other)
{
    size.cx = (std::max)(size.cx, other.cx);
    size.cy = (std::max)(size.cy, other.cy);
}

/** A horizontal line of `width` pixels. */
void DrawRule(CDC& dc, int x, int y, int width)
{
    dc.FillSolidRect(x, y, width, 1, QorSysLook.m_clrBtnShadow);
}

} // namespace

CQorCalendar::CQorCalendar()
    : m_nFirstDayOfWeek(1),
      m_nMaxSelDays(1),
      m_crBk(QorSysLook.m_clrWindow),
      m_crNormal(QorSysLook.m_clrGrayText),
      m_crSpecial(QorLook::kSpecialDay),
      m_pfnIsSpecial(nullptr),
      m_pData(nullptr),
      m_bTrackDay(FALSE),
      m_dtAnchor(NoDate()),
      m_bTrackArrow(FALSE),
      m_bTrackMonth(FALSE),
      m_pHdrCell(nullptr),
      m_rcLeftArrow{},
      m_rcRightArrow{},
      m_nHdrHeight(0),
      m_nDayWidth(0),
      m_nDowHeight(0),
      m_nDayHeight(0),
      m_nCellWidth(0),
      m_nCellHeight(0),
      m_dtSelStart(NoDate()),
      m_dtSelEnd(NoDate()),
      m_nRows(0),
      m_nCols(0)
{
    const COleDateTime today = COleDateTime::GetCurrentTime();
    m_nYear = today.GetYear();
    m_nMonth = today.GetMonth();
    const QorMonthNames months = QorGetMonthNames("", LOCALE_NAME_USER_DEFAULT);
    std::copy(months.begin(), months.end(), m_strMonths);
    SetFirstDayOfWeek(QorGetFirstDayOfWeek(LOCALE_USER_DEFAULT));
}

CQorCalendar::~CQorCalendar()
{
    CloseMonthList();
    if (m_hWnd) {
        DestroyWindow();
    }
}

void CQorCalendar::SetFirstDayOfWeek(int day)
{
    if (day < 1 || day > QorMonth::kWeekDays) {
        return;
    }
    m_nFirstDayOfWeek = day;
    const QorDayInitials initials = QorGetDayInitials(day);
    std::copy(initials.begin(), initials.end(), m_strDays);
}

CString CQorCalendar::GetMonthName(int month, int year)
{
    CString name;
    if (month >= 1 && month <= QorMonth::kMonths) {
        name = m_strMonths[month - 1];
    }
    name.AppendFormat(L" %d", year);
    return name;
}

BOOL CQorCalendar::Create(CWnd* parent, UINT id, QorSpecialDayProc isSpecial, void* data, int rows, int cols)
{
    if (m_hWnd) {
        return FALSE;
    }
    FreeCells(); // of a former window
    if (!parent || rows < 1 || rows > QorMonth::kMaxGrid || cols < 1 || cols > QorMonth::kMaxGrid) {
        return FALSE;
    }
    m_pCells.reset(new (std::nothrow) CalendarCell[static_cast<size_t>(rows) * static_cast<size_t>(cols)]);
    if (!m_pCells) {
        return FALSE;
    }
    m_pfnIsSpecial = isSpecial;
    m_pData = data;
    m_nRows = rows;
    m_nCols = cols;
    if (MakeWindow(parent, id)) {
        return TRUE;
    }
    FreeCells();
    return FALSE;
}

void CQorCalendar::FreeCells()
{
    m_pCells.reset();
    m_nRows = m_nCols = 0;
}

BOOL CQorCalendar::MakeWindow(CWnd* parent, UINT id)
{
    try {
        if (CWnd::Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 0, 0), parent, id) && AdjustWndPos()) {
            return TRUE;
        }
    } catch (CException* exception) { // there is no window class or no device context
        exception->Delete();
    }
    DestroyWindow();
    return FALSE;
}

BOOL CQorCalendar::CreateFont(CDC& dc, CFont& font, BOOL bold)
{
    font.DeleteObject();
    LOGFONTW logFont = {};
    if (!font.CreatePointFont(kPoints * 10, kFace) || !font.GetLogFont(&logFont)) {
        return FALSE;
    }
    logFont.lfWeight = bold ? kBoldWeight : kNormalWeight;
    logFont.lfQuality = PROOF_QUALITY;
    logFont.lfHeight = -::MulDiv(kPoints, dc.GetDeviceCaps(LOGPIXELSY), 72);
    font.DeleteObject();
    return font.CreateFontIndirect(&logFont);
}

BOOL CQorCalendar::AdjustWndPos()
{
    CClientDC dc(this);
    if (!CreateFont(dc, m_fontBold, TRUE) || !CreateFont(dc, m_fontNormal, FALSE)) {
        return FALSE;
    }
    MeasureDays(dc);
    const int daysHeight = QorMonth::DaysHeight(m_nDayHeight);
    const int headerWidth = MeasureHeaders(dc, daysHeight);
    const int width = QorMonth::CellWidth(headerWidth, m_nDayWidth);
    const int height = QorMonth::CellHeight(m_nHdrHeight, m_nDowHeight, daysHeight);
    if (width > 0) {
        m_nCellWidth = width;
    }
    if (height > 0) {
        m_nCellHeight = height;
    }
    return SetWindowPos(nullptr, 0, 0, m_nCols * m_nCellWidth, m_nRows * m_nCellHeight, SWP_NOMOVE | SWP_SHOWWINDOW);
}

/** Measures the days and the weekday initials. */
void CQorCalendar::MeasureDays(CDC& dc)
{
    const SelectSaver font(dc, m_fontNormal);
    CSize days(0, 0);
    for (int day = 1; day <= 31; ++day) {
        CString text;
        text.Format(L"%02d", day);
        Grow(days, dc.GetTextExtent(text));
    }
    CSize initials(0, 0);
    for (const WCHAR* letter = L"SMTWF"; *letter; ++letter) {
        Grow(initials, dc.GetTextExtent(letter, 1));
    }
    m_nDayHeight = days.cy;
    m_nDowHeight = initials.cy;
    m_nDayWidth = (std::max)(days.cx, initials.cx);
}

/** Measures the headers of the years around the first one. @return width of the widest, at least `leastWidth` */
int CQorCalendar::MeasureHeaders(CDC& dc, int leastWidth)
{
    const SelectSaver font(dc, m_fontBold);
    CSize header(leastWidth, 0);
    for (int year = m_nYear - kMeasuredYears; year <= m_nYear + kMeasuredYears; ++year) {
        for (int month = 1; month <= QorMonth::kMonths; ++month) {
            Grow(header, dc.GetTextExtent(GetMonthName(month, year)));
        }
    }
    m_nHdrHeight = header.cy + 2;
    return header.cx;
}

void CQorCalendar::SetCurrentYearMonth(int year, int month)
{
    month = std::clamp(month, 1, QorMonth::kMonths);
    year = std::clamp(year, QorMonth::kFirstYear, QorMonth::kLastYear);
    if (year == m_nYear && month == m_nMonth) {
        return;
    }
    m_nYear = year;
    m_nMonth = month;
    QorInvalidate(*this);
}

void CQorCalendar::SetMaxSelDays(UINT days)
{
    if (days == m_nMaxSelDays) {
        return;
    }
    m_nMaxSelDays = days;
    if (days == 1) {
        m_dtSelEnd = m_dtSelStart;
    } else if (days == 0) {
        Select(NoDate(), NoDate());
    }
    QorInvalidate(*this);
}

void CQorCalendar::SetSelDate(COleDateTime& start, COleDateTime& end)
{
    if (m_nMaxSelDays == 0) {
        return;
    }
    const COleDateTime last = m_nMaxSelDays == 1 ? start : end;
    QorInvalidate(*this);
    if (!IsValid(start) || !IsValid(last)) {
        Select(NoDate(), NoDate());
    } else if (start > last) {
        Select(DateOnly(last), DateOnly(start));
    } else {
        Select(DateOnly(start), DateOnly(last));
    }
}

COleDateTime CQorCalendar::GetSelDate(COleDateTime* end)
{
    if (end) {
        *end = m_dtSelEnd;
    }
    return m_dtSelStart;
}

void CQorCalendar::SetBkColor(COLORREF background)
{
    m_crBk = background;
    QorInvalidate(*this);
}

void CQorCalendar::SetColors(COLORREF normal, COLORREF special)
{
    if (normal == m_crNormal && special == m_crSpecial) {
        return;
    }
    m_crNormal = normal;
    m_crSpecial = special;
    QorInvalidate(*this);
}

void CQorCalendar::Select(const COleDateTime& start, const COleDateTime& end)
{
    m_dtSelStart = start;
    m_dtSelEnd = end;
}

void CQorCalendar::Repaint()
{
    if (m_hWnd) {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
}

// Painting

BOOL CQorCalendar::OnEraseBkgnd(CDC* /*dc*/)
{
    return FALSE;
}

void CQorCalendar::OnPaint()
{
    CPaintDC paintDc(this);
    CMemDC dc(&paintDc);
    CRect client;
    GetClientRect(client);
    dc.FillSolidRect(client, m_crBk);
    dc.SetBkMode(TRANSPARENT);
    QorMonth::Month month = {m_nYear, m_nMonth};
    for (int row = 1; row <= m_nRows; ++row) {
        for (int col = 1; col <= m_nCols; ++col) {
            DrawMonth(dc, row, col, month.month, month.year);
            month = QorMonth::AddMonths(month, 1);
        }
    }
}

void CQorCalendar::DrawMonth(CDC& dc, int row, int col, int month, int year)
{
    const int x = (col - 1) * m_nCellWidth;
    int y = (row - 1) * m_nCellHeight;
    y += DrawHeader(dc, y, x, row, col, month, year);
    y += DrawDaysOfWeek(dc, y, x);
    DrawDays(dc, y, x, row, col, month, year);
}

int CQorCalendar::DrawHeader(CDC& dc, int y, int x, int row, int col, int month, int year)
{
    const CRect bar(x, y, x + m_nCellWidth - 1, y + m_nHdrHeight);
    dc.FillSolidRect(bar, QorSysLook.m_clrBtnFace);
    dc.Draw3dRect(bar, QorSysLook.m_clrWindow, QorSysLook.m_clrBtnShadow);
    const SelectSaver font(dc, m_fontBold);
    const TextModeSaver mode(dc, QorSysLook.m_clrBtnText, TRANSPARENT);
    CRect text = QorMonth::HeaderText(x, y, m_nCellWidth, m_nHdrHeight);
    dc.DrawText(GetMonthName(month, year), text, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    SetCellHdrPos(row, col, QorMonth::HeaderHit(x, y, m_nCellWidth, m_nHdrHeight));
    if (row == 1 && col == 1) {
        DrawArrow(dc, TRUE, y, x);
    }
    if (row == 1 && col == m_nCols) {
        DrawArrow(dc, FALSE, y, x);
    }
    return m_nHdrHeight;
}

void CQorCalendar::DrawArrow(CDC& dc, BOOL left, int y, int x)
{
    const QorMonth::Arrow arrow =
        left ? QorMonth::LeftArrow(x, y, m_nHdrHeight) : QorMonth::RightArrow(x, y, m_nCellWidth, m_nHdrHeight);
    for (int yy = arrow.apex.y - arrow.half; yy <= arrow.apex.y + arrow.half; ++yy) {
        dc.MoveTo(arrow.apex);
        dc.LineTo(arrow.base, yy);
    }
    (left ? m_rcLeftArrow : m_rcRightArrow) = arrow.hit;
}

int CQorCalendar::DrawDaysOfWeek(CDC& dc, int y, int x)
{
    const SelectSaver font(dc, m_fontNormal);
    const TextModeSaver mode(dc, QorSysLook.m_clrBtnText, TRANSPARENT);
    const int left = QorMonth::RowLeft(x, m_nCellWidth, m_nDayWidth);
    int xi = left;
    for (const CString& day : m_strDays) {
        CRect text(xi, y + 1, xi + m_nDayWidth, y + m_nDowHeight + 2);
        dc.DrawText(day, text, DT_RIGHT | DT_BOTTOM | DT_SINGLELINE);
        xi += m_nDayWidth + QorMonth::kDayGap;
    }
    DrawRule(dc, left, y + m_nDowHeight + 3, QorMonth::RowWidth(m_nDayWidth));
    return m_nDowHeight + QorMonth::kUnderInitials;
}

int CQorCalendar::DrawDays(CDC& dc, int y, int x, int row, int col, int month, int year)
{
    const SelectSaver font(dc, m_fontNormal);
    const TextModeSaver mode(dc, m_crNormal, TRANSPARENT);
    const int left = QorMonth::RowLeft(x, m_nCellWidth, m_nDayWidth);
    const COleDateTimeSpan oneDay(1);
    COleDateTime date(year, month, 1, 0, 0, 0);
    // Counted from the month's first day: there may be no dates before it.
    int slot = QorMonth::FirstSlot(date, m_nFirstDayOfWeek);
    for (; slot < QorMonth::kSlots && date.GetMonth() == month; ++slot, date += oneDay) {
        const QorMonth::DayPlace place = QorMonth::PlaceOfDay(left, y, slot, m_nDayWidth, m_nDayHeight);
        DrawDay(dc, date, place.text, place.area);
        SetCellDayPos(row, col, slot, date, place.area);
    }
    const int height = QorMonth::kWeeks * (m_nDayHeight + QorMonth::kWeekGap);
    const int width = QorMonth::RowWidth(m_nDayWidth);
    if (m_nRows == kLinedRows) {
        DrawRule(dc, left, y + height, width);
    }
    SetCellPos(row, col, CRect(left, y, left + width, y + height));
    return height + 5;
}

void CQorCalendar::DrawDay(CDC& dc, COleDateTime& date, const RECT& text, const RECT& area)
{
    COLORREF colour = IsSpecialDate(date) ? m_crSpecial : m_crNormal;
    if (IsDateSelected(date)) {
        dc.FillSolidRect(&area, kSelected);
        colour = kSelectedText;
    }
    dc.SetTextColor(colour);
    CString number;
    number.Format(L"%d", date.GetDay());
    CRect rect(text);
    dc.DrawText(number, rect, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
}

BOOL CQorCalendar::IsSpecialDate(COleDateTime& date)
{
    if (!m_pfnIsSpecial) {
        return FALSE;
    }
    COleDateTime copy(date);
    try {
        return m_pfnIsSpecial(copy, m_pData);
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) { // whatever the host throws, painting goes on
    }
    return FALSE;
}

BOOL CQorCalendar::IsDateSelected(COleDateTime& date)
{
    return IsValid(m_dtSelStart) && IsValid(m_dtSelEnd) && m_dtSelStart <= date && date <= m_dtSelEnd;
}

// Cells

/** Place of a cell in the array, which is also how many months it comes after the first one. */
int CQorCalendar::IndexOf(int row, int col) const
{
    return (row - 1) * m_nCols + col - 1;
}

CalendarCell* CQorCalendar::CellAt(int row, int col)
{
    if (!m_pCells || row < 1 || row > m_nRows || col < 1 || col > m_nCols) {
        return nullptr;
    }
    return &m_pCells[static_cast<size_t>(IndexOf(row, col))];
}

void CQorCalendar::SetCellHdrPos(int row, int col, RECT rect)
{
    if (CalendarCell* cell = CellAt(row, col)) {
        cell->rcHdr = rect;
        cell->nRow = row;
        cell->nCol = col;
    }
}

void CQorCalendar::SetCellPos(int row, int col, RECT rect)
{
    if (CalendarCell* cell = CellAt(row, col)) {
        cell->rcCell = rect;
    }
}

void CQorCalendar::SetCellDayPos(int row, int col, int day, COleDateTime& date, RECT rect)
{
    CalendarCell* cell = CellAt(row, col);
    if (cell && day >= 0 && day < QorMonth::kSlots) {
        cell->days[day].rc = rect;
        cell->days[day].date = date;
    }
}

void CQorCalendar::ClearDays()
{
    for (int i = 0; i < m_nRows * m_nCols; ++i) {
        for (CalendarDay& day : m_pCells[static_cast<size_t>(i)].days) {
            day.rc = {};
        }
    }
}

CalendarCell* CQorCalendar::HdrHitTest(CPoint& point)
{
    for (int i = 0; i < m_nRows * m_nCols; ++i) {
        CalendarCell& cell = m_pCells[static_cast<size_t>(i)];
        if (::PtInRect(&cell.rcHdr, point)) {
            return &cell;
        }
    }
    return nullptr;
}

CalendarDay* CQorCalendar::DayHitTest(CPoint& point)
{
    for (int i = 0; i < m_nRows * m_nCols; ++i) {
        CalendarCell& cell = m_pCells[static_cast<size_t>(i)];
        if (!::PtInRect(&cell.rcCell, point)) {
            continue;
        }
        for (CalendarDay& day : cell.days) {
            if (::PtInRect(&day.rc, point)) {
                return &day;
            }
        }
    }
    return nullptr;
}

BOOL CQorCalendar::InCellHdr(CPoint& point)
{
    return HdrHitTest(point) != nullptr;
}

BOOL CQorCalendar::InCellDay(CPoint& point)
{
    for (int i = 0; i < m_nRows * m_nCols; ++i) {
        if (::PtInRect(&m_pCells[static_cast<size_t>(i)].rcCell, point)) {
            return TRUE;
        }
    }
    return FALSE;
}

// Paging

/** Moves on by one grid of months. @param direction 1 forwards, -1 backwards */
void CQorCalendar::Page(int direction)
{
    ClearDays();
    const QorMonth::Month first = QorMonth::AddMonths({m_nYear, m_nMonth}, direction * m_nRows * m_nCols);
    m_nYear = first.year;
    m_nMonth = first.month;
}

/** Moves on by so many grids and shows where that leads, which takes time when the special days are slow to tell. */
void CQorCalendar::Scroll(int direction, int pages)
{
    if (pages < 1) {
        Repaint();
        return;
    }
    const CWaitCursor wait;
    for (; pages > 0; --pages) {
        Page(direction);
    }
    Repaint();
}

void CQorCalendar::ScrollLeft(int pages)
{
    Scroll(-1, pages);
}

void CQorCalendar::ScrollRight(int pages)
{
    Scroll(1, pages);
}

/** Direction of the arrow under a point: -1, 1, or 0 without one. */
int CQorCalendar::PageAt(CPoint point) const
{
    if (::PtInRect(&m_rcLeftArrow, point)) {
        return -1;
    }
    return ::PtInRect(&m_rcRightArrow, point) ? 1 : 0;
}

// Mouse

void CQorCalendar::OnLButtonDown(UINT /*flags*/, CPoint point)
{
    // A press ends what was released where the calendar does not see it.
    m_bTrackDay = FALSE;
    m_bTrackArrow = FALSE;
    const HWND wnd = m_hWnd;
    SetFocus();
    if (!::IsWindow(wnd)) {
        return; // the host closed the calendar for that
    }
    m_dtAnchor.SetStatus(COleDateTime::invalid);
    if (const int direction = PageAt(point); direction != 0) {
        m_bTrackArrow = TRUE;
        Scroll(direction, 1);
    } else if (InCellHdr(point)) {
        OpenMonthList(HdrHitTest(point));
    } else if (InCellDay(point) && m_nMaxSelDays != 0) {
        if (const CalendarDay* day = DayHitTest(point)) {
            BeginDaySelection(*day);
        }
    }
}

void CQorCalendar::OpenMonthList(CalendarCell* cell)
{
    const HWND wnd = m_hWnd;
    CloseMonthList();
    if (!::IsWindow(wnd)) {
        return;
    }
    const QorMonth::Month month = QorMonth::AddMonths({m_nYear, m_nMonth}, IndexOf(cell->nRow, cell->nCol));
    m_pSelMonthWnd.reset(new CSelMonthWnd); // the framework throws when there is no memory
    const BOOL shown = m_pSelMonthWnd->Create(month.month, month.year, this);
    if (!::IsWindow(wnd) || !m_pSelMonthWnd) {
        return; // the list was activated, and the host closed the calendar for that
    }
    if (!shown) {
        CloseMonthList();
        return;
    }
    m_pHdrCell = cell;
    m_bTrackMonth = TRUE; // before the capture: who loses it may close the calendar
    SetCapture();
}

void CQorCalendar::CloseMonthList()
{
    // Forgotten first: the host is activated when the list goes, and may close the calendar then.
    const std::unique_ptr<CSelMonthWnd> list = std::move(m_pSelMonthWnd);
    m_pHdrCell = nullptr;
    m_bTrackMonth = FALSE;
    if (list && list->m_hWnd) {
        list->DestroyWindow();
    }
}

void CQorCalendar::PostNcDestroy()
{
    CloseMonthList(); // its window belongs to the frame and would stay
    m_bTrackDay = FALSE;
    m_bTrackArrow = FALSE;
    CWnd::PostNcDestroy();
}

void CQorCalendar::BeginDaySelection(const CalendarDay& day)
{
    m_dtAnchor = day.date;
    Select(day.date, day.date);
    m_bTrackDay = TRUE; // before the capture: who loses it may close the calendar
    SetCapture();
    Repaint();
}

void CQorCalendar::OnMouseMove(UINT /*flags*/, CPoint point)
{
    if (m_bTrackDay) {
        if (CalendarDay* day = DayHitTest(point)) {
            TrackCellDay(day);
            Repaint();
        }
    } else if (m_bTrackArrow) {
        if (const int direction = PageAt(point); direction != 0) {
            Scroll(direction, 1);
        }
    }
}

void CQorCalendar::TrackCellDay(CalendarDay* day)
{
    if (!day || m_nMaxSelDays == 0 || (m_nMaxSelDays > 1 && !IsValid(m_dtAnchor))) {
        return;
    }
    const QorMonth::DayRange range = QorMonth::DragRange(m_dtAnchor, day->date, m_nMaxSelDays);
    Select(range.start, range.end);
}

void CQorCalendar::OnLButtonUp(UINT /*flags*/, CPoint /*point*/)
{
    if (m_bTrackDay) {
        m_bTrackDay = FALSE;
        ::ReleaseCapture();
        FireNotify(static_cast<UINT>(NM_CLICK));
    } else if (m_bTrackArrow) {
        m_bTrackArrow = FALSE;
        Repaint();
    } else if (m_bTrackMonth) {
        const HWND wnd = m_hWnd;
        TakeListedMonth();
        CloseMonthList();
        if (!::IsWindow(wnd)) {
            return;
        }
        ::ReleaseCapture();
        Repaint();
    }
}

/** Shows the month chosen in the list in the cell whose header opened it. */
void CQorCalendar::TakeListedMonth()
{
    const int offset = IndexOf(m_pHdrCell->nRow, m_pHdrCell->nCol);
    const QorMonth::Month chosen = {m_pSelMonthWnd->m_nSelYear, m_pSelMonthWnd->m_nSelMonth};
    const QorMonth::Month first = QorMonth::AddMonths(chosen, -offset);
    SetCurrentYearMonth(first.year, first.month);
}

void CQorCalendar::OnLButtonDblClk(UINT /*flags*/, CPoint point)
{
    if (const CalendarDay* day = DayHitTest(point)) {
        Select(day->date, day->date);
        FireNotify(static_cast<UINT>(NM_DBLCLK));
    }
}

BOOL CQorCalendar::PreTranslateMessage(MSG* msg)
{
    if (m_bTrackMonth && m_pSelMonthWnd) {
        m_pSelMonthWnd->TrackMessage(*msg);
    }
    return CWnd::PreTranslateMessage(msg);
}

void CQorCalendar::FireNotify(UINT code)
{
    Repaint();
    QorNotifyParent(*this, code);
}

// Changes of the surroundings

void CQorCalendar::OnFontChange()
{
    Default();
    Repaint();
}

void CQorCalendar::OnTimeChange()
{
    OnFontChange();
}

void CQorCalendar::OnPaletteChanged(CWnd* /*focusWnd*/)
{
    OnFontChange();
}

void CQorCalendar::OnDevModeChange(LPTSTR device)
{
    CWnd::OnDevModeChange(device);
    Repaint();
}

void CQorCalendar::OnSettingChange(UINT flags, LPCTSTR section)
{
    CWnd::OnSettingChange(flags, section);
    Repaint();
}

void CQorCalendar::OnSysColorChange()
{
    CWnd::OnSysColorChange();
    Repaint();
}
