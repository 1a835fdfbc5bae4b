#pragma once

#include <QorUI/app/QorUIDef.h>

#include <afxdisp.h>

#include <memory>

class CSelMonthWnd;

/** One of the 42 places for days in a month of the calendar. */
struct CalendarDay
{
    RECT rc = {}; ///< what the mouse hits, in client pixels; empty when nothing is shown
    COleDateTime date;
};

/** One month of the calendar's grid. Places in client pixels. */
struct CalendarCell
{
    RECT rcHdr = {};  ///< the header's part that opens the list of months
    int nRow = 0;     ///< row in the grid, from 1
    int nCol = 0;     ///< column in the grid, from 1
    RECT rcCell = {}; ///< the six weeks
    CalendarDay days[42];
};

/**
 * Tells the calendar whether a day is special.
 * @param date the day; the function gets a copy of its own
 * @param data what was given to `CQorCalendar::Create`
 * @return non-zero for a special day; an exception counts as zero
 */
typedef int (*QorSpecialDayProc)(COleDateTime& date, void* data);

/**
 * A grid of months in which the user picks a day or a range of days with the mouse. Special days have a colour of their
 * own.
 *
 * The arrows page by the whole grid; a press on a header opens a list of months. The parent gets `WM_NOTIFY` with
 * `NM_CLICK` when a selection with the mouse is finished and with `NM_DBLCLK` for a double-click on a day, and then
 * asks for the selection. Building an object makes the user's locale the one of the C run-time, with English dates.
 */
class QORUI_API CQorCalendar : public CWnd
{
    friend class CSelMonthWnd;

  public:
    CQorCalendar();
    ~CQorCalendar() override;

    /**
     * Creates the child window in the parent's top left corner, as large as the months need, and shows it.
     * @param isSpecial may be null; called while painting
     * @param data handed to `isSpecial`, not owned
     * @param rows,cols months below and beside each other, 1 to 20
     * @return FALSE without a parent, for a size out of range, when cells, window or fonts cannot be made, or when the
     * calendar has its window already
     */
    BOOL Create(CWnd* parent, UINT id, QorSpecialDayProc isSpecial, void* data, int rows, int cols);

    /** Chooses the first month shown. @param year taken into 101 to 9999 @param month taken into 1 to 12 */
    void SetCurrentYearMonth(int year, int month);

    /** @param days most days that can be selected; 0 forbids selecting and takes the selection away */
    void SetMaxSelDays(UINT days);

    /**
     * Selects the days from one date to another, in either order, without regard to the most days; with at most one day
     * the first date alone. A date that is not valid takes the selection away. Does nothing while selecting is
     * forbidden.
     */
    void SetSelDate(COleDateTime& start, COleDateTime& end);

    /**
     * Tells the selection.
     * @param end receives the last day; may be null
     * @return the first day; without a selection neither is valid
     */
    COleDateTime GetSelDate(COleDateTime* end);

    /** Sets the colour behind the days. */
    void SetBkColor(COLORREF background);

    /** Sets the colours of ordinary and of special days. */
    void SetColors(COLORREF normal, COLORREF special);

    BOOL PreTranslateMessage(MSG* msg) override;

  protected:
    /** @param day 1 for Sunday to 7 for Saturday; others are ignored */
    void SetFirstDayOfWeek(int day);

    /** Name of the month and the year, as shown in a header. */
    CString GetMonthName(int month, int year);

    /** Makes the font of headers (bold) or of days in the size of the device. */
    BOOL CreateFont(CDC& dc, CFont& font, BOOL bold);

    /** Makes the fonts, measures, and gives the window its size. @return FALSE when a font cannot be made */
    BOOL AdjustWndPos();

    /** @name Drawing of a month's parts
     *  @param row,col the cell, from 1
     *  @return height used, pixels
     *  @{ */
    int DrawHeader(CDC& dc, int y, int x, int row, int col, int month, int year);
    int DrawDaysOfWeek(CDC& dc, int y, int x);
    int DrawDays(CDC& dc, int y, int x, int row, int col, int month, int year);
    /** @} */

