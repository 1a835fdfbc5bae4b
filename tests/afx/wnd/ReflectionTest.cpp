#include <tests/afx/TestWindows.h>

#include <algorithm>

namespace
{
constexpr int kControl = 300;

/** A parent that writes down what reaches it. */
class Parent : public TopWnd
{
  public:
    Events events;

    void OnChange() { events.push_back("parent change"); }
    void OnNotifyClick(NMHDR*, LRESULT* pResult)
    {
        events.push_back("parent notify");
        *pResult = 1;
    }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        const HBRUSH hBrush = CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
        events.push_back("parent color");
        return hBrush;
    }
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
    {
        CWnd::OnHScroll(nSBCode, nPos, pScrollBar);
        events.push_back("parent scroll");
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
    ON_EN_CHANGE(kControl, &Parent::OnChange)
    ON_NOTIFY(NM_CLICK, kControl, &Parent::OnNotifyClick)
    ON_WM_CTLCOLOR()
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

/** A control without reflecting rows of its own. */
class Control : public CWnd
{
  public:
    explicit Control(Events& log) : events(log) {}
    Events& events;
};

class StoppingControl : public Control
{
  public:
    using Control::Control;
    HBRUSH brush = nullptr;

    void OnChange() { events.push_back("control change"); }
    void OnClick(NMHDR* pNMHDR, LRESULT* pResult)
    {
        events.push_back(pNMHDR->hwndFrom == m_hWnd ? "control notify" : "control notify of another");
        *pResult = 2;
    }
    HBRUSH CtlColor(CDC* pDC, UINT nCtlColor)
    {
        events.push_back(pDC->m_hDC ? "control color " + std::to_string(nCtlColor) : "no dc");
        return brush;
    }
    void DrawItem(LPDRAWITEMSTRUCT p) { events.push_back("control draw " + std::to_string(p->CtlID)); }
    void MeasureItem(LPMEASUREITEMSTRUCT p)
    {
        events.push_back("control measure");
        p->itemHeight = 33;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT) { return -1; }
    void DeleteItem(LPDELETEITEMSTRUCT) { events.push_back("control delete"); }
    int CharToItem(UINT nKey, UINT nIndex) { return static_cast<int>(nKey + nIndex); }
    int VKeyToItem(UINT nKey, UINT nIndex) { return static_cast<int>(nKey - nIndex); }
    void HScroll(UINT nSBCode, UINT nPos)
    {
        events.push_back("control scroll " + std::to_string(nSBCode) + " " + std::to_string(nPos));
    }
    void ParentNotify(UINT message, LPARAM)
    {
        if (LOWORD(message) == WM_DESTROY) {
            events.push_back("control parent notify");
        }
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(StoppingControl, CWnd)
    ON_CONTROL_REFLECT(EN_CHANGE, &StoppingControl::OnChange)
    ON_NOTIFY_REFLECT(NM_CLICK, &StoppingControl::OnClick)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
END_MESSAGE_MAP()

class PassingControl : public Control
{
  public:
    using Control::Control;
    BOOL stop = FALSE;

    BOOL OnChange()
    {
        events.push_back("control change");
        return stop;
    }
    BOOL OnClick(NMHDR*, LRESULT*)
    {
        events.push_back("control notify");
        return stop;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PassingControl, CWnd)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &PassingControl::OnChange)
    ON_NOTIFY_REFLECT_EX(NM_CLICK, &PassingControl::OnClick)
END_MESSAGE_MAP()

template <class T>
class Bench
{
  public:
    Parent parent;
    T control;

    explicit Bench(LPCTSTR className = _T("EDIT"), DWORD style = 0) : control(parent.events)
    {
        control.SubclassWindow(MakeControl(parent, className, style, kControl));
        parent.events.clear();
    }
    ~Bench()
    {
        if (control.m_hWnd) {
            control.DestroyWindow();
        }
    }
    LRESULT Notify(int code)
    {
        NMHDR header = {control.m_hWnd, kControl, static_cast<UINT>(code)};
        return parent.SendMessage(WM_NOTIFY, kControl, reinterpret_cast<LPARAM>(&header));
    }
};
} // namespace

TEST(Reflection, ControlWithoutReflectingRowsLeavesNotificationsToItsParent)
{
    Bench<Control> bench;
    bench.control.SetWindowText(_T("x"));
    EXPECT_EQ(1, bench.Notify(NM_CLICK));
    const Events expected = {"parent change", "parent notify"};
    Events seen;
    for (const auto& event : bench.parent.events) {
        if (event != "parent color") {
            seen.push_back(event);
        }
    }
    EXPECT_EQ(expected, seen);
}

TEST(Reflection, ReflectedCommandStopsAtTheControl)
{
    Bench<StoppingControl> bench;
    bench.parent.SendMessage(WM_COMMAND, MAKEWPARAM(kControl, EN_CHANGE),
                             reinterpret_cast<LPARAM>(bench.control.m_hWnd));
    EXPECT_EQ(Events{"control change"}, bench.parent.events);
}

TEST(Reflection, ReflectedNotifyStopsAtTheControlAndGivesItsResult)
{
    Bench<StoppingControl> bench;
    EXPECT_EQ(2, bench.Notify(NM_CLICK));
    EXPECT_EQ(Events{"control notify"}, bench.parent.events);
}

TEST(Reflection, ExtendedReflectionThatDeclinesGoesOnToTheParent)
{
    Bench<PassingControl> bench;
    bench.parent.SendMessage(WM_COMMAND, MAKEWPARAM(kControl, EN_CHANGE),
                             reinterpret_cast<LPARAM>(bench.control.m_hWnd));
    EXPECT_EQ(1, bench.Notify(NM_CLICK));
    EXPECT_EQ((Events{"control change", "parent change", "control notify", "parent notify"}), bench.parent.events);
}

TEST(Reflection, ExtendedReflectionThatAcceptsStops)
{
    Bench<PassingControl> bench;
    bench.control.stop = TRUE;
    bench.parent.SendMessage(WM_COMMAND, MAKEWPARAM(kControl, EN_CHANGE),
                             reinterpret_cast<LPARAM>(bench.control.m_hWnd));
    bench.Notify(NM_CLICK);
    EXPECT_EQ((Events{"control change", "control notify"}), bench.parent.events);
}

TEST(Reflection, RealTextChangeOfAnEditReachesTheControl)
{
    Bench<StoppingControl> bench;
    bench.control.SetWindowText(_T("new text"));
    EXPECT_EQ(1, std::count(bench.parent.events.begin(), bench.parent.events.end(), "control change"));
    EXPECT_EQ(0, std::count(bench.parent.events.begin(), bench.parent.events.end(), "parent change"));
}

TEST(Reflection, ColorOfTheControlIsReturned)
{
    Bench<StoppingControl> bench;
    bench.control.brush = static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    CClientDC dc(&bench.control);
    const LRESULT result = bench.parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                    reinterpret_cast<LPARAM>(bench.control.m_hWnd));
    EXPECT_EQ(reinterpret_cast<LRESULT>(bench.control.brush), result);
    EXPECT_EQ((Events{"control color 1", "parent color"}), bench.parent.events);
}

TEST(Reflection, ControlWithoutABrushLeavesTheColorToTheSystem)
{
    Bench<StoppingControl> bench;
    CClientDC dc(&bench.control);
    const LRESULT result = bench.parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                    reinterpret_cast<LPARAM>(bench.control.m_hWnd));
    EXPECT_EQ(reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_WINDOW)), result);
}

