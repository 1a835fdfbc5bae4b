#include "LifeWnd.h"

#include <algorithm>

namespace
{
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