    /** @name Remembering where parts were drawn; places out of range are ignored
     *  @{ */
    void SetCellHdrPos(int row, int col, RECT rect);
    void SetCellPos(int row, int col, RECT rect);
    void SetCellDayPos(int row, int col, int day, COleDateTime& date, RECT rect);
    /** @} */

    /** Makes all days' places empty. */
    void ClearDays();

    /** @name What lies under a point; null for nothing
     *  @{ */
    CalendarCell* HdrHitTest(CPoint& point);
    CalendarDay* DayHitTest(CPoint& point);
    /** @} */
    BOOL InCellHdr(CPoint& point);
    BOOL InCellDay(CPoint& point);

    /** Extends the selection to a day while the mouse is dragged. */
    void TrackCellDay(CalendarDay* day);

    /** Whether a day belongs to the selection. */
    BOOL IsDateSelected(COleDateTime& date);

    /** What the host's function says about a day; FALSE without one and when it throws. */
    BOOL IsSpecialDate(COleDateTime& date);

    /** @name Paging by whole grids; below 1 the calendar is only redrawn
     *  @{ */
    void ScrollLeft(int pages);
    void ScrollRight(int pages);
    /** @} */

    /** Redraws and sends the parent a notification. */
    void FireNotify(UINT code);

    void PostNcDestroy() override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnFontChange();
    afx_msg void OnTimeChange();
    afx_msg void OnPaletteChanged(CWnd* focusWnd);
    afx_msg void OnDevModeChange(LPTSTR device);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnSysColorChange();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

    int m_nYear;  ///< year of the first cell
    int m_nMonth; ///< month of the first cell, from 1
    CFont m_fontBold;
    CFont m_fontNormal;
    CString m_strMonths[12];
    CString m_strDays[7]; ///< weekday initials as displayed
    int m_nFirstDayOfWeek;
    UINT m_nMaxSelDays;
    COLORREF m_crBk;
    COLORREF m_crNormal;
    COLORREF m_crSpecial;
    QorSpecialDayProc m_pfnIsSpecial;
    void* m_pData;
    BOOL m_bTrackDay; ///< a selection is being dragged
    COleDateTime m_dtAnchor;
    BOOL m_bTrackArrow;           ///< an arrow is pressed
    BOOL m_bTrackMonth;           ///< the list of months is open
    CSelMonthWnd* m_pSelMonthWnd; ///< owned
    CalendarCell* m_pHdrCell;     ///< whose header opened the list
    RECT m_rcLeftArrow;
    RECT m_rcRightArrow;
    int m_nHdrHeight;
    int m_nDayWidth;
    int m_nDowHeight;
    int m_nDayHeight;
    int m_nCellWidth;
    int m_nCellHeight;
    COleDateTime m_dtSelStart;
    COleDateTime m_dtSelEnd;
    std::unique_ptr<CalendarCell[]> m_pCells;
    int m_nRows;
    int m_nCols;

  private:
    int IndexOf(int row, int col) const;
    CalendarCell* CellAt(int row, int col);
    BOOL MakeWindow(CWnd* parent, UINT id);
    void FreeCells();
    void MeasureDays(CDC& dc);
    int MeasureHeaders(CDC& dc, int leastWidth);
    void DrawArrow(CDC& dc, BOOL left, int y, int x);
    void DrawDay(CDC& dc, COleDateTime& date, const RECT& text, const RECT& area);
    void DrawMonth(CDC& dc, int row, int col, int month, int year);
    void Select(const COleDateTime& start, const COleDateTime& end);
    void Page(int direction);
    void Scroll(int direction, int pages);
    int PageAt(CPoint point) const;
    void OpenMonthList(CalendarCell* cell);
    void CloseMonthList();
    void BeginDaySelection(const CalendarDay& day);
    void TakeListedMonth();
    void Repaint();
    void InvalidateIfShown();
};