TEST(Reflection, OwnerDrawMessagesGoToTheControl)
{
    Bench<StoppingControl> bench;
    const auto hWnd = bench.control.m_hWnd;
    DRAWITEMSTRUCT draw = {ODT_BUTTON, kControl, 0, ODA_DRAWENTIRE, 0, hWnd, nullptr, {}, 0};
    EXPECT_EQ(TRUE, bench.parent.SendMessage(WM_DRAWITEM, kControl, reinterpret_cast<LPARAM>(&draw)));
    MEASUREITEMSTRUCT measure = {ODT_LISTBOX, kControl, 0, 0, 0, 0};
    EXPECT_EQ(TRUE, bench.parent.SendMessage(WM_MEASUREITEM, kControl, reinterpret_cast<LPARAM>(&measure)));
    EXPECT_EQ(33u, measure.itemHeight);
    DELETEITEMSTRUCT gone = {ODT_LISTBOX, kControl, 0, hWnd, 0};
    bench.parent.SendMessage(WM_DELETEITEM, kControl, reinterpret_cast<LPARAM>(&gone));
    COMPAREITEMSTRUCT compare = {ODT_LISTBOX, kControl, hWnd, 0, 0, 1, 0, 0};
    EXPECT_EQ(-1, bench.parent.SendMessage(WM_COMPAREITEM, kControl, reinterpret_cast<LPARAM>(&compare)));
    EXPECT_EQ((Events{"control draw 300", "control measure", "control delete"}), bench.parent.events);
}

