#pragma once

#include <QorUI/app/module/QorUIDef.h>

#include <afxtempl.h>

/** One row of an information panel. */
struct UINFOITEM
{
    CString strLabel; ///< with its colon
    CString strValue; ///< shown right of all labels
};

/** A panel of rows with a label and a value; the value of the last row alone may have several lines. */
class QORUI_API CQorInfo : public CStatic
{
  public:
    CQorInfo();

    /**
     * Appends a row and repaints. A null text counts as empty.
     * @param label without colon, which is added; an empty one stays empty.
     */
    void AddItem(LPCWSTR label, LPCWSTR value);

    /** Removes all rows and repaints. */
    void RemoveAll();

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

  private:
    int DrawLabels(CDC& dc) const;
    void DrawValues(CDC& dc, const CRect& client, int left) const;

    CArray<UINFOITEM, UINFOITEM&> m_arrItems;
};
