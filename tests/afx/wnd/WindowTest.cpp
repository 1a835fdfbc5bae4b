#include "Windows.h"

#include <algorithm>

namespace
{
/** Writes down its life; may refuse to be created. */
class LifeWnd : public CWnd
{
  public:
    explicit LifeWnd(Events& log, std::string name = "") : events(log), m_name(std::move(name)) {}
    ~LifeWnd() override
    {
        if (m_hWnd) {
            DestroyWindow();
        }
    }

    Events& events;
    int createResult = 0;
    BOOL ncCreateResult = TRUE;
    BOOL preCreateResult = TRUE;
    bool destroyInHandler = false;
    bool hadHandleAtFirst = false;

    BOOL Make(CWnd* pParent = nullptr, DWORD style = WS_OVERLAPPEDWINDOW)
    {
        return CreateEx(0, nullptr, _T("life"), style, CRect(0, 0, 200, 150), pParent, 0);
    }
    LRESULT Value(WPARAM wParam, LPARAM)
    {
        if (destroyInHandler) {
            DestroyWindow();
        }
        return static_cast<LRESULT>(wParam) + 1;
    }

  protected:
    void Log(const char* event) { events.push_back(m_name + event); }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        Log("precreate");
        return preCreateResult && CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override
    {
        Log("presubclass");
        hadHandleAtFirst = m_hWnd != nullptr;
    }
    void PostNcDestroy() override
    {
        Log("postncdestroy");
        CWnd::PostNcDestroy();
    }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI)
    {
        Log("minmax");
        CWnd::OnGetMinMaxInfo(lpMMI);
    }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct)
    {
        Log("nccreate");
        return ncCreateResult && CWnd::OnNcCreate(lpCreateStruct);
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        Log("create");
        return createResult ? createResult : CWnd::OnCreate(lpCreateStruct);
    }
    afx_msg void OnDestroy()
    {
        Log("destroy");
        CWnd::OnDestroy();
    }
    afx_msg void OnNcDestroy()
    {
        Log("ncdestroy");
        CWnd::OnNcDestroy();
    }

    DECLARE_MESSAGE_MAP()

  private:
    std::string m_name;
};

BEGIN_MESSAGE_MAP(LifeWnd, CWnd)
    ON_WM_GETMINMAXINFO()
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
    ON_MESSAGE(WM_USER, &LifeWnd::Value)
END_MESSAGE_MAP()

/** Lives on the heap and ends with its window. */
class HeapWnd : public LifeWnd
{
  public:
    HeapWnd(Events& log, bool& alive) : LifeWnd(log), m_alive(alive) { m_alive = true; }
    ~HeapWnd() override { m_alive = false; }
    void PostNcDestroy() override { delete this; }

  private:
    bool& m_alive;
};

/** Takes part in the messages of an edit control. */
class SubclassedEdit : public CWnd
{
  public:
    int keys = 0;
    CString seenAtPreSubclass;

    void PreSubclassWindow() override { GetWindowText(seenAtPreSubclass); }
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
    {
        ++keys;
        CWnd::OnChar(nChar, nRepCnt, nFlags);
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SubclassedEdit, CWnd)
    ON_WM_CHAR()
END_MESSAGE_MAP()

Events OnlyOnce(const Events& events)
{
    Events once;
    for (const auto& event : events) {
        if (std::find(once.begin(), once.end(), event) == once.end()) {
            once.push_back(event);
        }
    }
    return once;
}
} // namespace

TEST(WindowCreation, FirstMessagesReachTheObjectBeforeCreateReturns)
{
    Events events;
    LifeWnd wnd(events);
    ASSERT_TRUE(wnd.Make());
    EXPECT_TRUE(wnd.hadHandleAtFirst);
    EXPECT_EQ((Events{"precreate", "presubclass", "minmax", "nccreate", "create"}), OnlyOnce(events));
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(wnd.m_hWnd));
}