TEST(Reflection, KeysOfAListBoxGoToTheControl)
{
    Bench<StoppingControl> bench;
    const auto lParam = reinterpret_cast<LPARAM>(bench.control.m_hWnd);
    EXPECT_EQ(12, bench.parent.SendMessage(WM_CHARTOITEM, MAKEWPARAM(10, 2), lParam));
    EXPECT_EQ(8, bench.parent.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(10, 2), lParam));
}

TEST(Reflection, ScrollingOfAControlIsOfferedToItAndScrollingOfTheWindowIsNot)
{
    Bench<StoppingControl> bench;
    bench.parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 7), reinterpret_cast<LPARAM>(bench.control.m_hWnd));
    bench.parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), 0);
    EXPECT_EQ((Events{"control scroll 5 7", "parent scroll", "parent scroll"}), bench.parent.events);
}

TEST(Reflection, EndOfAChildIsReflectedToIt)
{
    Bench<StoppingControl> bench;
    bench.control.DestroyWindow();
    EXPECT_EQ(1, std::count(bench.parent.events.begin(), bench.parent.events.end(), "control parent notify"));
}

TEST(Reflection, OwnerDrawnButtonIsReallyDrawnByItself)
{
    Bench<StoppingControl> bench(_T("BUTTON"), BS_OWNERDRAW);
    bench.control.Invalidate();
    bench.control.UpdateWindow();
    EXPECT_EQ(1, std::count(bench.parent.events.begin(), bench.parent.events.end(), "control draw 300"));
}

namespace
{
class OwnMenu : public CMenu
{
  public:
    Events events;
    void MeasureItem(LPMEASUREITEMSTRUCT p) override
    {
        events.push_back("measure " + std::to_string(p->itemID));
        p->itemHeight = 44;
    }
    void DrawItem(LPDRAWITEMSTRUCT p) override { events.push_back("draw " + std::to_string(p->itemID)); }
};
} // namespace

TEST(OwnerDrawnMenu, ItemsAreMeasuredAndDrawnByTheMenuObjectThatHoldsThem)
{
    Parent parent;
    OwnMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_OWNERDRAW, 71);
    parent.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    MEASUREITEMSTRUCT measure = {ODT_MENU, 0, 71, 0, 0, 0};
    EXPECT_EQ(TRUE, parent.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure)));
    EXPECT_EQ(44u, measure.itemHeight);
    DRAWITEMSTRUCT draw = {ODT_MENU, 0, 71, ODA_DRAWENTIRE, 0, reinterpret_cast<HWND>(menu.m_hMenu), nullptr, {}, 0};
    EXPECT_EQ(TRUE, parent.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw)));
    EXPECT_EQ((Events{"measure 71", "draw 71"}), menu.events);
}
