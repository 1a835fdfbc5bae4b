#include <tests/afx/TestWindows.h>

namespace
{
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
} // namespace

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
/** Throws when it gets its window, as often as it is told. */
class ThrowingWnd : public CWnd
{
  public:
    int failures = 1;

    void PreSubclassWindow() override
    {
        if (failures > 0) {
            --failures;
            AfxThrowResourceException();
        }
    }
};

LRESULT CALLBACK RefuseWindows(int code, WPARAM wParam, LPARAM lParam)
{
    return code == HCBT_CREATEWND ? 1 : ::CallNextHookEx(nullptr, code, wParam, lParam);
}

BOOL CreatePopup(CWnd& wnd)
{
    return wnd.CreateEx(0, AfxRegisterWndClass(0), TEXT("popup"), WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
}
} // namespace

TEST(Creation, ObjectIsFreeAgainWhenAnotherHookRefusesItsWindow)
{
    CWnd wnd;
    const HHOOK hook = ::SetWindowsHookEx(WH_CBT, RefuseWindows, nullptr, ::GetCurrentThreadId());
    const BOOL refused = CreatePopup(wnd);
    ::UnhookWindowsHookEx(hook);
    EXPECT_FALSE(refused);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_TRUE(CreatePopup(wnd));
    EXPECT_TRUE(::IsWindow(wnd.m_hWnd));
}

TEST(Creation, ExceptionOfAnObjectThatGetsItsWindowReachesTheCreator)
{
    ThrowingWnd wnd;
    bool caught = false;
    try {
        CreatePopup(wnd);
    } catch (CResourceException* e) {
        caught = e != nullptr && e->IsKindOf(RUNTIME_CLASS(CResourceException));
        e->Delete();
    }
    EXPECT_TRUE(caught);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    // No hook is left that would bind somebody else's window.
    const HWND plain =
        ::CreateWindowEx(0, TEXT("STATIC"), nullptr, WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);
    ::DestroyWindow(plain);
    EXPECT_TRUE(CreatePopup(wnd));
}
