#include <hosts/console/ConsoleText.h>
#include <tests/hosts/console/PagesFixture.h>

namespace
{

class PageList : public Pages
{
  protected:
    CPageList& List() { return static_cast<CPageList&>(*CWnd::FromHandlePermanent(Pages::PageList())); }

    /** What the list shows of one row. */
    ts::Picture Row(int index)
    {
        CRect row;
        List().GetItemRect(index, row);
        return ts::CaptureWindow(List()).Crop(row);
    }

    static int Index(const wchar_t* page) { return static_cast<int>(FindPage(page).value()); }

    static COLORREF Body()
    {
        LOGBRUSH brush = {};
        ::GetObjectW(QorGetDlgBkBrush(), sizeof(brush), &brush);
        return brush.lbColor;
    }
};

TEST_F(PageList, RowsAreOfOneHeightAndCarryTheTitles)
{
    ASSERT_EQ(static_cast<int>(AllPages().size()), List().GetCount());
    for (int i = 0; i < List().GetCount(); ++i) {
        CString text;
        List().GetText(i, text);
        EXPECT_EQ(ConText(AllPages()[static_cast<size_t>(i)].titleKey), text);
        EXPECT_EQ(CPageList::kRowHeight, List().GetItemHeight(i));
    }
}

TEST_F(PageList, RowIsPlainButForItsText)
{
    Show(L"buttons");
    const ts::Picture row = Row(1);
    const COLORREF text = ::GetSysColor(COLOR_WINDOWTEXT);
    EXPECT_TRUE(ts::AreaIs(row, {0, 0, CPageList::kMargin, row.Height()}, Body()));
    EXPECT_NE(0, row.Crop({CPageList::kMargin, 0, CPageList::kMargin + 5, row.Height()}).Count(text));
    EXPECT_TRUE(ts::AreaIs(row, {row.Width() - CPageList::kMargin, 0, row.Width(), row.Height()}, Body()));
}

TEST_F(PageList, ChosenRowIsHighlightedAndFramedWhileItHasTheFocus)
{
    Show(L"links");
    const ts::Picture focused = Row(1);
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), focused.At(2, 2));
    EXPECT_NE(0, focused.Count(::GetSysColor(COLOR_HIGHLIGHTTEXT)));
    ts::Key(VK_TAB);
    const ts::Picture left = Row(1);
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), left.At(2, 2));
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), left.At(0, 0));
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), left.At(1, 0));
    EXPECT_TRUE(focused.At(0, 0) != left.At(0, 0) || focused.At(1, 0) != left.At(1, 0));
}

TEST_F(PageList, ClickOpensThePage)
{
    Show(L"buttons");
    const int drawing = Index(L"drawing");
    const HWND before = *m_frame.CurrentPage();
    ts::Click(List(), 20, drawing * CPageList::kRowHeight + 3);
    EXPECT_FALSE(::IsWindow(before));
    EXPECT_EQ(drawing, List().GetCurSel());
}

TEST_F(PageList, FirstLetterFindsAPage)
{
    Show(L"buttons");
    ts::Key('D');
    EXPECT_EQ(Index(L"drawing"), List().GetCurSel());
}

TEST_F(PageList, RowOutOfRangeIsDrawnWithoutText)
{
    const ts::Picture drawn = ts::DrawTo(40, 22, [this](HDC dc) {
        DRAWITEMSTRUCT item = {};
        item.hDC = dc;
        item.itemID = 1000;
        item.rcItem = {0, 0, 40, 22};
        List().DrawItem(&item);
    });
    EXPECT_EQ(40 * 22, drawn.Count(Body()));
}

} // namespace
