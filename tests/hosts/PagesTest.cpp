#include <hosts/console/ConsoleText.h>
#include <tests/hosts/PagesFixture.h>

#include <algorithm>
#include <array>
#include <vector>

namespace
{

TEST_F(Pages, ArrowKeysInTheListOfPagesShowThem)
{
    Show(L"list");
    const HWND former = *m_frame.CurrentPage();
    ts::Key(VK_DOWN);
    EXPECT_FALSE(::IsWindow(former));
    EXPECT_NE(nullptr, Control(2705)); // the button that runs the progress
    ts::Key(VK_DOWN);
    EXPECT_NE(nullptr, Control(2706)); // the status bar
}

// The dialog with a sizing border

class LayoutDialog : public Pages
{
  protected:
    static constexpr UINT kOpen = 2301;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"layout");
    }

    static CRect ClientOf(HWND wnd)
    {
        CRect client;
        ::GetClientRect(wnd, client);
        return client;
    }

    static void ExpectButtonsInTheBand(HWND dialog)
    {
        const CRect client = ClientOf(dialog);
        CRect ok;
        CRect cancel;
        EXPECT_TRUE(QorGetCtrlRect(CWnd::FromHandle(dialog), IDOK, ok));
        EXPECT_TRUE(QorGetCtrlRect(CWnd::FromHandle(dialog), IDCANCEL, cancel));
        EXPECT_EQ(CPoint(client.right - 18, client.bottom - 39), CPoint(cancel.right, cancel.top));
        EXPECT_EQ(CPoint(cancel.left - 9, cancel.top), CPoint(ok.right, ok.top));
    }

    /** Whether the dialog shows what it shows when all of it is painted anew. */
    static testing::AssertionResult IsPaintedCompletely(HWND dialog)
    {
        const ts::Picture shown = ts::CaptureWindow(dialog);
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return ts::SamePicture(ts::CaptureWindow(dialog), shown);
    }
};

TEST_F(LayoutDialog, ButtonsStayInTheirCornerWhenItIsSized)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND dialog) {
        ExpectButtonsInTheBand(dialog);
        for (const CSize change : {CSize(60, 40), CSize(-90, -20)}) {
            const CSize size = ClientOf(dialog).Size() + change;
            ::SetWindowPos(dialog, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            EXPECT_EQ(size, ClientOf(dialog).Size());
            ExpectButtonsInTheBand(dialog);
            EXPECT_TRUE(IsPaintedCompletely(dialog));
        }
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    ts::Click(Control(kOpen));
    EXPECT_TRUE(driver.Finished());
}

// The list with its hundred thousand rows

constexpr int kRows = 100000;

class ListPage : public Pages
{
  protected:
    static constexpr UINT kList = 2701;
    static constexpr UINT kChecks = 2702;
    static constexpr UINT kFill = 2703;
    static constexpr UINT kRemove = 2704;
    static constexpr UINT kState = 2705;
    static constexpr UINT kOrder = 2706;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"list");
    }

    CFlatList& List() { return ControlAs<CFlatList>(kList); }

    void ClickHeader(int column)
    {
        CRect item;
        List().GetFlatHdr().GetItemRect(column, item);
        ts::Click(List().GetFlatHdr(), item.CenterPoint().x, item.CenterPoint().y);
    }

    /** Whether the header shows this order. */
    testing::AssertionResult HeaderShows(int column, int direction)
    {
        int shown = -1;
        const int sorted = List().GetSortColumn(&shown);
        if (sorted == column && shown == direction) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << "column " << sorted << ", direction " << shown;
    }

    /** The records of all rows as numbers of a column. */
    std::vector<int> Numbers(int column)
    {
        std::vector<int> numbers(kRows);
        for (int row = 0; row < kRows; ++row) {
            const auto record = static_cast<long long>(List().GetItemData(row));
            numbers[static_cast<size_t>(row)] = static_cast<int>(column == 0   ? record
                                                                 : column == 1 ? record * 7919 % kRows
                                                                               : record * 104729 % 365);
        }
        return numbers;
    }

    /** The picture of a row. */
    ts::Picture Row(int row)
    {
        CRect rect;
        List().GetItemRect(row, rect, LVIR_BOUNDS);
        return ts::CaptureWindow(List()).Crop(rect);
    }
};

TEST_F(ListPage, OpensSortedByName)
{
    EXPECT_EQ(kRows, List().GetItemCount());
    EXPECT_TRUE(HeaderShows(0, 1));
    EXPECT_STREQ(L"Record 0", List().GetItemText(0, 0));
}

