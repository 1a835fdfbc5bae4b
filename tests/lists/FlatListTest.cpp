#include <QorUI/app/look/SysLook.h>
#include <QorUI/QorUI.h>
#include <tests/support/FaultCounter.h>
#include <tests/support/OtherColours.h>
#include <tests/support/Refusals.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

namespace
{

constexpr COLORREF kSoft = RGB(236, 245, 250);
constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS;
const CRect kPlace(10, 10, 310, 210);

HIMAGELIST StateImages(const CWnd& list)
{
    return reinterpret_cast<HIMAGELIST>(list.SendMessage(LVM_GETIMAGELIST, LVSIL_STATE));
}

/** A list that was created (not taken over), with two columns. */
class FlatList : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(Make(m_list));
        ASSERT_EQ(0, m_list.InsertColumn(0, L"Name", LVCFMT_LEFT, 120));
        ASSERT_EQ(1, m_list.InsertColumn(1, L"Size", LVCFMT_RIGHT, 80));
    }

    bool Make(CFlatList& list, DWORD style = kStyle)
    {
        const bool made = list.CreateEx(WS_EX_CLIENTEDGE, style, kPlace, &m_host, ts::kControlId) != FALSE;
        ::SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
        return made;
    }

    HWND SystemList(DWORD style = kStyle)
    {
        return ::CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"", style, 10, 10, 300, 200, m_host.m_hWnd,
                                 reinterpret_cast<HMENU>(ts::kControlId), nullptr, nullptr);
    }

    void AddRows(int count)
    {
        for (int i = 0; i < count; ++i) {
            CString text;
            text.Format(L"Row %d", i);
            m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, i, text, 0, 0, 0, 100 + i);
        }
    }

    static void ExpectSetUp(CFlatList& list)
    {
        EXPECT_EQ(0x4420u, list.GetExtendedStyle() & 0x4420u);
        EXPECT_EQ(kSoft, list.GetBkColor());
        EXPECT_EQ(kSoft, list.GetTextBkColor());
        EXPECT_EQ(static_cast<CWnd*>(&list.GetFlatHdr()), CWnd::FromHandlePermanent(list.GetFlatHdr().m_hWnd));
        EXPECT_EQ(reinterpret_cast<LRESULT>(list.GetFlatHdr().m_hWnd), list.SendMessage(LVM_GETHEADER));
    }

    ts::AfxHost m_host{330, 230};
    CFlatList m_list;
};

TEST_F(FlatList, IsSetUpWhenCreated)
{
    ExpectSetUp(m_list);
}

TEST_F(FlatList, IsSetUpWhenItTakesAListOver)
{
    const HWND window = SystemList();
    ::SendMessageW(window, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_GRIDLINES);
    CFlatList list;
    ASSERT_TRUE(list.SubclassWindow(window));
    ExpectSetUp(list);
    EXPECT_TRUE(list.GetExtendedStyle() & LVS_EX_GRIDLINES);
    list.DestroyWindow();
}

TEST_F(FlatList, IsSetUpWithoutAHeader)
{
    const HWND window = SystemList();
    ts::MessageRecorder log(window);
    log.Answer(LVM_GETHEADER, [](const ts::Message& /*message*/) { return std::optional<LRESULT>(0); });
    CFlatList list;
    ASSERT_TRUE(list.SubclassWindow(window));
    EXPECT_EQ(nullptr, list.GetFlatHdr().m_hWnd);
    EXPECT_EQ(0x4420u, list.GetExtendedStyle() & 0x4420u);
    EXPECT_EQ(kSoft, list.GetBkColor());
    EXPECT_EQ(0, list.GetColumnCount());
    list.DestroyWindow();
}

TEST_F(FlatList, ControlThatIsGivenBackKeepsItsHeader)
{
    const HWND window = SystemList();
    const auto header = reinterpret_cast<HWND>(::SendMessageW(window, LVM_GETHEADER, 0, 0));
    const LONG_PTR procedure = ::GetWindowLongPtrW(header, GWLP_WNDPROC);
    {
        CFlatList list;
        ASSERT_TRUE(list.SubclassWindow(window));
        EXPECT_NE(procedure, ::GetWindowLongPtrW(header, GWLP_WNDPROC));
        EXPECT_EQ(window, list.UnsubclassWindow());
    }
    EXPECT_TRUE(::IsWindow(header));
    EXPECT_EQ(procedure, ::GetWindowLongPtrW(header, GWLP_WNDPROC));
    ::DestroyWindow(window);
}

