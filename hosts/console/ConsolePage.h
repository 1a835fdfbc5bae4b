#pragma once

#include "PageShots.h"

#include <QorUI/QorUI.h>

#include <memory>
#include <utility>
#include <vector>

/**
 * One page of the console: a child window with the dialog background, some controls, and drawing of its own.
 *
 * Derived classes create their controls in `Build` with the Add... helpers, which own them.
 */
class CConsolePage : public CWnd
{
  public:
    /** @param area place in the parent's client coordinates, pixels. */
    BOOL Create(CWnd* parent, const CRect& area);

    /** States that get a picture of their own; none when the page always looks the same. */
    virtual std::vector<PageState> States() { return {}; }

    /** Brings the page into one of its states. @return false when it has none of that name. */
    bool ShowState(LPCWSTR name);

    /** Dialogs that get a picture of their own. */
    virtual std::vector<ModalShot> Modals() { return {}; }

    /** Other windows that get a picture of their own. */
    virtual std::vector<PopupShot> Popups() { return {}; }

  protected:
    static constexpr UINT kNoId = 0xFFFF; // of controls that nobody asks for

    /** Creates the page's controls. @return false when one could not be created. */
    virtual bool Build() = 0;

    /** Draws what no control shows; font and text mode are set. */
    virtual void Draw(CDC& /*dc*/) {}

    /** Creates a window object that lives as long as the page. */
    template <class T, class... Args>
    T& Own(Args&&... args)
    {
        auto owned = std::make_unique<T>(std::forward<Args>(args)...);
        T& wnd = *owned;
        m_children.push_back(std::move(owned));
        return wnd;
    }

    /** A text without mnemonic. */
    bool AddLabel(LPCWSTR text, const CRect& rect, UINT id = kNoId);
    /** A label whose mnemonic leads to the control that is created next. */
    bool AddCaption(LPCWSTR text, const CRect& rect);
    CQorBtn* AddPush(LPCWSTR text, const CRect& rect, UINT id);
    CCheckBox* AddCheck(LPCWSTR text, const CRect& rect, UINT id);
    CRadioBox* AddRadio(LPCWSTR text, const CRect& rect, UINT id, bool firstOfGroup);
    CEdit* AddEdit(const CRect& rect, UINT id, DWORD style = ES_AUTOHSCROLL);
    CListBox* AddList(const CRect& rect, UINT id);

    /** Draws a bold heading for a group of controls, with a rule under it. */
    void DrawHeading(CDC& dc, LPCWSTR text, const CRect& rect) const;

    CFont* PageFont() const;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg void OnClose();
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnNextDlgCtl(WPARAM control, LPARAM isHandle);
    afx_msg LRESULT OnDrawParentBack(WPARAM dc, LPARAM control);
    DECLARE_MESSAGE_MAP()

  private:
    bool Finish(CWnd& wnd, BOOL created);

    std::vector<std::unique_ptr<CWnd>> m_children;
    CFont m_boldFont;
};
