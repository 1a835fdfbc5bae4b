#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>

namespace
{
constexpr int kId = 21;

/** Writes down which functions are called. */
class CTracedDragList : public CDragListBox
{
  public:
    std::vector<std::wstring> calls;
    BOOL mayDrag = TRUE;
    bool isTraced = false;

    BOOL BeginDrag(CPoint pt) override
    {
        calls.push_back(L"begin");
        point = pt;
        return isTraced ? mayDrag : CDragListBox::BeginDrag(pt) && mayDrag;
    }
    void CancelDrag(CPoint pt) override
    {
        calls.push_back(L"cancel");
        CDragListBox::CancelDrag(pt);
    }
    UINT Dragging(CPoint pt) override
    {
        if (calls.empty() || calls.back() != L"drag") {
            calls.push_back(L"drag");
        }
        point = pt;
        return cursor = CDragListBox::Dragging(pt);
    }
    void Dropped(int nSrcIndex, CPoint pt) override
    {
        calls.push_back(L"drop " + std::to_wstring(nSrcIndex));
        CDragListBox::Dropped(nSrcIndex, pt);
    }
    void DrawInsert(int nItem) override
    {
        marks.push_back(nItem);
        CDragListBox::DrawInsert(nItem);
    }

    CPoint point;
    UINT cursor = 0;
    std::vector<int> marks;
};

/** A list with the items a to e, with room below them. */
class DragList : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(
            m_list.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | LBS_NOTIFY, CRect(30, 10, 130, 130), &m_host, kId));
        for (const wchar_t* text : {L"a", L"b", L"c", L"d", L"e"}) {
            m_list.SetItemData(m_list.AddString(text), static_cast<DWORD_PTR>(*text));
        }
        ts::ParkMouse();
    }

    std::wstring Items() const
    {
        std::wstring items;
        for (int i = 0; i < m_list.GetCount(); ++i) {
            CString text;
            m_list.GetText(i, text);
            items += text;
            EXPECT_EQ(static_cast<DWORD_PTR>(text[0]), m_list.GetItemData(i)) << "the data moves along";
        }
        return items;
    }

    POINT Middle(int index) const
    {
        CRect rect;
        m_list.GetItemRect(index, &rect);
        return {20, rect.CenterPoint().y};
    }

    CPoint OnScreen(POINT point) const
    {
        m_list.ClientToScreen(&point);
        return point;
    }

    void Press(int index)
    {
        ts::MoveMouse(m_list, Middle(index).x, Middle(index).y);
        ts::MouseDown();
    }

    void MoveTo(int index) { ts::MoveMouse(m_list, Middle(index).x, Middle(index).y); }

    ts::AfxHost m_host{200, 140};
    CTracedDragList m_list;
};

TEST_F(DragList, DroppedItemMovesBeforeTheOneBelowIt)
{
    ts::Drag(m_list, Middle(3), Middle(1));
    EXPECT_EQ(L"adbce", Items());
    EXPECT_EQ(1, m_list.GetCurSel());
}

TEST_F(DragList, ItemMovesDownToo)
{
    ts::Drag(m_list, Middle(0), Middle(3));
    EXPECT_EQ(L"bcade", Items());
    EXPECT_EQ(2, m_list.GetCurSel());
}

TEST_F(DragList, ItemDroppedOnItselfOrTheNextStays)
{
    ts::Drag(m_list, Middle(1), {40, Middle(1).y});
    EXPECT_EQ(L"abcde", Items());
    ts::Drag(m_list, Middle(1), Middle(2));
    EXPECT_EQ(L"abcde", Items());
}

TEST_F(DragList, ItemDroppedOutsideStays)
{
    ts::Drag(m_list, Middle(1), {20, 110});
    EXPECT_EQ(L"abcde", Items());
    ts::Drag(m_list, Middle(1), {-20, 20});
    EXPECT_EQ(L"abcde", Items());
}

TEST_F(DragList, FunctionsAreCalledInOrder)
{
    Press(0);
    MoveTo(2);
    ts::MouseUp();
    EXPECT_EQ((std::vector<std::wstring>{L"begin", L"drag", L"drop 0"}), m_list.calls);
}

TEST_F(DragList, PointsAreScreenCoordinates)
{
    Press(0);
    EXPECT_EQ(OnScreen(Middle(0)), m_list.point);
    MoveTo(2);
    EXPECT_EQ(OnScreen(Middle(2)), m_list.point);
    ts::MouseUp();
}

