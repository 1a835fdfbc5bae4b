#pragma once

#include <QorUI/app/module/QorUIDef.h>

#include <afxtempl.h>

/** One part of a status bar. */
struct STATUSPART
{
    int nWidth = 0;  ///< pixels; not used for the first part
    CString strText; ///< shown on one line, cut with an ellipsis where the part ends
};

/**
 * A flat status bar. Its parts have fixed widths from the right edge on; the first part takes what is left.
 * `SetParts` comes before showing: painting a bar without parts throws the framework's invalid-argument exception.
 */
class QORUI_API CQorStatusBar : public CWnd
{
  public:
    CQorStatusBar();

    /**
     * Replaces all parts by empty ones.
     * @param parts number of parts; below 1 for none.
     * @param widths as many widths in pixels, from left to right; null means that all are 0.
     * @return TRUE.
     */
    BOOL SetParts(int parts, int* widths);

    /**
     * @return FALSE when there is no such part.
     * @throws CInvalidArgException for a negative part.
     */
    BOOL SetText(int part, LPCWSTR text);

    /** Width in pixels that a part needs for a text. */
    int GetTextExtent(LPCWSTR text);

  protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

  private:
    int DrawPart(CDC& dc, const CRect& bar, INT_PTR part, int right) const;

    CArray<STATUSPART, STATUSPART&> m_arrParts;
};
