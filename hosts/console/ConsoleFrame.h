#pragma once

#include "ConsolePage.h"
#include "PageList.h"

#include <memory>

/** The console's main window: the list of pages at the left, the chosen page beside it. */
class CConsoleFrame : public CQorFrame
{
  public:
    /** Creates the window, hidden, centred on the work area. */
    BOOL Create();

    /** Shows a page. @return false when the index is out of range or the page could not be created. */
    bool ShowPage(size_t index);

    /** The page that is shown; null before the first. */
    CConsolePage* CurrentPage() const { return m_page.get(); }

  protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSelectPage();
    afx_msg void OnEnter();
    afx_msg LRESULT OnNextDlgCtl(WPARAM control, LPARAM isHandle);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind);
    DECLARE_MESSAGE_MAP()

  private:
    void PlaceChildren();
    CRect ListArea() const;
    CRect PageArea() const;

    CPageList m_list;
    std::unique_ptr<CConsolePage> m_page;
};
