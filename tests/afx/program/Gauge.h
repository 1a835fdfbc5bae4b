#pragma once

/** A custom control: a bar that shows how many of ten units are set, and takes clicks. */
class CGauge : public CWnd
{
    DECLARE_DYNAMIC(CGauge)

  public:
    CGauge();

    static BOOL RegisterWindowClass();
    void SetValue(int nValue);
    int GetValue() const { return m_nValue; }

  protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

  private:
    int m_nValue;
};