TEST(WindowCreation, DestructionOrderIsDestroyNcDestroyPostNcDestroyWithChildrenBetween)
{
    Events events;
    LifeWnd parent(events, "parent ");
    ASSERT_TRUE(parent.Make());
    LifeWnd child(events, "child ");
    ASSERT_TRUE(child.Make(&parent, WS_CHILD));
    events.clear();
    EXPECT_TRUE(parent.DestroyWindow());
    EXPECT_EQ((Events{"parent destroy", "child destroy", "child ncdestroy", "child postncdestroy", "parent ncdestroy",
                      "parent postncdestroy"}),
              events);
    EXPECT_EQ(nullptr, parent.m_hWnd);
    EXPECT_EQ(nullptr, child.m_hWnd);
}

TEST(WindowCreation, PreCreateWindowMayRefuse)
{
    Events events;
    LifeWnd wnd(events);
    wnd.preCreateResult = FALSE;
    EXPECT_FALSE(wnd.Make());
    EXPECT_EQ((Events{"precreate", "postncdestroy"}), events);
}

TEST(WindowCreation, UnknownClassFailsAndStillEndsTheObject)
{
    Events events;
    LifeWnd wnd(events);
    EXPECT_FALSE(wnd.CreateEx(0, _T("no such class"), _T(""), WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0));
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ((Events{"precreate", "postncdestroy"}), events);
}

TEST(WindowCreation, CreateHandlerThatAnswersMinusOneEndsTheCreation)
{
    Events events;
    LifeWnd wnd(events);
    wnd.createResult = -1;
    EXPECT_FALSE(wnd.Make());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(1, std::count(events.begin(), events.end(), "postncdestroy"));
}

TEST(WindowCreation, NcCreateHandlerThatRefusesEndsTheCreation)
{
    Events events;
    LifeWnd wnd(events);
    wnd.ncCreateResult = FALSE;
    EXPECT_FALSE(wnd.Make());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(1, std::count(events.begin(), events.end(), "postncdestroy"));
}