TEST_F(ListPage, ClicksOnTheHeaderSortAllRows)
{
    const ts::Picture before = Row(0);
    for (const int column : {1, 2, 0}) {
        ClickHeader(column);
        EXPECT_TRUE(HeaderShows(column, 1));
        const std::vector<int> ascending = Numbers(column);
        EXPECT_TRUE(std::is_sorted(ascending.begin(), ascending.end())) << column;
        ClickHeader(column);
        EXPECT_TRUE(HeaderShows(column, 0));
        const std::vector<int> descending = Numbers(column);
        EXPECT_TRUE(std::is_sorted(descending.rbegin(), descending.rend())) << column;
        EXPECT_NE(ascending.front(), descending.front());
    }
    EXPECT_STREQ(L"Record 99999", List().GetItemText(0, 0));
    EXPECT_FALSE(ts::SamePicture(before, Row(0)));
    ClickHeader(0);
    EXPECT_TRUE(HeaderShows(0, 1));
    EXPECT_TRUE(ts::SamePicture(before, Row(0)));
}

TEST_F(ListPage, HeaderItemIsPressedWhileTheButtonIsDown)
{
    CFlatHdr& header = List().GetFlatHdr();
    CRect item;
    header.GetItemRect(1, item);
    const ts::Picture up = ts::CaptureWindow(header).Crop(item);
    ts::MoveMouse(header, item.CenterPoint().x, item.CenterPoint().y);
    ts::MouseDown();
    EXPECT_FALSE(ts::SamePicture(up, ts::CaptureWindow(header).Crop(item)));
    ts::MoveMouse(header, item.CenterPoint().x, 200); // away from it: nothing is sorted
    ts::MouseUp();
    EXPECT_TRUE(HeaderShows(0, 1));
    EXPECT_TRUE(ts::SamePicture(up, ts::CaptureWindow(header).Crop(item)));
}

TEST_F(ListPage, DraggingASeparatorChangesTheWidthAndSortsNothing)
{
    CFlatHdr& header = List().GetFlatHdr();
    CRect item;
    header.GetItemRect(0, item);
    ts::Drag(header, {item.right - 1, 8}, {item.right - 61, 8});
    EXPECT_EQ(item.Width() - 60, List().GetColumnWidth(0));
    EXPECT_TRUE(HeaderShows(0, 1));
    EXPECT_TRUE(ts::PixelIs(ts::CaptureWindow(header), item.right - 61, 3, RGB(213, 213, 213)));
}

TEST_F(ListPage, WorksByKeyboardAlone)
{
    ASSERT_TRUE(TabTo(kList));
    EXPECT_EQ(0, List().GetSelectedItem());
    ts::Key(VK_END);
    EXPECT_EQ(kRows - 1, List().GetSelectedItem());
    ts::Key(VK_HOME);
    ts::Key(VK_DOWN);
    EXPECT_EQ(1, List().GetSelectedItem());
    ASSERT_TRUE(TabTo(kChecks));
    ts::Key(VK_SPACE);
    EXPECT_TRUE(List().GetExtendedStyle() & LVS_EX_CHECKBOXES);
    ASSERT_TRUE(TabTo(kList));
    ts::Key(VK_SPACE);
    EXPECT_TRUE(List().GetCheck(1));
    ts::Key(VK_SPACE);
    EXPECT_FALSE(List().GetCheck(1));
}

TEST_F(ListPage, IsSortedByKeyboard)
{
    ASSERT_TRUE(TabTo(kOrder));
    for (const int column : {0, 1, 2}) {
        ts::Key(VK_SPACE);
        EXPECT_TRUE(HeaderShows(column, 0));
        const std::vector<int> descending = Numbers(column);
        EXPECT_TRUE(std::is_sorted(descending.rbegin(), descending.rend())) << column;
        ts::Key(VK_RETURN);
        EXPECT_TRUE(HeaderShows((column + 1) % 3, 1));
    }
}

