#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * A flat horizontal progress bar with its percentage, readable on both sides of the fill.
 *
 * The bar takes its height from the fill pattern. With `PBS_VERTICAL` nothing is painted.
 */
class QORUI_API CProgressBar : public CProgressCtrl
{
  public:
    CProgressBar();

    /**
     * @param format printf format for the position, its one integer argument; empty for no text, null for the
     *        percentage. Not copied: the caller keeps it as long as the bar can paint.
     */
    void SetFormat(LPCWSTR format);

    /** @return the former position. */
    int SetPos(int position);

    /** Which part of the range a position has passed; 0 for a range without width. */
    double CalcFraction(int position) const;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg void OnDestroy();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

  private:
    int LoadFill();
    void SetUp();
    CRect DrawFrames(CDC& dc) const;
    void DrawBar(CDC& dc, const CRect& area) const;
    CString TextFor(int position, double fraction) const;

    CBrush m_brFill;
    LPCWSTR m_lpszFormat;
};