TEST_F(FlatList, NewColumnsAreOwnerDrawn)
{
    for (int i = 0; i < 2; ++i) {
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        ASSERT_TRUE(m_list.GetFlatHdr().GetItem(i, &item));
        EXPECT_TRUE(item.fmt & HDF_OWNERDRAW) << i;
        EXPECT_EQ(i == 1 ? HDF_RIGHT : HDF_LEFT, item.fmt & HDF_JUSTIFYMASK) << i;
    }
    EXPECT_EQ(120, m_list.GetColumnWidth(0));
    EXPECT_EQ(80, m_list.GetColumnWidth(1));
}

TEST_F(FlatList, NewColumnHasTheIndexThatTheControlGaveIt)
{
    EXPECT_EQ(2, m_list.InsertColumn(99, L"Last", LVCFMT_LEFT, 30));
    EXPECT_EQ(0, m_list.InsertColumn(0, L"First", LVCFMT_LEFT, 30));
}

TEST_F(FlatList, NewColumnIsInsertedFirstAndFormattedThen)
{
    struct Settings
    {
        UINT mask;
        int fmt;
        int cx;
    };
    std::vector<Settings> inserted;
    std::vector<Settings> changed;
    const auto noteIn = [](std::vector<Settings>& settings) {
        return [&settings](const ts::Message& message) -> std::optional<LRESULT> {
            const auto* column = reinterpret_cast<const LVCOLUMNW*>(message.lParam);
            settings.push_back({column->mask, column->fmt, column->cx});
            return std::nullopt;
        };
    };
    ts::MessageRecorder log(m_list);
    log.RecordOnly({LVM_INSERTCOLUMNW, LVM_SETCOLUMNW});
    log.Answer(LVM_INSERTCOLUMNW, noteIn(inserted));
    log.Answer(LVM_SETCOLUMNW, noteIn(changed));
    for (const int width : {30, -1}) {
        log.Clear();
        EXPECT_EQ(2, m_list.InsertColumn(2, L"Third", LVCFMT_RIGHT, width));
        EXPECT_TRUE(log.Is({ts::Msg(LVM_INSERTCOLUMNW, 2), ts::Msg(LVM_SETCOLUMNW, 2)}));
    }
    ASSERT_EQ(2u, inserted.size());
    ASSERT_EQ(2u, changed.size());
    EXPECT_EQ(static_cast<UINT>(LVCF_TEXT | LVCF_WIDTH), inserted[0].mask);
    EXPECT_EQ(30, inserted[0].cx);
    EXPECT_EQ(static_cast<UINT>(LVCF_TEXT), inserted[1].mask);
    for (const Settings& settings : changed) {
        EXPECT_EQ(static_cast<UINT>(LVCF_FMT), settings.mask);
        EXPECT_EQ(LVCFMT_RIGHT | LVCFMT_COL_HAS_IMAGES, settings.fmt);
    }
}

TEST_F(FlatList, ColumnThatTheControlRefusesIsNotTouched)
{
    ts::MessageRecorder log(m_list);
    log.RecordOnly({LVM_SETCOLUMNW, HDM_SETITEMW});
    log.Answer(LVM_INSERTCOLUMNW, [](const ts::Message& /*message*/) { return std::optional<LRESULT>(-7); });
    EXPECT_EQ(-7, m_list.InsertColumn(2, L"Refused", LVCFMT_LEFT, 30));
    EXPECT_TRUE(log.Is({}));
}

TEST_F(FlatList, ColumnsOfOthersAreNotTouchedByInsertColumn)
{
    m_list.CListCtrl::InsertColumn(2, L"Other", LVCFMT_LEFT, 20);
    m_list.InsertColumn(0, L"First", LVCFMT_LEFT, 30);
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    ASSERT_TRUE(m_list.GetFlatHdr().GetItem(3, &item));
    EXPECT_FALSE(item.fmt & HDF_OWNERDRAW);
}

