#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

#include <algorithm>
#include <vector>

namespace
{

using namespace ids::list;

constexpr int kRows = 100000;

class ListPage : public Pages
{
  protected:
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
    EXPECT_STREQ(L"Rows: 0", ts::TextOf(Control(kState)));
    const ts::Picture empty = ts::CaptureWindow(List());
    EXPECT_GT(empty.Crop(CRect(0, 30, empty.Width(), 60)).Count(RGB(255, 255, 255)), 0); // the text for it
    ASSERT_TRUE(TabTo(kFill));
    ts::Key(VK_RETURN);
    EXPECT_EQ(kRows, List().GetItemCount());
    EXPECT_STREQ(L"Rows: 100000", ts::TextOf(Control(kState)));
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

} // namespace