TEST(WindowCreation, FailedCreationDoesNotBindTheNextForeignWindow)
{
    Events events;
    LifeWnd wnd(events);
    wnd.CreateEx(0, _T("no such class"), _T(""), WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0);
    const HWND hWnd =
        ::CreateWindowEx(0, _T("STATIC"), _T(""), WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    ::DestroyWindow(hWnd);
}

TEST(WindowCreation, ObjectOnTheHeapEndsWithItsWindow)
{
    Events events;
    bool alive = false;
    auto* pWnd = new HeapWnd(events, alive);
    ASSERT_TRUE(pWnd->Make());
    const HWND hWnd = pWnd->m_hWnd;
    pWnd->DestroyWindow();
    EXPECT_FALSE(alive);
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST(WindowCreation, HeapObjectMayDestroyItselfInItsOwnHandler)
{
    Events events;
    bool alive = false;
    auto* pWnd = new HeapWnd(events, alive);
    ASSERT_TRUE(pWnd->Make());
    pWnd->destroyInHandler = true;
    EXPECT_EQ(8, ::SendMessage(pWnd->m_hWnd, WM_USER, 7, 0));
    EXPECT_FALSE(alive);
}

TEST(WindowCreation, DestructorDestroysTheWindow)
{
    HWND hWnd = nullptr;
    {
        CWnd wnd;
        ASSERT_TRUE(wnd.CreateEx(0, nullptr, _T(""), WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
        hWnd = wnd.m_hWnd;
        EXPECT_TRUE(::IsWindow(hWnd));
    }
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
}

TEST(WindowCreation, SecondCreateOfALivingWindowIsRefused)
{
    Events events;
    LifeWnd wnd(events);
    ASSERT_TRUE(wnd.Make());
    const HWND hWnd = wnd.m_hWnd;
#ifndef _DEBUG
    EXPECT_FALSE(wnd.Make());
#endif
    EXPECT_EQ(hWnd, wnd.m_hWnd);
}

TEST(WindowCreation, WindowWithoutStyleUnderTheDesktopWorks)
{
    CWnd wnd;
    EXPECT_TRUE(wnd.Create(nullptr, _T("hidden"), 0, CRect(0, 0, 0, 0), CWnd::GetDesktopWindow(), 0));
    EXPECT_FALSE(wnd.IsWindowVisible());
}

TEST(WindowClass, SameAttributesGiveTheSameClassAndOthersAnother)
{
    const HCURSOR hCursor = ::LoadCursor(nullptr, IDC_CROSS);
    const CString strFirst = AfxRegisterWndClass(CS_DBLCLKS, hCursor);
    EXPECT_EQ(strFirst, AfxRegisterWndClass(CS_DBLCLKS, hCursor));
    EXPECT_NE(strFirst, AfxRegisterWndClass(0, hCursor));
    WNDCLASS info = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), strFirst, &info));
    EXPECT_EQ(hCursor, info.hCursor);
    EXPECT_EQ(static_cast<UINT>(CS_DBLCLKS), info.style);
}

TEST(WindowClass, NameOfARegisteredClassStaysValid)
{
    const LPCTSTR lpszFirst = AfxRegisterWndClass(CS_DBLCLKS);
    const CString strCopy = lpszFirst;
    for (UINT style = 1; style < 8; ++style) {
        AfxRegisterWndClass(style);
    }
    EXPECT_EQ(strCopy, lpszFirst);
}

TEST(WindowClass, RegisteringTwiceSucceeds)
{
    WNDCLASS wndClass = {};
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.lpszClassName = _T("afx_wnd_test_class");
    EXPECT_TRUE(AfxRegisterClass(&wndClass));
    EXPECT_TRUE(AfxRegisterClass(&wndClass));
    EXPECT_FALSE(AfxRegisterClass(nullptr));
}

TEST(HandleMap, ForeignWindowGetsATemporaryObjectAndNoPermanentOne)
{
    const TopWnd parent;
    const HWND hWnd = MakeControl(parent, _T("BUTTON"), 0, 1);
    CWnd* pWnd = CWnd::FromHandle(hWnd);
    ASSERT_NE(nullptr, pWnd);
    EXPECT_EQ(hWnd, pWnd->m_hWnd);
    EXPECT_EQ(pWnd, CWnd::FromHandle(hWnd));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(hWnd));
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
}

TEST(HandleMap, AttachMakesTheObjectPermanentAndDetachEndsIt)
{
    const TopWnd parent;
    const HWND hWnd = MakeControl(parent, _T("BUTTON"), 0, 1);
    CWnd wnd;
    EXPECT_FALSE(wnd.Attach(nullptr));
    EXPECT_TRUE(wnd.Attach(hWnd));
    EXPECT_EQ(&wnd, CWnd::FromHandle(hWnd));
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(hWnd, wnd.Detach());
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(nullptr, wnd.Detach());
}

TEST(HandleMap, DestroyingAnAttachedWindowFreesTheObject)
{
    const TopWnd parent;
    CWnd wnd;
    wnd.Attach(MakeControl(parent, _T("BUTTON"), 0, 1));
    const HWND hWnd = wnd.m_hWnd;
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(HandleMap, MessagesToAWindowWhoseObjectIsGoneGetDefaultHandling)
{
    Events events;
    auto* pWnd = new LifeWnd(events);
    ASSERT_TRUE(pWnd->Make());
    const HWND hWnd = pWnd->Detach();
    delete pWnd;
    EXPECT_EQ(0, ::SendMessage(hWnd, WM_USER, 7, 0));
    EXPECT_TRUE(::SetWindowText(hWnd, _T("still a window")));
    EXPECT_TRUE(::DestroyWindow(hWnd));
}

TEST(HandleMap, NullObjectHasANullHandle)
{
    CWnd* pNone = CWnd::FromHandle(nullptr);
    EXPECT_EQ(nullptr, pNone->GetSafeHwnd());
}

TEST(Subclassing, ControlKeepsWorkingAndItsMessagesReachTheObject)
{
    TopWnd parent;
    const HWND hWnd = MakeControl(parent, _T("EDIT"), 0, 1, _T("before"));
    const auto pfnBefore = ::GetWindowLongPtr(hWnd, GWLP_WNDPROC);
    SubclassedEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(hWnd));
    EXPECT_EQ(CString(_T("before")), edit.seenAtPreSubclass);
    edit.SetWindowText(_T(""));
    edit.SendMessage(WM_CHAR, 'x', 1);
    CString strText;
    edit.GetWindowText(strText);
    EXPECT_EQ(CString(_T("x")), strText);
    EXPECT_EQ(1, edit.keys);
    EXPECT_EQ(hWnd, edit.UnsubclassWindow());
    EXPECT_EQ(pfnBefore, ::GetWindowLongPtr(hWnd, GWLP_WNDPROC));
    ::SendMessage(hWnd, WM_CHAR, 'y', 1);
    EXPECT_EQ(1, edit.keys);
    EXPECT_EQ(2, ::GetWindowTextLength(hWnd));
}