TEST_F(FlatList, ColumnWithoutWidthGetsTheControlsOne)
{
    CListCtrl stock;
    ASSERT_TRUE(stock.Create(kStyle, kPlace, &m_host, ts::kOtherId));
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT;
    column.pszText = const_cast<LPWSTR>(L"Date");
    stock.InsertColumn(0, &column);
    EXPECT_EQ(2, m_list.InsertColumn(2, L"Date", LVCFMT_LEFT, -1));
    EXPECT_EQ(stock.GetColumnWidth(0), m_list.GetColumnWidth(2));
    stock.DestroyWindow();
}

TEST_F(FlatList, CountsItsColumns)
{
    EXPECT_EQ(2, m_list.GetColumnCount());
    m_list.DeleteColumn(0);
    EXPECT_EQ(1, m_list.GetColumnCount());
}

TEST_F(FlatList, FindsRowsByTheirData)
{
    AddRows(5);
    EXPECT_EQ(3, m_list.FindItemData(103));
    EXPECT_EQ(0, m_list.FindItemData(100));
    EXPECT_EQ(-1, m_list.FindItemData(99));
    m_list.SetItemData(1, 0x100000064); // 100 in its lower half
    EXPECT_EQ(1, m_list.FindItemData(0x100000064));
    m_list.SetItemData(0, 5);
    EXPECT_EQ(-1, m_list.FindItemData(100));
}

