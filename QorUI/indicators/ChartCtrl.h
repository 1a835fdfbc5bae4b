#pragma once

#include <QorUI/app/module/QorUIDef.h>

#include <afxtempl.h>

/** One item of a chart. */
struct UITEM
{
    CString strName; ///< shown in the legend
    UINT nValue = 0; ///< shown behind the name, and drawn in proportion to the other items
};

/** Kinds of charts. */
enum QorChartType
{
    QOR_CHART_BARS = 1,
    QOR_CHART_RING = 2
};

/** A chart of named counts as bars or as a ring, with a legend; the window text is its title. */
class QORUI_API CChartCtrl : public CStatic
{
  public:
    CChartCtrl();

    /** Appends an item and repaints. @param name null counts as empty. */
    void AddItem(LPCWSTR name, UINT value);

    /** Removes all items and repaints. */
    void RemoveAll();

    /**
     * Chooses the kind of chart and repaints.
     * @param type a `QorChartType`; the initial one is the ring.
     * @return FALSE, with nothing changed, for any other value.
     */
    BOOL SetType(int type);

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

  private:
    int m_nType;
    CArray<UITEM, UITEM&> m_arrItems;
};
