#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** Notification code: the user took hold of the minute hand. */
#define QCN_BEGINDRAG (-4000)
/** Notification code: the user let the minute hand go. */
#define QCN_ENDDRAG (-4001)

/**
 * A clock face for choosing a time of day: the user drags the minute hand, which takes the hour and AM or PM along.
 *
 * The parent gets `WM_NOTIFY` with `QCN_BEGINDRAG` and `QCN_ENDDRAG`.
 */
class QORUI_API CQorClock : public CWnd
{
  public:
    /** Shows 1:30 AM; the time can be set before there is a window. */
    CQorClock();
    ~CQorClock() override;

    /**
     * Creates the child window in the parent's top left corner, as large as the dial.
     * @param bitmapId bitmap resource with the dial, found through the framework's resource search
     * @param background colour behind the text AM or PM
     * @return FALSE when there is no such bitmap, the window cannot be created, or the clock has its window already
     */
    BOOL Create(UINT bitmapId, CWnd* parent, UINT id, COLORREF background);

    /** Shows a time at once and ends an animation. @param hour taken modulo 24 @param minute modulo 60 */
    void SetTime(UINT hour, UINT minute);

    /** Lets the hands run to a time in about half a second. Parameters as for `SetTime`. */
    void SetTimeAnimate(UINT hour, UINT minute, BOOL forward);

    /** 0 to 23. */
    UINT GetHour();

    /** 0 to 59. */
    UINT GetMinute();

  protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

  private:
    BOOL LoadDial(UINT bitmapId, CSize& size);
    void UpdateTime(UINT hour, UINT minute);
    CPoint GetFingerEndPt(double ratio, double angle);
    BOOL IsInMinuteFinger(CPoint point);
    void RedrawMinuteFinger(CPoint point);
    void AdjustAmPmFlag(BOOL up);
    void SendNotify(UINT code);
    void StopTimer();
    int MinutesOfDay();
    void DrawHand(CDC& dc, double ratio, double angle);

    COLORREF m_crBk;
    CBitmap m_bmpDial;
    CPoint m_ptCenter;
    UINT m_nHour; // on the dial: 0 to 11, or 12 after being dragged past eleven
    UINT m_nMinute;
    UINT m_nLastMinute; // before the last step of a drag
    BOOL m_bInFinger;   // the mouse was over the minute hand when it last moved without a button
    BOOL m_bPM;
    int m_nStep;   // minutes per tick of an animation, 0 without one
    int m_nTarget; // of the animation, in minutes since midnight
    BOOL m_bWrap;  // the animation has still to pass midnight
};