TEST_F(FlatList, SelectsWithoutTheFocus)
{
    AddRows(3);
    EXPECT_EQ(-1, m_list.GetSelectedItem());
    EXPECT_TRUE(m_list.SelectItem(1, TRUE));
    EXPECT_EQ(static_cast<UINT>(LVIS_SELECTED), m_list.GetItemState(1, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_EQ(1, m_list.GetSelectedItem());
    m_list.SelectItem(2, TRUE);
    EXPECT_EQ(1, m_list.GetSelectedItem());
    EXPECT_TRUE(m_list.SelectItem(1, FALSE));
    EXPECT_EQ(2, m_list.GetSelectedItem());
    EXPECT_FALSE(m_list.SelectItem(3, TRUE));
    m_list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
    for (const BOOL select : {TRUE, FALSE}) {
        m_list.SelectItem(0, select);
        EXPECT_EQ(static_cast<UINT>(LVIS_FOCUSED), m_list.GetItemState(0, LVIS_FOCUSED)) << select;
    }
}

TEST_F(FlatList, DataOfTheSelectedRowOrTheDefault)
{
    AddRows(3);
    EXPECT_EQ(7u, m_list.GetSelectedData(7));
    m_list.SelectItem(2, TRUE);
    EXPECT_EQ(102u, m_list.GetSelectedData(7));
    m_list.SelectItem(0, TRUE);
    EXPECT_EQ(100u, m_list.GetSelectedData(7));
}

TEST_F(FlatList, SharesTheSortColumnWithItsHeader)
{
    EXPECT_EQ(-1, m_list.SetSortColumn(1, 0));
    int direction = 7;
    EXPECT_EQ(1, m_list.GetFlatHdr().GetSortColumn(&direction));
    EXPECT_EQ(0, direction);
    m_list.GetFlatHdr().SetSortColumn(0, 1);
    EXPECT_EQ(0, m_list.GetSortColumn(&direction));
    EXPECT_EQ(1, direction);
}

TEST_F(FlatList, SortColumnRepaintsTheHeaderOnly)
{
    ts::LookOf(m_list);
    ::ValidateRect(m_list, nullptr);
    ::ValidateRect(m_list.GetFlatHdr(), nullptr);
    m_list.SetSortColumn(0, 1);
    EXPECT_TRUE(::GetUpdateRect(m_list.GetFlatHdr(), nullptr, FALSE));
    EXPECT_FALSE(::GetUpdateRect(m_list, nullptr, FALSE));
}

TEST_F(FlatList, HeaderIsDrawnByItsObject)
{
    m_list.SetSortColumn(0, 1);
    const ts::Picture look = ts::LookOf(m_list.GetFlatHdr());
    EXPECT_TRUE(ts::PixelIs(look, 1, 1, RGB(242, 242, 242)));
    EXPECT_TRUE(ts::PixelIs(look, 119, 3, RGB(213, 213, 213)));
    EXPECT_TRUE(ts::PixelIs(look, 111, look.Height() / 2, RGB(213, 213, 213)));
    EXPECT_TRUE(ts::PixelIs(look, 250, 3, RGB(242, 242, 242)));
}

TEST_F(FlatList, RowsStandOnTheSoftBackground)
{
    AddRows(1);
    const ts::Picture look = ts::LookOf(m_list);
    EXPECT_TRUE(ts::PixelIs(look, look.Width() - 5, look.Height() - 5, kSoft));
}

TEST_F(FlatList, ShowsTheEmptyTextOnlyWithoutRows)
{
    const ts::Picture bare = ts::LookOf(m_list);
    m_list.SetEmptyText(L"Nothing here");
    EXPECT_FALSE(ts::SamePicture(bare, ts::LookOf(m_list)));
    m_list.SetEmptyText(nullptr);
    EXPECT_TRUE(ts::SamePicture(bare, ts::LookOf(m_list)));
    AddRows(1);
    const ts::Picture row = ts::LookOf(m_list);
    m_list.SetEmptyText(L"Nothing here");
    EXPECT_TRUE(ts::SamePicture(row, ts::LookOf(m_list)));
}

TEST_F(FlatList, SettingTheEmptyTextDoesNotRepaint)
{
    ts::LookOf(m_list);
    ::ValidateRect(m_list, nullptr);
    m_list.SetEmptyText(L"Nothing here");
    EXPECT_FALSE(::GetUpdateRect(m_list, nullptr, FALSE));
}

TEST_F(FlatList, EmptyTextStandsTenPixelsBelowTheHeaderInTheMiddle)
{
    m_list.SetEmptyText(L"MMMM & WWWW");
    const ts::Picture look = ts::LookOf(m_list);
    CRect item;
    m_list.GetFlatHdr().GetItemRect(0, item);
    const CRect below(0, item.bottom, look.Width(), look.Height());
    const CRect box = look.Crop(below).BoundsOf(RGB(255, 255, 255));
    EXPECT_EQ(10, box.top);
    const int middle = look.Width() / 2;
    EXPECT_NEAR(middle, box.CenterPoint().x, 2);
}

TEST_F(FlatList, EmptyTextIsDrawnAsItIs)
{
    CString many(L"A && B");
    for (int i = 0; i < 120; ++i) {
        many += L" several words";
    }
    for (const CString& text : {CString(L"Nothing & nobody"), many}) {
        ts::LookOf(m_list);
        CRect place;
        m_list.GetClientRect(place);
        CRect item;
        m_list.GetFlatHdr().GetItemRect(0, item);
        place.top += item.bottom;
        place.DeflateRect(10, 10);
        {
            CClientDC dc(&m_list);
            const HGDIOBJ old = ::SelectObject(dc, ts::GuiFont());
            ::DrawTextW(dc, text, -1, &place, DT_CENTER | DT_WORDBREAK | DT_NOCLIP | DT_NOPREFIX);
            ::SelectObject(dc, old);
        }
        const ts::Picture expected = ts::CaptureWindow(m_list);
        m_list.SetEmptyText(text);
        EXPECT_TRUE(ts::SamePicture(expected, ts::LookOf(m_list)));
        m_list.SetEmptyText(nullptr);
    }
}

TEST_F(FlatList, EmptyTextWithoutHeaderItemsBeginsAtTheTop)
{
    CFlatList list;
    ASSERT_TRUE(list.Create(kStyle | LVS_NOCOLUMNHEADER, kPlace, &m_host, ts::kOtherId));
    m_list.ShowWindow(SW_HIDE); // it stands at the same place
    list.UpdateWindow();
    list.SetEmptyText(L"MMMM");
    EXPECT_EQ(10, ts::LookOf(list).BoundsOf(RGB(255, 255, 255)).top);
    list.DestroyWindow();
}

TEST_F(FlatList, EmptyTextWithoutAHeaderBeginsAtTheTop)
{
    m_list.GetFlatHdr().ShowWindow(SW_HIDE);
    m_list.SetEmptyText(L"MMMM");
    ts::MessageRecorder log(m_list);
    log.Answer(LVM_GETHEADER, [](const ts::Message& /*message*/) { return std::optional<LRESULT>(0); });
    EXPECT_EQ(10, ts::LookOf(m_list).BoundsOf(RGB(255, 255, 255)).top);
}

TEST_F(FlatList, HasAThinGreyBorder)
{
    ::RedrawWindow(m_list, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    const ts::Picture frame = ts::CaptureFrame(m_list);
    EXPECT_TRUE(ts::FrameIs(frame, CRect(0, 0, 300, 200), kGrey));
}

TEST_F(FlatList, BorderHasNoInnerFrame)
{
    const ts::OtherColours inner({{&QorSysLook.m_clrWindow, RGB(255, 0, 255)}}); // of the controls that have one
    ::RedrawWindow(m_list, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    EXPECT_EQ(0, ts::CaptureFrame(m_list).Count(RGB(255, 0, 255)));
}

TEST_F(FlatList, SystemDrawsItsScrollBar)
{
    AddRows(50);
    {
        CWindowDC dc(&m_list);
        dc.FillSolidRect(0, 0, 300, 200, RGB(255, 0, 255));
    }
    ::RedrawWindow(m_list, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_EQ(0, ts::CaptureFrame(m_list).Count(RGB(255, 0, 255)));
}

TEST_F(FlatList, WithoutAClientEdgeHasNoBorder)
{
    m_list.ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED);
    ::RedrawWindow(m_list, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const ts::Picture look = ts::CaptureWindow(m_list);
    EXPECT_EQ(300, look.Width());
    EXPECT_TRUE(ts::AreaIs(look, CRect(0, 100, 300, 200), kSoft));
}

TEST_F(FlatList, FocusSelectsTheFirstRowWhenNoneIs)
{
    AddRows(3);
    m_list.SetFocus();
    EXPECT_EQ(0, m_list.GetSelectedItem());
}

TEST_F(FlatList, FocusIsDealtWithBeforeARowIsSelected)
{
    AddRows(2);
    m_host.Log().Clear();
    m_host.Log().SetFilter(
        [](const ts::Message& message) { return message.code == NM_SETFOCUS || message.code == LVN_ITEMCHANGED; });
    m_list.SetFocus();
    EXPECT_TRUE(
        m_host.Log().Is({ts::Notify(ts::kControlId, NM_SETFOCUS), ts::Notify(ts::kControlId, LVN_ITEMCHANGED)}));
}

TEST_F(FlatList, FocusLeavesASelectionAndAnEmptyList)
{
    m_list.SetFocus();
    EXPECT_EQ(-1, m_list.GetSelectedItem());
    m_host.SetFocus();
    AddRows(3);
    m_list.SelectItem(2, TRUE);
    m_list.SetFocus();
    EXPECT_EQ(2, m_list.GetSelectedItem());
    EXPECT_EQ(1u, m_list.GetSelectedCount());
}

TEST_F(FlatList, CheckBoxesAreTheLibrarysOfAllLists)
{
    EXPECT_EQ(nullptr, StateImages(m_list));
    const DWORD former = m_list.GetExtendedStyle();
    EXPECT_EQ(former, m_list.SetExtendedStyle(former | LVS_EX_CHECKBOXES));
    const HIMAGELIST images = StateImages(m_list);
    ASSERT_NE(nullptr, images);
    EXPECT_EQ(2, ::ImageList_GetImageCount(images));
    int cx = 0;
    int cy = 0;
    ::ImageList_GetIconSize(images, &cx, &cy);
    EXPECT_EQ(15, cx);
    EXPECT_EQ(15, cy);
    CFlatList other;
    ASSERT_TRUE(Make(other));
    other.SetExtendedStyle(LVS_EX_CHECKBOXES);
    EXPECT_EQ(images, StateImages(other));
    other.DestroyWindow();
    EXPECT_EQ(2, ::ImageList_GetImageCount(images));
}

/** A list that tells which state images it has when the control ends. */
class EndingList : public CFlatList
{
  public:
    std::vector<LRESULT> m_images;

  protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_DESTROY || message == WM_NCDESTROY) {
            m_images.push_back(SendMessage(LVM_GETIMAGELIST, LVSIL_STATE));
        }
        return CFlatList::DefWindowProc(message, wParam, lParam);
    }
};

TEST_F(FlatList, CheckBoxesAreTakenAwayBeforeTheControlEnds)
{
    EndingList list;
    ASSERT_TRUE(Make(list));
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    ASSERT_NE(nullptr, StateImages(list));
    list.DestroyWindow();
    EXPECT_EQ((std::vector<LRESULT>{0, 0}), list.m_images);
}

TEST_F(FlatList, CheckBoxesHaveTransparentCorners)
{
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    for (const int image : {0, 1}) {
        const COLORREF behind = RGB(255, 0, 255);
        const ts::Picture look = ts::DrawTo(
            15, 15, [&](HDC dc) { ::ImageList_Draw(StateImages(m_list), image, dc, 0, 0, ILD_TRANSPARENT); }, behind);
        EXPECT_TRUE(ts::PixelIs(look, 0, 0, behind)) << image;
        EXPECT_TRUE(ts::PixelIs(look, 14, 14, behind)) << image;
        EXPECT_FALSE(ts::PixelIs(look, 7, 7, behind)) << image;
    }
}

TEST_F(FlatList, ChecksRowsWithStatesOneAndTwo)
{
    m_list.SetExtendedStyle(m_list.GetExtendedStyle() | LVS_EX_CHECKBOXES);
    AddRows(2);
    EXPECT_EQ(static_cast<UINT>(INDEXTOSTATEIMAGEMASK(1)), m_list.GetItemState(0, LVIS_STATEIMAGEMASK));
    m_list.SetCheck(0);
    EXPECT_EQ(static_cast<UINT>(INDEXTOSTATEIMAGEMASK(2)), m_list.GetItemState(0, LVIS_STATEIMAGEMASK));
    CRect row;
    m_list.GetItemRect(1, row, LVIR_BOUNDS);
    ts::Click(m_list, row.left + 8, row.CenterPoint().y);
    EXPECT_TRUE(m_list.GetCheck(1));
}

TEST_F(FlatList, CheckBoxesCanBeTurnedOffAndOnAgain)
{
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    const HIMAGELIST images = StateImages(m_list);
    m_list.SetExtendedStyle(0);
    EXPECT_EQ(2, ::ImageList_GetImageCount(images));
    EXPECT_NE(images, StateImages(m_list));
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    EXPECT_EQ(images, StateImages(m_list));
    m_list.SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_GRIDLINES, LVS_EX_GRIDLINES);
    EXPECT_EQ(images, StateImages(m_list));
}

TEST_F(FlatList, CheckBoxesAreTheLibrarysWheneverTheirStyleIsAmongThoseSet)
{
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    CFlatList other;
    ASSERT_TRUE(Make(other));
    other.SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_GRIDLINES, LVS_EX_GRIDLINES | LVS_EX_CHECKBOXES);
    EXPECT_NE(nullptr, StateImages(other));
    EXPECT_EQ(StateImages(m_list), StateImages(other));
    EXPECT_FALSE(other.GetExtendedStyle() & LVS_EX_CHECKBOXES); // the mask does not name it
    other.DestroyWindow();
}

int g_bitmapLoads = 0;

HBITMAP WINAPI CountedNoBitmap(HINSTANCE module, LPCWSTR name)
{
    ++g_bitmapLoads;
    return ts::NoBitmapResource(module, name);
}

/** The images are made once in a process, so one of its own sees that they are missing. */
TEST_F(FlatList, KeepsTheControlsCheckBoxesWhenTheLibrarysAreMissing)
{
    if (!::GetEnvironmentVariableW(L"QOR_TEST_NO_IMAGES", nullptr, 0)) {
        const ts::EnvironmentVariable missing(L"QOR_TEST_NO_IMAGES", L"1");
        const ts::ProcessResult result =
            ts::RunProcess(L"\"" + ts::ProgramPath() +
                           L"\" --gtest_filter=FlatList.KeepsTheControlsCheckBoxesWhenTheLibrarysAreMissing");
        EXPECT_EQ(0u, result.status) << result.output;
        EXPECT_NE(std::string::npos, result.output.find("[  PASSED  ] 1 test.")) << result.output;
        return;
    }
    {
        const ts::ImportRedirection failing({ts::ImportRedirection::Of(&::LoadBitmapW, &CountedNoBitmap)});
        m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        const HIMAGELIST images = StateImages(m_list);
        ASSERT_NE(nullptr, images);
        EXPECT_EQ(2, ::ImageList_GetImageCount(images));
        AddRows(1);
        m_list.SetCheck(0);
        EXPECT_TRUE(m_list.GetCheck(0));
        ts::LookOf(m_list);
        CFlatList ending;
        ASSERT_TRUE(Make(ending));
        ending.SetExtendedStyle(LVS_EX_CHECKBOXES);
        g_bitmapLoads = 0;
        ending.DestroyWindow();
        EXPECT_EQ(0, g_bitmapLoads);
    }
    m_list.SetExtendedStyle(0);
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    int cx = 0;
    int cy = 0;
    ::ImageList_GetIconSize(StateImages(m_list), &cx, &cy);
    EXPECT_EQ(CSize(15, 15), CSize(cx, cy));
}

/** Lets the parent destroy the list while it is told something. */
class DestroyedList : public FlatList
{
  protected:
    void DestroyOn(UINT code)
    {
        m_host.Log().Answer(WM_NOTIFY, [this, code](const ts::Message& message) -> std::optional<LRESULT> {
            if (reinterpret_cast<const NMHDR*>(message.lParam)->code == code && m_list.m_hWnd) {
                m_list.DestroyWindow();
                m_destroyed = true;
            }
            return std::nullopt;
        });
    }

    bool m_destroyed = false;
};

TEST_F(DestroyedList, ByTheNewsOfTheFocus)
{
    AddRows(2);
    DestroyOn(NM_SETFOCUS);
    m_list.SetFocus();
    EXPECT_TRUE(m_destroyed);
    EXPECT_EQ(nullptr, m_list.m_hWnd);
}

/** A list in memory of its own, which nobody can read when the list is deleted. */
class UnreadableList : public CFlatList
{
  public:
    static void* operator new(size_t size)
    {
        return ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    }
    static void operator delete(void* list) { ::VirtualFree(list, 0, MEM_RELEASE); }
};

TEST_F(DestroyedList, WithItsObjectByTheNewsOfTheFocus)
{
    auto* list = new UnreadableList;
    ASSERT_TRUE(Make(*list));
    m_host.Log().Answer(WM_NOTIFY, [&list](const ts::Message& message) -> std::optional<LRESULT> {
        if (message.code == NM_SETFOCUS && list) {
            delete list;
            list = nullptr;
        }
        return std::nullopt;
    });
    const ts::FaultCounter faults;
    list->SetFocus();
    EXPECT_EQ(nullptr, list);
    EXPECT_EQ(0, faults.Count());
}

TEST_F(DestroyedList, ByTheSelectionOfTheFirstRow)
{
    AddRows(2);
    DestroyOn(LVN_ITEMCHANGED);
    m_list.SetFocus();
    EXPECT_TRUE(m_destroyed);
}

TEST_F(DestroyedList, ByAClickOnTheHeader)
{
    AddRows(2);
    DestroyOn(LVN_COLUMNCLICK);
    ts::Click(m_list.GetFlatHdr(), 20, 8);
    EXPECT_TRUE(m_destroyed);
    EXPECT_EQ(nullptr, m_list.GetFlatHdr().m_hWnd);
}

/** A list that ends while the control paints it. */
class PaintedToDeath : public CFlatList
{
  protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CFlatList::DefWindowProc(message, wParam, lParam);
        if (message == WM_PAINT) {
            DestroyWindow();
        }
        return result;
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        try {
            return CFlatList::WindowProc(message, wParam, lParam);
        } catch (CException* error) {
            error->Delete();
            ++m_failures;
            return 0;
        }
    }

  public:
    int m_failures = 0;
};

