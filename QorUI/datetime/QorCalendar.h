#pragma once

#include <QorUI/app/module/QorUIDef.h>

#include <afxdisp.h>

#include <memory>

class CSelMonthWnd;

/** One of the 42 places for days in a month of the calendar. */
struct CalendarDay
{
    RECT rc = {};      ///< what the mouse hits, in client pixels; empty when nothing is shown
    COleDateTime date; ///< the day that is shown there
};

/** One month of the calendar's grid. Places in client pixels. */
struct CalendarCell
{
    RECT rcHdr = {};      ///< the header's part that opens the list of months
    int nRow = 0;         ///< row in the grid, from 1
    int nCol = 0;         ///< column in the grid, from 1
    RECT rcCell = {};     ///< the six weeks
    CalendarDay days[42]; ///< six weeks of seven days
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

    /** Draws one cell's header, with the arrows where they belong. @param row,col from 1 @return height used, pixels */
    int DrawHeader(CDC& dc, int y, int x, int row, int col, int month, int year);
    /** Draws the weekday initials and the line under them. @return height used, pixels */
    int DrawDaysOfWeek(CDC& dc, int y, int x);
    /** Draws the six weeks. @param row,col from 1 @return height used, pixels */
    int DrawDays(CDC& dc, int y, int x, int row, int col, int month, int year);

    /** Remembers where a header was drawn; does nothing for a cell that there is not. */
    void SetCellHdrPos(int row, int col, RECT rect);
    /** Remembers where a cell's weeks were drawn; does nothing for a cell that there is not. */
    void SetCellPos(int row, int col, RECT rect);
    /** Remembers a day and where it was drawn. @param day place in the weeks, from 0 */
    void SetCellDayPos(int row, int col, int day, COleDateTime& date, RECT rect);

    /** Makes all days' places empty. */
    void ClearDays();

    /** The cell whose header lies under a point; null for none. */
    CalendarCell* HdrHitTest(CPoint& point);
    /** The day that lies under a point; null for none. */
    CalendarDay* DayHitTest(CPoint& point);
    /** Whether a point lies in a header. */
    BOOL InCellHdr(CPoint& point);
    /** Whether a point lies in the weeks of a cell. */
    BOOL InCellDay(CPoint& point);

    /** Extends the selection to a day while the mouse is dragged. */
    void TrackCellDay(CalendarDay* day);

    /** Whether a day belongs to the selection. */
    BOOL IsDateSelected(COleDateTime& date);

    /** What the host's function says about a day; FALSE without one and when it throws. */
    BOOL IsSpecialDate(COleDateTime& date);

    /** Shows earlier months. @param pages whole grids; below 1 the calendar is only redrawn */
    void ScrollLeft(int pages);
    /** Shows later months. @param pages whole grids; below 1 the calendar is only redrawn */
    void ScrollRight(int pages);

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

    int m_nYear;                                  ///< year of the first cell
    int m_nMonth;                                 ///< month of the first cell, from 1
    CFont m_fontBold;                             ///< of the headers
    CFont m_fontNormal;                           ///< of everything else
    CString m_strMonths[12];                      ///< names of the months, in the user's language
    CString m_strDays[7];                         ///< weekday initials as displayed
    int m_nFirstDayOfWeek;                        ///< 1 for Sunday to 7 for Saturday
    UINT m_nMaxSelDays;                           ///< most days that the mouse can select; 0 for none
    COLORREF m_crBk;                              ///< behind the days
    COLORREF m_crNormal;                          ///< of ordinary days
    COLORREF m_crSpecial;                         ///< of special days
    QorSpecialDayProc m_pfnIsSpecial;             ///< null when no day is special
    void* m_pData;                                ///< for that function, not owned
    BOOL m_bTrackDay;                             ///< a selection is being dragged
    COleDateTime m_dtAnchor;                      ///< where the drag began; not valid after the press of anything else
    BOOL m_bTrackArrow;                           ///< an arrow is pressed
    BOOL m_bTrackMonth;                           ///< the list of months is open
    std::unique_ptr<CSelMonthWnd> m_pSelMonthWnd; ///< null while the list is not open
    CalendarCell* m_pHdrCell;                     ///< whose header opened the list
    RECT m_rcLeftArrow;                           ///< what the mouse hits, in client pixels
    RECT m_rcRightArrow;                          ///< what the mouse hits, in client pixels
    int m_nHdrHeight;                             ///< height of a header, pixels
    int m_nDayWidth;                              ///< width of a column of days, pixels
    int m_nDowHeight;                             ///< height of the weekday initials, pixels
    int m_nDayHeight;                             ///< height of a day number, pixels
    int m_nCellWidth;                             ///< pixels
    int m_nCellHeight;                            ///< pixels
    COleDateTime m_dtSelStart;                    ///< first selected day; not valid without a selection
    COleDateTime m_dtSelEnd;                      ///< last selected day; not valid without a selection
    std::unique_ptr<CalendarCell[]> m_pCells;     ///< row by row; null without a grid
    int m_nRows;                                  ///< of the grid
    int m_nCols;                                  ///< of the grid

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
};
