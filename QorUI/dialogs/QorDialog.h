#pragma once

#include "QorBaseDlg.h"

#include <QorUI/buttons/BmpBtn.h>
#include <QorUI/buttons/QorBtn.h>

/**
 * A dialog in the library's look: rounded, with a white caption band, the application icon, a drawn title, a bitmap
 * close button, skinned OK and Cancel buttons and, when asked for, a sizing border of its own.
 *
 * Its template is a borderless popup without caption; the title is the window text. Derived classes place their
 * content inside `GetClientPos`.
 */
class QORUI_API CQorDialog : public CQorBaseDlg
{
  public:
    /** What the dialog is like. */
    enum Flags : DWORD
    {
        ButtonBand = 1,    ///< OK and Cancel stand in a band at the bottom
        CloseDisabled = 2, ///< Cancel, Escape and the close button do nothing; set by `DisableClose` only
        Resizable = 4,     ///< the user sizes the dialog, down to 260 x 200 pixels
    };

    /**
     * @param idd    dialog template, found by the framework's resource search when the dialog opens
     * @param parent owner, or null for the main window
     * @param flags  values of `Flags`, joined with `|`
     */
    CQorDialog(UINT idd, CWnd* parent, DWORD flags);

  protected:
    /**
     * Moves a button into the bottom band, at the right, without changing its size.
     * @param leftOf id of the control that the button goes to the left of; 0 for the right end of the band. Nothing
     * happens when there is no such control.
     */
    void AdjustBtnInArea(CQorBtn& button, UINT leftOf);

    /** The room inside the frame, in client coordinates. */
    void GetClientPos(CRect& rect) const;

    /** Grays or enables everything that closes the dialog without confirming it. */
    void DisableClose(BOOL disable);

    /** Draws the frame over the whole client area; for derived classes that paint into a memory DC. */
    void Paint(CDC& dc);

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDown(UINT hit, CPoint point);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnCloseButton();
    DECLARE_MESSAGE_MAP()

  private:
    bool SkinButton(CQorBtn& button, UINT id, UINT leftOf, LPCWSTR textKey);

    CRgn m_region;
    CBmpBtn m_closeBtn;
    CQorBtn m_okBtn;
    CQorBtn m_cancelBtn;
    DWORD m_flags;
    int m_lastWidth;
    int m_lastHeight;
};