TEST_F(FlatList, EndsWhileItIsPainted)
{
    PaintedToDeath list;
    ASSERT_TRUE(Make(list));
    list.SetEmptyText(L"Nothing here");
    ts::PaintNow(list);
    EXPECT_EQ(nullptr, list.m_hWnd);
    EXPECT_EQ(0, list.m_failures);
}

TEST_F(FlatList, EndsWithItsParent)
{
    AddRows(2);
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    m_host.DestroyWindow();
    EXPECT_EQ(nullptr, m_list.m_hWnd);
    EXPECT_EQ(nullptr, m_list.GetFlatHdr().m_hWnd);
    EXPECT_EQ(0, m_list.GetColumnCount());
}

TEST_F(FlatList, EmptyAndHugeTextsAreNoHarm)
{
    const CString huge(L'x', 20000);
    EXPECT_EQ(2, m_list.InsertColumn(2, huge, LVCFMT_LEFT, 50));
    EXPECT_EQ(3, m_list.InsertColumn(3, L"", LVCFMT_LEFT, 50));
    EXPECT_EQ(4, m_list.InsertColumn(4, nullptr, LVCFMT_LEFT, 50));
    const ts::Picture bare = ts::LookOf(m_list);
    m_list.SetEmptyText(L"");
    EXPECT_TRUE(ts::SamePicture(bare, ts::LookOf(m_list)));
    m_list.SetEmptyText(huge);
    EXPECT_FALSE(ts::SamePicture(bare, ts::LookOf(m_list)));
}

