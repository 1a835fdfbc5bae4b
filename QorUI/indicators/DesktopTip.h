#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * A text that seems to be written on the wallpaper, in the upper right corner of the work area. The window stays behind
 * all others and is never activated; its text is its window text.
 */
class QORUI_API CDesktopTip : public CWnd
{
  public:
    CDesktopTip();

    /** Makes the hidden window. */
    BOOL Create();

    /** Shows a text, wrapped at 160 pixels. @param text null or empty hides the tip. */
    void SetTipText(LPCWSTR text);

    /** Moves the tip to its corner and repaints it. */
    void AdjustPos();

    /** Copies the desktop that is under the tip. @return FALSE, with nothing drawn, when it cannot be had. */
    BOOL PaintDesktop(CDC* dc);

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg void OnSettingChange(UINT setting, LPCTSTR section);
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    DECLARE_MESSAGE_MAP()

  private:
    void CopyUnderTip(HDC target, HDC desktop) const;
};
