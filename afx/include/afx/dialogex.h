#pragma once

#include <afx/dialog.h>
#include <afx/gdi.h>

/** A dialog that can have a colour or a picture as its background. */
class AFX_LIB CDialogEx : public CDialog
{
    DECLARE_DYNAMIC(CDialogEx)

  public:
    /** Where the picture of the background stands. */
    enum BackgroundLocation
    {
        BACKGR_TILE,
        BACKGR_TOPLEFT,
        BACKGR_TOPRIGHT,
        BACKGR_BOTTOMLEFT,
        BACKGR_BOTTOMRIGHT
    };

    CDialogEx();
    explicit CDialogEx(UINT nIDTemplate, CWnd* pParent = nullptr);
    explicit CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    ~CDialogEx() override;

    /** Fills the dialog with a colour; the colour -1 goes back to the system's background. */
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    /** Shows a picture behind the controls; null takes it away.
     *  @param bAutoDestroy the dialog deletes the bitmap when it needs it no longer */
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE, BOOL bAutoDestroy = TRUE,
                            BOOL bRepaint = TRUE);
    /** Loads the picture from the resources. @return FALSE when there is none. */
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE, BOOL bRepaint = TRUE);

  protected:
    HBITMAP m_hBkgrBitmap = nullptr;
    CSize m_sizeBkgrBitmap;
    CBrush m_brBkgr;
    BackgroundLocation m_BkgrLocation = BACKGR_TILE;
    BOOL m_bAutoDestroyBmp = FALSE; ///< The bitmap goes with the dialog.

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()

  private:
    void DropImage();
    void DrawImage(CDC* pDC, const CRect& rectClient);
};