TEST_F(FlatList, SurvivesTheEndOfTheGdiObjects)
{
    m_list.SetEmptyText(L"Nothing here");
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_list));
    AddRows(2);
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_list));
}

TEST_F(FlatList, HundredThousandRowsWithRedrawOff)
{
    m_list.SetRedraw(FALSE);
    m_list.SetItemCount(100000);
    for (int i = 0; i < 100000; ++i) {
        m_list.InsertItem(LVIF_PARAM, i, nullptr, 0, 0, 0, i);
    }
    m_list.SetRedraw(TRUE);
    EXPECT_EQ(100000, m_list.GetItemCount());
    EXPECT_EQ(99999, m_list.FindItemData(99999));
    ts::LookOf(m_list);
}

TEST(FlatListAlone, ChildNeedsAParent)
{
    CFlatList list;
    EXPECT_FALSE(list.Create(kStyle, kPlace, nullptr, 1));
    EXPECT_EQ(nullptr, list.m_hWnd);
    EXPECT_EQ(nullptr, list.GetFlatHdr().m_hWnd);
}

TEST(FlatListAlone, WithoutAWindowEverythingIsRefused)
{
    CFlatList list;
    EXPECT_EQ(-1, list.InsertColumn(0, L"x", 0, 10));
    EXPECT_EQ(0, list.GetColumnCount());
    EXPECT_EQ(-1, list.FindItemData(0));
    EXPECT_FALSE(list.SelectItem(0, TRUE));
    EXPECT_EQ(-1, list.GetSelectedItem());
    EXPECT_EQ(5u, list.GetSelectedData(5));
    list.SetEmptyText(L"x");
    EXPECT_EQ(-1, list.SetSortColumn(2, 1));
}

TEST_F(FlatList, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CFlatList list;
        Make(list);
        list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
        list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        list.SetEmptyText(L"Empty");
        list.UpdateWindow();
        list.InsertItem(0, L"Row");
        list.SetExtendedStyle(0);
        list.SetExtendedStyle(LVS_EX_CHECKBOXES);
        list.UpdateWindow();
    }));
}

} // namespace
