#include "TestApp.h"

TEST(Application, WaitCursorNestsAndComesBack)
{
    TestApp app;
    ::SetCursor(app.LoadStandardCursor(IDC_CROSS));
    const HCURSOR hBefore = ::GetCursor();
    {
        CWaitCursor outer;
        const HCURSOR hWait = ::GetCursor();
        EXPECT_NE(hBefore, hWait);
        {
            CWaitCursor inner;
        }
        EXPECT_EQ(hWait, ::GetCursor());
        ::SetCursor(hBefore);
        outer.Restore();
        EXPECT_EQ(hWait, ::GetCursor());
    }
    EXPECT_EQ(hBefore, ::GetCursor());
}

TEST(NoApplication, WaitCursorWorksToo)
{
    ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
    const HCURSOR hBefore = ::GetCursor();
    {
        const CWaitCursor wait;
        EXPECT_NE(hBefore, ::GetCursor());
    }
    EXPECT_EQ(hBefore, ::GetCursor());
}