TEST(Subclassing, DialogItemIsFoundByItsId)
{
    TopWnd parent;
    const HWND hWnd = MakeControl(parent, _T("EDIT"), 0, 17);
    SubclassedEdit edit;
    EXPECT_FALSE(edit.SubclassDlgItem(16, &parent));
    EXPECT_FALSE(edit.SubclassDlgItem(17, CWnd::FromHandle(nullptr)));
    EXPECT_TRUE(edit.SubclassDlgItem(17, &parent));
    EXPECT_EQ(hWnd, edit.m_hWnd);
}

TEST(Subclassing, NoWindowOrAWindowWithAnObjectIsRefused)
{
    TopWnd parent;
    SubclassedEdit first;
    SubclassedEdit second;
    EXPECT_FALSE(first.SubclassWindow(nullptr));
    EXPECT_FALSE(first.SubclassWindow(reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7ffe))));
    ASSERT_TRUE(first.SubclassWindow(MakeControl(parent, _T("EDIT"), 0, 1)));
    EXPECT_FALSE(second.SubclassWindow(first.m_hWnd));
    EXPECT_EQ(nullptr, second.m_hWnd);
}

TEST(Subclassing, WindowThatEndsTakesTheObjectOutOfTheMap)
{
    SubclassedEdit edit;
    HWND hWnd = nullptr;
    {
        TopWnd parent;
        hWnd = MakeControl(parent, _T("EDIT"), 0, 1);
        ASSERT_TRUE(edit.SubclassWindow(hWnd));
    }
    EXPECT_EQ(nullptr, edit.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hWnd));
}

namespace
{
class ThrowingWnd : public CWnd
{
  public:
    bool throwInCreate = false;
    int paints = 0;

    LRESULT Throw(WPARAM, LPARAM) { AfxThrowUserException(); }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        if (throwInCreate) {
            AfxThrowMemoryException();
        }
        return CWnd::OnCreate(lpCreateStruct);
    }
    afx_msg void OnPaint()
    {
        ++paints;
        AfxThrowResourceException();
    }
    BOOL Make() { return CreateEx(0, nullptr, _T(""), WS_POPUP | WS_VISIBLE, CRect(0, 0, 50, 50), nullptr, 0); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ThrowingWnd, CWnd)
    ON_MESSAGE(WM_USER, &ThrowingWnd::Throw)
    ON_WM_CREATE()
    ON_WM_PAINT()
END_MESSAGE_MAP()
} // namespace

TEST(HandlerExceptions, EndAtTheWindowProcedureWithResultZero)
{
    ThrowingWnd wnd;
    ASSERT_TRUE(wnd.Make());
    EXPECT_EQ(0, wnd.SendMessage(WM_USER));
    EXPECT_TRUE(::IsWindow(wnd));
}

TEST(HandlerExceptions, InCreateEndTheCreation)
{
    ThrowingWnd wnd;
    wnd.throwInCreate = true;
    EXPECT_FALSE(wnd.Make());
    EXPECT_EQ(nullptr, wnd.m_hWnd);
}

