#include <tests/afx/TestWindows.h>

#include <new>

namespace
{
class ThrowingWnd : public CWnd
{
  public:
    bool throwInCreate = false;
    int paints = 0;

    LRESULT Throw(WPARAM, LPARAM) { AfxThrowUserException(); }
    LRESULT RunOutOfMemory(WPARAM, LPARAM) { throw std::bad_alloc(); }
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
    ON_MESSAGE(WM_USER + 1, &ThrowingWnd::RunOutOfMemory)
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

TEST(HandlerExceptions, MemoryThatRunsOutEndsAtTheWindowProcedureToo)
{
    ThrowingWnd wnd;
    ASSERT_TRUE(wnd.Make());
    EXPECT_EQ(0, wnd.SendMessage(WM_USER + 1));
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