TEST_F(ListPage, RowsAreRemovedAndFilledByKeyboard)
{
    ASSERT_TRUE(TabTo(kRemove));
    ts::Key(VK_RETURN);
    EXPECT_EQ(0, List().GetItemCount());
    EXPECT_STREQ(L"Rows: 0", TextOf(Control(kState)));
    const ts::Picture empty = ts::CaptureWindow(List());
    EXPECT_GT(empty.Crop(CRect(0, 30, empty.Width(), 60)).Count(RGB(255, 255, 255)), 0); // the text for it
    ASSERT_TRUE(TabTo(kFill));
    ts::Key(VK_RETURN);
    EXPECT_EQ(kRows, List().GetItemCount());
    EXPECT_STREQ(L"Rows: 100000", TextOf(Control(kState)));
}

TEST_F(ListPage, FillingKeepsTheOrder)
{
    ClickHeader(1);
    ClickHeader(1);
    ASSERT_TRUE(TabTo(kFill));
    ts::Key(VK_SPACE);
    EXPECT_TRUE(HeaderShows(1, 0));
    EXPECT_STREQ(L"99999 KB", List().GetItemText(0, 1));
}

// Progress

class ProgressPage : public Pages
{
  protected:
    static constexpr UINT kPercent = 2701;
    static constexpr UINT kFiles = 2702;
    static constexpr UINT kList = 2704;
    static constexpr UINT kRun = 2705;
    static constexpr UINT kStop = 2706;
    static constexpr UINT kReset = 2707;
    static constexpr UINT_PTR kTimer = 7;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"progress");
    }

    int Position() { return ControlAs<CProgressBar>(kPercent).GetPos(); }

    bool Runs()
    {
        const int before = Position();
        return ts::PumpUntil([&] { return Position() > before; }, 2000);
    }

    /** Whether no timer moves the bars; ends one that does. */
    bool Stands() { return !::KillTimer(*m_frame.CurrentPage(), kTimer); }
};

TEST_F(ProgressPage, RunsWhenItIsOpened)
{
    EXPECT_TRUE(Runs());
    EXPECT_TRUE(Runs());
}

TEST_F(ProgressPage, BarsAndListShowThePosition)
{
    m_frame.CurrentPage()->ShowState(0); // stopped at a third
    EXPECT_TRUE(Stands());
    EXPECT_EQ(333, Position());
    EXPECT_EQ(83, ControlAs<CProgressBar>(kFiles).GetPos());
    CProgressList& list = ControlAs<CProgressList>(kList);
    EXPECT_STREQ(L"done", list.GetItemText(0, 1));
    EXPECT_STREQ(L"66|Copying", list.GetItemText(1, 1));
    EXPECT_STREQ(L"waiting", list.GetItemText(2, 1));
    CRect cell;
    list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell);
    EXPECT_TRUE(ts::PixelIs(ts::CaptureWindow(list), cell.left + 5, cell.top + 3, RGB(6, 177, 36)));
    EXPECT_GE(cell.Height(), 18);
}