TEST_F(DragList, EscapeCancels)
{
    m_list.SetFocus();
    Press(0);
    MoveTo(2);
    ts::Key(VK_ESCAPE);
    ts::MouseUp();
    EXPECT_EQ(L"abcde", Items());
    EXPECT_EQ(L"cancel", m_list.calls.back());
    EXPECT_EQ(-1, m_list.marks.back());
}

TEST_F(DragList, RefusedDragDoesNotStart)
{
    m_list.mayDrag = FALSE;
    m_list.isTraced = true;
    ts::Drag(m_list, Middle(3), Middle(1));
    EXPECT_EQ(L"abcde", Items());
    EXPECT_EQ((std::vector<std::wstring>{L"begin"}), m_list.calls);
}

TEST_F(DragList, InsertionMarkFollowsThePointerAndGoes)
{
    Press(0);
    MoveTo(2);
    MoveTo(3);
    EXPECT_EQ(3, m_list.marks.back());
    ts::MouseUp();
    EXPECT_EQ(-1, m_list.marks.back());
}

TEST_F(DragList, InsertionMarkIsDrawnInTheParent)
{
    CRect strip(0, 10, 30, 130); // left of the list
    const ts::Picture before = ts::CaptureWindow(m_host).Crop(strip);
    Press(0);
    MoveTo(2);
    EXPECT_FALSE(ts::CaptureWindow(m_host).Crop(strip) == before);
    ts::MouseUp();
    ts::Settle();
    EXPECT_TRUE(ts::SamePicture(before, ts::CaptureWindow(m_host).Crop(strip)));
}

TEST_F(DragList, CursorTellsWhereADropWorks)
{
    Press(0);
    MoveTo(2);
    EXPECT_EQ(static_cast<UINT>(DL_MOVECURSOR), m_list.cursor);
    ts::MoveMouse(m_list, 20, 110);
    EXPECT_EQ(static_cast<UINT>(DL_STOPCURSOR), m_list.cursor);
    ts::MouseUp();
}

TEST_F(DragList, ScrollsWithThePointerBelowAndTakesTheMarkAwayBefore)
{
    for (int i = 0; i < 20; ++i) {
        m_list.AddString(L"x");
    }
    CRect client;
    m_list.GetClientRect(&client);
    ts::MessageRecorder log(m_list);
    std::vector<int> marks;
    log.Answer(LB_SETTOPINDEX, [&](const ts::Message&) -> std::optional<LRESULT> {
        marks.push_back(m_list.marks.back());
        return std::nullopt;
    });
    Press(0);
    MoveTo(3);
    ASSERT_EQ(3, m_list.marks.back());
    int x = 20;
    const bool scrolled = ts::PumpUntil([&] {
        ts::MoveMouse(m_list, x ^= 1, client.bottom + 6);
        return !marks.empty();
    });
    ts::MouseUp();
    ASSERT_TRUE(scrolled);
    EXPECT_EQ(-1, marks.front());
    EXPECT_LT(0, m_list.GetTopIndex());
}

TEST_F(DragList, ItemFromPtKnowsItemsOnly)
{
    EXPECT_EQ(2, m_list.ItemFromPt(OnScreen(Middle(2)), FALSE));
    EXPECT_EQ(-1, m_list.ItemFromPt(OnScreen({20, 110}), FALSE));
    EXPECT_EQ(-1, m_list.ItemFromPt(OnScreen({-50, 20}), FALSE));
    EXPECT_EQ(-1, CDragListBox().ItemFromPt(CPoint(0, 0), TRUE));
}

TEST_F(DragList, DroppingAMissingItemDoesNothing)
{
    m_list.Dropped(-1, OnScreen(Middle(1)));
    m_list.Dropped(5, OnScreen(Middle(1)));
    EXPECT_EQ(L"abcde", Items());
}

TEST_F(DragList, ParentMayHandleTheMessageItself)
{
    const UINT message = ::RegisterWindowMessageW(DRAGLISTMSGSTRING);
    m_host.Log().Answer(message, [](const ts::Message&) -> std::optional<LRESULT> { return FALSE; });
    ts::Drag(m_list, Middle(3), Middle(1));
    EXPECT_EQ(L"abcde", Items());
    EXPECT_TRUE(m_list.calls.empty());
    EXPECT_TRUE(m_host.Log().Has(ts::Msg(message, kId)));
}

TEST_F(DragList, DraggingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CDragListBox list;
        list.Create(WS_CHILD | WS_VISIBLE, CRect(140, 10, 190, 100), &m_host, 22);
        list.AddString(L"x");
        list.RedrawWindow();
        list.DestroyWindow();
    }));
}
} // namespace