TEST(HandlerExceptions, InPaintDoNotRepeatForEver)
{
    ThrowingWnd wnd;
    ASSERT_TRUE(wnd.Make());
    ts::PumpPending();
    const int nPaints = wnd.paints;
    EXPECT_GE(nPaints, 1);
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
    ts::PumpPending();
    EXPECT_EQ(nPaints, wnd.paints);
}

TEST(CurrentMessage, IsTheOneBeingHandledAndComesBackAfterANestedOne)
{
    class Nesting : public CWnd
    {
      public:
        UINT before = 0;
        UINT after = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_USER) {
                before = GetCurrentMessage()->message;
                SendMessage(WM_USER + 1);
                after = GetCurrentMessage()->message;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, _T(""), WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    wnd.SendMessage(WM_USER, 1, 2);
    EXPECT_EQ(static_cast<UINT>(WM_USER), wnd.before);
    EXPECT_EQ(static_cast<UINT>(WM_USER), wnd.after);
}

TEST(WindowWrappers, TextRoundTripsAtAnyLength)
{
    TopWnd wnd;
    const CString strLong(_T('x'), 3000);
    wnd.SetWindowText(strLong);
    CString strText;
    wnd.GetWindowText(strText);
    EXPECT_EQ(strLong, strText);
    wnd.SetWindowText(_T(""));
    wnd.GetWindowText(strText);
    EXPECT_TRUE(strText.IsEmpty());
}

TEST(WindowWrappers, StylesChangeAndReportWhetherTheyDid)
{
    TopWnd wnd;
    EXPECT_TRUE(wnd.ModifyStyle(WS_MAXIMIZEBOX, WS_DISABLED));
    EXPECT_FALSE(wnd.ModifyStyle(WS_MAXIMIZEBOX, WS_DISABLED));
    EXPECT_EQ(0u, wnd.GetStyle() & WS_MAXIMIZEBOX);
    EXPECT_TRUE(wnd.ModifyStyleEx(0, WS_EX_TOOLWINDOW, SWP_FRAMECHANGED));
    EXPECT_NE(0u, wnd.GetExStyle() & WS_EX_TOOLWINDOW);
}

TEST(WindowWrappers, RectanglesConvertBetweenClientAndScreen)
{
    TopWnd wnd;
    CRect rect(1, 2, 30, 40);
    wnd.ClientToScreen(&rect);
    CPoint origin(0, 0);
    wnd.ClientToScreen(&origin);
    EXPECT_EQ(CRect(1 + origin.x, 2 + origin.y, 30 + origin.x, 40 + origin.y), rect);
    wnd.ScreenToClient(&rect);
    EXPECT_EQ(CRect(1, 2, 30, 40), rect);
}

TEST(WindowWrappers, InsertionPlacesOrderWindows)
{
    TopWnd parent;
    const HWND hFirst = MakeControl(parent, _T("STATIC"), 0, 1);
    const HWND hSecond = MakeControl(parent, _T("STATIC"), 0, 2);
    constexpr UINT kOnlyOrder = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
    CWnd::FromHandle(hSecond)->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, kOnlyOrder);
    EXPECT_EQ(hSecond, parent.GetTopWindow()->m_hWnd);
    CWnd::FromHandle(hSecond)->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, kOnlyOrder);
    EXPECT_EQ(hFirst, parent.GetTopWindow()->m_hWnd);
    parent.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, kOnlyOrder);
    EXPECT_NE(0u, parent.GetExStyle() & WS_EX_TOPMOST);
    parent.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, kOnlyOrder);
    EXPECT_EQ(0u, parent.GetExStyle() & WS_EX_TOPMOST);
}

