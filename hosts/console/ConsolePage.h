#pragma once

#include <QorUI/QorUI.h>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

/** A modal dialog that a page can show, for the pictures. */
struct ModalShot
{
    CString name;               ///< stem of the picture's file name
    std::function<void()> show; ///< returns when the dialog was closed
};

/** A window that a page can open beside itself, for the pictures. */
struct PopupShot
{
    CString name;               ///< stem of the picture's file name
    std::function<HWND()> open; ///< opens the window; null when that failed
    std::function<void()> close;
};

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

    /** How many states of the page get a picture of their own; state 0 is the one that it opens in. */
    virtual size_t StateCount() const { return 1; }

    /** Brings the page into a state. */
    virtual void ShowState(size_t /*state*/) {}

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

/** An entry of the console's list of pages. */
struct PageInfo
{
    LPCWSTR name;     ///< for the command line and file names
    LPCWSTR titleKey; ///< key of the title in the console's language data
    std::unique_ptr<CConsolePage> (*make)();
};

/** All pages, in the order of the list. */
const std::vector<PageInfo>& AllPages();

/** @name The pages
 * @{ */
std::unique_ptr<CConsolePage> MakeButtonsPage();
std::unique_ptr<CConsolePage> MakeLayoutPage();
std::unique_ptr<CConsolePage> MakeMessagePage();
std::unique_ptr<CConsolePage> MakeDrawingPage();
std::unique_ptr<CConsolePage> MakeAccountPage();
std::unique_ptr<CConsolePage> MakeLinksPage();
std::unique_ptr<CConsolePage> MakeCalendarPage();
std::unique_ptr<CConsolePage> MakeClockPage();
std::unique_ptr<CConsolePage> MakeEditsPage();
std::unique_ptr<CConsolePage> MakePickersPage();
std::unique_ptr<CConsolePage> MakeListPage();
std::unique_ptr<CConsolePage> MakeProgressPage();
std::unique_ptr<CConsolePage> MakeInfoPage();
/** @} */