TEST_F(ProgressPage, BarsHaveThePagesFont)
{
    m_frame.CurrentPage()->ShowState(2); // empty bars
    const ts::Picture bar = ts::CaptureWindow(Control(kPercent));
    const COLORREF ink = ::GetSysColor(COLOR_HIGHLIGHT);
    const ts::Picture expected = ts::DrawTo(
        bar.Width(), bar.Height(),
        [&](HDC dc) {
            CRect inside(2, 2, bar.Width() - 2, bar.Height() - 2);
            ::SelectObject(dc, ::GetStockObject(DEFAULT_GUI_FONT));
            ::SetTextColor(dc, ink);
            ::DrawTextW(dc, L"0%", 2, &inside, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        },
        ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(CRect(expected.BoundsOf(ink)), CRect(bar.BoundsOf(ink)));
    EXPECT_EQ(expected.Count(ink), bar.Count(ink));
}

TEST_F(ProgressPage, WorksByKeyboardAlone)
{
    ASSERT_TRUE(TabTo(kStop));
    ts::Key(VK_RETURN);
    EXPECT_TRUE(Stands());
    ASSERT_TRUE(TabTo(kReset));
    ts::Key(VK_SPACE);
    EXPECT_EQ(0, Position());
    EXPECT_TRUE(Stands());
    ASSERT_TRUE(TabTo(kRun));
    ts::Key(VK_RETURN);
    EXPECT_TRUE(Runs());
    ASSERT_TRUE(TabTo(kList));
    ts::Key(VK_END);
    EXPECT_EQ(4, ControlAs<CProgressList>(kList).GetSelectedItem());
}

TEST_F(ProgressPage, StopsAtItsEndAndRunsAgainFromTheStart)
{
    m_frame.CurrentPage()->ShowState(1);
    EXPECT_EQ(1000, Position());
    ASSERT_TRUE(TabTo(kRun));
    ts::Key(VK_RETURN);
    EXPECT_TRUE(ts::PumpUntil([this] { return Position() > 0 && Position() < 1000; }, 2000));
}

// Chart and information

class InfoPage : public Pages
{
  protected:
    static constexpr UINT kChart = 2701;
    static constexpr UINT kRing = 2702;
    static constexpr UINT kBars = 2703;
    static constexpr UINT kSnapshots = 2704;
    static constexpr UINT kInfo = 2705;
    static constexpr UINT kStatus = 2706;
    static constexpr UINT kTip = 2707;

    void SetUp() override
    {
        Pages::SetUp();
        Show(L"info");
    }

    ts::Picture Chart() { return ts::CaptureWindow(Control(kChart)); }

    static std::vector<_QORVEX_SNAP> Snapshots()
    {
        int count = 0;
        void* list = QorGetAllInfo(QORLIST_SNAPSHOTS, sizeof(_QORVEX_SNAP), &count, 0);
        const auto* first = static_cast<const _QORVEX_SNAP*>(list);
        std::vector<_QORVEX_SNAP> snapshots(first, first + count);
        ::CoTaskMemFree(list);
        return snapshots;
    }
};

TEST_F(InfoPage, ChartShowsTheSnapshotsOfTheStore)
{
    static constexpr std::array<COLORREF, 5> series = {RGB(47, 162, 244), RGB(250, 160, 90), RGB(248, 194, 57),
                                                       RGB(247, 101, 43), RGB(130, 205, 195)};
    const std::vector<_QORVEX_SNAP> snapshots = Snapshots();
    ASSERT_EQ(5u, snapshots.size());
    m_frame.CurrentPage()->ShowState(1); // bars
    const ts::Picture chart = Chart();
    ULONGLONG most = 1;
    for (const _QORVEX_SNAP& snapshot : snapshots) {
        most = (std::max)(most, snapshot.nSize >> 20);
    }
    for (int i = 0; i < 5; ++i) {
        const COLORREF colour = series.at(static_cast<size_t>(i));
        const int y = 33 + 20 * i;
        EXPECT_TRUE(ts::PixelIs(chart, 121, y, colour)) << i;
        const CRect bar = chart.Crop(CRect(0, y - 6, 115, y + 6)).BoundsOf(colour);
        const auto length = static_cast<int>((snapshots[static_cast<size_t>(i)].nSize >> 20) * 90 / most);
        EXPECT_NEAR(13 + length + 4, bar.right, 1) << i;
    }
    EXPECT_TRUE(ts::PixelIs(chart, 121, 33 + 20 * 5, RGB(255, 255, 255)));
}

TEST_F(InfoPage, WorksByKeyboardAlone)
{
    ASSERT_TRUE(TabTo(kRing));
    const ts::Picture ring = Chart();
    ts::Key(VK_DOWN);
    EXPECT_EQ(Control(kBars), ::GetFocus());
    EXPECT_FALSE(ts::SamePicture(ring, Chart()));
    ts::Key(VK_UP);
    EXPECT_TRUE(ts::SamePicture(ring, Chart()));
    ASSERT_TRUE(TabTo(kSnapshots));
    const ts::Picture first = ts::CaptureWindow(Control(kInfo));
    const ts::Picture status = ts::CaptureWindow(Control(kStatus));
    ts::Key(VK_DOWN);
    EXPECT_FALSE(ts::SamePicture(first, ts::CaptureWindow(Control(kInfo))));
    EXPECT_FALSE(ts::SamePicture(status, ts::CaptureWindow(Control(kStatus))));
}

TEST_F(InfoPage, DesktopTextIsShownAndHiddenByKeyboard)
{
    const auto tip = [] { return ::FindWindowW(nullptr, ConText(L"STR_CON_TIP_TEXT")); };
    ASSERT_TRUE(TabTo(kTip));
    ts::Key(VK_RETURN);
    ASSERT_NE(nullptr, tip());
    EXPECT_TRUE(::IsWindowVisible(tip()));
    EXPECT_EQ(Control(kTip), ::GetFocus());
    ts::Key(VK_RETURN);
    EXPECT_EQ(nullptr, tip());
    ts::Key(VK_RETURN);
    const HWND shown = tip();
    Show(L"progress");
    EXPECT_FALSE(::IsWindow(shown));
}

} // namespace