TEST(WindowWrappers, DialogItemsAreReadAndWrittenById)
{
    TopWnd parent;
    MakeControl(parent, _T("EDIT"), 0, 5);
    parent.SetDlgItemText(5, _T("some text"));
    CString strText;
    EXPECT_EQ(9, parent.GetDlgItemText(5, strText));
    EXPECT_EQ(CString(_T("some text")), strText);
    EXPECT_EQ(0, parent.GetDlgItemText(6, strText));
    EXPECT_TRUE(strText.IsEmpty());
    parent.SetDlgItemInt(5, static_cast<UINT>(-12));
    BOOL bOk = FALSE;
    EXPECT_EQ(-12, static_cast<int>(parent.GetDlgItemInt(5, &bOk)));
    EXPECT_TRUE(bOk);
    EXPECT_EQ(nullptr, parent.GetDlgItem(99));
    EXPECT_EQ(5, parent.GetDlgItem(5)->GetDlgCtrlID());
}

TEST(WindowWrappers, RadioButtonsReportTheCheckedOne)
{
    TopWnd parent;
    for (int id = 1; id <= 3; ++id) {
        MakeControl(parent, _T("BUTTON"), BS_AUTORADIOBUTTON, id);
    }
    EXPECT_EQ(0, parent.GetCheckedRadioButton(1, 3));
    parent.CheckRadioButton(1, 3, 2);
    EXPECT_EQ(2, parent.GetCheckedRadioButton(1, 3));
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), parent.IsDlgButtonChecked(2));
}

TEST(WindowWrappers, SetFontAndGetFontAgree)
{
    TopWnd parent;
    const HWND hWnd = MakeControl(parent, _T("EDIT"), 0, 1);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, _T("Tahoma")));
    CWnd::FromHandle(hWnd)->SetFont(&font);
    EXPECT_EQ(&font, CWnd::FromHandle(hWnd)->GetFont());
}

TEST(WindowWrappers, NullWindowIsAQuietNoOp)
{
    CWnd wnd;
    wnd.Invalidate();
    EXPECT_EQ(0u, wnd.SetTimer(1, 10, nullptr));
    EXPECT_FALSE(wnd.KillTimer(1));
    EXPECT_FALSE(wnd.RedrawWindow());
    EXPECT_FALSE(wnd.EnableWindow());
    EXPECT_EQ(nullptr, wnd.GetParent());
    EXPECT_EQ(nullptr, wnd.GetTopLevelParent());
    EXPECT_EQ(nullptr, wnd.GetDlgItem(1));
    EXPECT_FALSE(wnd.UpdateData());
    wnd.CenterWindow();
    CString strText(_T("old"));
    wnd.GetWindowText(strText);
    EXPECT_TRUE(strText.IsEmpty());
}

TEST(WindowTree, OwnersAndParentsAreFound)
{
    TopWnd top;
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, _T(""), WS_POPUP, CRect(0, 0, 10, 10), &top, 0));
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, _T(""), WS_CHILD, CRect(0, 0, 5, 5), &popup, 3));
    EXPECT_EQ(&popup, child.GetParent());
    EXPECT_EQ(&popup, child.GetParentOwner());
    EXPECT_EQ(&top, child.GetTopLevelParent());
    EXPECT_EQ(&top, popup.GetTopLevelOwner());
    EXPECT_EQ(&popup, child.GetOwner());
    child.SetOwner(&top);
    EXPECT_EQ(&top, child.GetOwner());
    EXPECT_TRUE(popup.IsChild(&child));
    EXPECT_EQ(&child, popup.GetDescendantWindow(3, TRUE));
}

TEST(WindowTree, MessageToDescendantsReachesThemAll)
{
    Events events;
    LifeWnd top(events);
    ASSERT_TRUE(top.Make());
    class Counter : public CWnd
    {
      public:
        int count = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            count += message == WM_USER + 5;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } child, grandChild;
    child.Create(nullptr, _T(""), WS_CHILD, CRect(0, 0, 5, 5), &top, 1);
    grandChild.Create(nullptr, _T(""), WS_CHILD, CRect(0, 0, 5, 5), &child, 1);
    top.SendMessageToDescendants(WM_USER + 5, 0, 0, TRUE, TRUE);
    EXPECT_EQ(1, child.count);
    EXPECT_EQ(1, grandChild.count);
    top.SendMessageToDescendants(WM_USER + 5, 0, 0, FALSE, FALSE);
    EXPECT_EQ(2, child.count);
    EXPECT_EQ(1, grandChild.count);
}

