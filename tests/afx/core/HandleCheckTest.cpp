#include "Checks.h"
#include "TraceCatcher.h"

#include <tests/support/Surroundings.h>

#include <afxcmn.h>

namespace
{
/** What objects of this thread own more than when this was made. */
class Growth
{
  public:
    Growth() { m_before.Checkpoint(); }
    LONG Of(CHandleState::HandleKind kind) const
    {
        CHandleState after;
        after.Checkpoint();
        CHandleState difference;
        difference.Difference(m_before, after);
        return difference.m_lCounts[kind];
    }
    bool IsNone() const
    {
        CHandleState after;
        after.Checkpoint();
        CHandleState difference;
        return !difference.Difference(m_before, after);
    }

  private:
    CHandleState m_before;
};

ts::ProcessResult RunLeaver(LPCWSTR lpszArgument)
{
    return ts::RunProcess(L"\"" + ts::ProgramFolder() + L"\\afx_core_leaver.exe\" " + lpszArgument);
}
} // namespace

TEST(HandleCheck, CountsTheHandlesThatObjectsOwnByKind)
{
    const Growth growth;
    {
        CWnd wnd;
        ASSERT_TRUE(wnd.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
        CMenu menus[2]; // of each kind another number, so that none is taken for another
        for (CMenu& menu : menus) {
            menu.CreatePopupMenu();
        }
        CDC contexts[3];
        for (CDC& dc : contexts) {
            dc.CreateCompatibleDC(nullptr);
        }
        CPen pens[4];
        for (CPen& pen : pens) {
            pen.CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
        }
        CImageList lists[5];
        for (CImageList& list : lists) {
            list.Create(1, 1, ILC_COLOR, 1, 1);
        }
        EXPECT_EQ(1, growth.Of(CHandleState::windows));
        EXPECT_EQ(2, growth.Of(CHandleState::menus));
        EXPECT_EQ(3, growth.Of(CHandleState::deviceContexts));
        EXPECT_EQ(4, growth.Of(CHandleState::gdiObjects));
        EXPECT_EQ(5, growth.Of(CHandleState::imageLists));
        EXPECT_FALSE(growth.IsNone());
        wnd.DestroyWindow();
    }
    EXPECT_TRUE(growth.IsNone());
}

TEST(HandleCheck, TemporaryAndDetachedObjectsOwnNothing)
{
    const Growth growth;
    CBrush brush(RGB(1, 2, 3));
    const HGDIOBJ hBrush = brush.Detach();
    CGdiObject::FromHandle(hBrush);
    EXPECT_TRUE(growth.IsNone());
    ::DeleteObject(hBrush);
}

TEST(HandleCheck, TheDumpNamesEveryHandleWithItsOwner)
{
    const UINT nBefore = AfxDumpHandles();
    CMenu menu;
    menu.CreatePopupMenu();
    TraceCatcher catcher;
    EXPECT_EQ(nBefore + 1, AfxDumpHandles());
    CString strExpected;
    strExpected.Format(L"menu $%p is owned by the object at $%p\n", menu.m_hMenu, static_cast<CObject*>(&menu));
    EXPECT_GE(g_strOutput.Find(strExpected), 0) << g_strOutput.GetString();
}

TEST(HandleCheck, StatisticsNameTheCounts)
{
    TraceCatcher catcher;
    CHandleState state;
    state.m_lCounts[CHandleState::windows] = 1;
    state.m_lCounts[CHandleState::menus] = 2;
    state.m_lCounts[CHandleState::deviceContexts] = 3;
    state.m_lCounts[CHandleState::gdiObjects] = 4;
    state.m_lCounts[CHandleState::imageLists] = 5;
    state.DumpStatistics();
    EXPECT_STREQ(L"1 windows, 2 menus, 3 device contexts, 4 GDI objects, 5 image lists\n", g_strOutput);
}

TEST(HandleCheck, WhatAProgramLeavesIsReportedWhenItEnds)
{
    const ts::ProcessResult result = RunLeaver(L"leave");
    EXPECT_EQ(0U, result.status);
    EXPECT_NE(std::string::npos, result.output.find("GDI object $")) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("1 handles are left")) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("Leaver.cpp(14)")) << result.output;
    EXPECT_NE(std::string::npos, result.output.find("in 1 objects")) << result.output;
}

TEST(HandleCheck, AProgramThatClosesEverythingHearsNothing)
{
    const ts::ProcessResult result = RunLeaver(L"");
    EXPECT_TRUE(result.started);
    EXPECT_EQ(0U, result.status);
    EXPECT_EQ("", result.output);
}
