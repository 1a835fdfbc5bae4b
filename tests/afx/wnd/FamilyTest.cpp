#include "LifeWnd.h"

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