TEST(CenterWindow, PutsAPopupOverItsOwnerAndKeepsItOnTheScreen)
{
    TopWnd owner;
    owner.MoveWindow(100, 100, 400, 300);
    CWnd popup;
    ASSERT_TRUE(popup.CreateEx(0, nullptr, _T(""), WS_POPUP, CRect(0, 0, 100, 50), &owner, 0));
    popup.CenterWindow();
    CRect rect;
    popup.GetWindowRect(&rect);
    EXPECT_EQ(CRect(250, 225, 350, 275), rect);
    owner.MoveWindow(-350, -250, 400, 300);
    popup.CenterWindow();
    popup.GetWindowRect(&rect);
    EXPECT_EQ(CPoint(0, 0), rect.TopLeft());
}

namespace
{
class ToolWnd : public TopWnd
{
  public:
    int asked = 0;

    void Move(CPoint point)
    {
        MSG msg = {m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y), 0, {0, 0}};
        EXPECT_FALSE(PreTranslateMessage(&msg));
    }
    static LRESULT Tools()
    {
        const HWND hWndTip = AfxGetThreadState()->m_hWndToolTip;
        return ::IsWindow(hWndTip) ? ::SendMessage(hWndTip, TTM_GETTOOLCOUNT, 0, 0) : 0;
    }
    BOOL OnNeedText(UINT, NMHDR* pNMHDR, LRESULT*)
    {
        ++asked;
        reinterpret_cast<NMTTDISPINFO*>(pNMHDR)->lpszText = const_cast<LPTSTR>(_T("tip"));
        return TRUE;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ToolWnd, CWnd)
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &ToolWnd::OnNeedText)
END_MESSAGE_MAP()
} // namespace

TEST(ToolTips, FollowThePointerFromControlToControl)
{
    ToolWnd wnd;
    MakeControl(wnd, _T("STATIC"), SS_NOTIFY, 5); // at 10, 10, 120 x 80 pixels
    wnd.Move({20, 20});
    EXPECT_EQ(0, ToolWnd::Tools());
    wnd.EnableToolTips();
    wnd.Move({20, 20});
    EXPECT_EQ(1, ToolWnd::Tools());
    wnd.Move({200, 200});
    EXPECT_EQ(0, ToolWnd::Tools());
    wnd.Move({20, 20});
    wnd.DestroyWindow();
    EXPECT_EQ(nullptr, AfxGetThreadState()->m_hWndToolTip);
}

TEST(ToolTips, HitTestNamesTheChildUnderThePoint)
{
    const ToolWnd wnd;
    const HWND hWnd = MakeControl(wnd, _T("STATIC"), SS_NOTIFY, 5);
    TOOLINFO info = {};
    EXPECT_EQ(5, wnd.OnToolHitTest({20, 20}, &info));
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(hWnd), info.uId);
    EXPECT_EQ(wnd.m_hWnd, info.hwnd);
    EXPECT_EQ(-1, wnd.OnToolHitTest({200, 200}, &info));
}

TEST(ToolTips, TextIsAskedOfTheWindowWhenTheTipShows)
{
    ToolWnd wnd;
    wnd.SetForegroundWindow();
    MakeControl(wnd, _T("STATIC"), SS_NOTIFY, 5);
    wnd.EnableToolTips();
    wnd.Move({20, 20});
    const HWND hWndTip = AfxGetThreadState()->m_hWndToolTip;
    ASSERT_TRUE(::IsWindow(hWndTip));
    ::SendMessage(hWndTip, TTM_SETDELAYTIME, TTDT_INITIAL, 1);
    ts::MoveMouse(wnd, 22, 22);
    wnd.Move({22, 22});
    EXPECT_TRUE(ts::PumpUntil([&] { return wnd.asked > 0; }));
}
