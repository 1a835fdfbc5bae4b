#pragma once

#include "CalendarLayout.h"

class CQorCalendar;

/**
 * The list of months that the calendar opens on a press on a header. It has no input of its own: the calendar passes
 * it the mouse moves and asks for the chosen month when the button is released.
 */
class CSelMonthWnd : public CWnd
{
    friend class CQorCalendar;

  public:
    CSelMonthWnd();

    /**
     * Shows the list under the mouse.
     * @param month,year the month in the middle; out of range (1 to 12, 100 to 9999) it stays today's
     * @param calendar owner, must outlive this object
     */
    BOOL Create(int month, int year, CQorCalendar* calendar);

    /** Takes a message of the calendar's; scrolls on mouse moves above and below the list. */
    void TrackMessage(const MSG& msg);

  protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

  private:
    CSize WindowSize();
    int RowUnderMouse(int lineHeight);
    int LineHeight(CDC& dc);
    void DrawRow(CDC& dc, const CRect& row, QorMonth::Month month, bool chosen);

    int m_nSelYear;
    int m_nSelMonth; // the row under the mouse when it was last painted
    int m_nUpCount;
    int m_nDownCount;
    int m_nYear;
    int m_nMonth; // in the middle row
    CQorCalendar* m_pCalendar;
};
