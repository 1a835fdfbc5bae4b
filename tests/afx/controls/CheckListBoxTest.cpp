#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

namespace
{
constexpr int kId = 21;
constexpr int kBox = 13;
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY;

/** Lets a test reach what only derived classes may. */
class COpenCheckList : public CCheckListBox
{
  public:
    COpenCheckList() = default;
    int boxShift = 0;

    CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox) override
    {
        lastItem = rectItem;
        rectCheckBox.OffsetRect(boxShift, 0);
        return rectCheckBox;
    }

    CRect lastItem;
};

/** A list with the items Ann, Bob, Cid. */
class CheckList : public testing::Test
{
  protected:
    void SetUp() override { Make(0); }

    void Make(DWORD extraStyle)
    {
        if (m_list.m_hWnd) {
            m_list.DestroyWindow();
        }
        ASSERT_TRUE(m_list.Create(kStyle | extraStyle, CRect(10, 10, 130, 110), &m_host, kId));
        m_list.SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
        for (const wchar_t* text : {L"Ann", L"Bob", L"Cid"}) {
            m_list.AddString(text);
        }
        m_host.Log().Clear();
        ts::ParkMouse();
    }

    CRect Item(int index) const
    {
        CRect rect;
        m_list.GetItemRect(index, &rect);
        return rect;
    }

    CRect Box(int index) const
    {
        const CRect item = Item(index);
        return CRect(CPoint(item.left + 1, item.top + (item.Height() - kBox) / 2), CSize(kBox, kBox));
    }

    void ClickBox(int index)
    {
        const CPoint point = Box(index).CenterPoint();
        ts::Click(m_list, point.x, point.y);
    }

    void ClickText(int index)
    {
        const CPoint point = Item(index).CenterPoint();
        ts::Click(m_list, point.x, point.y);
    }

    std::wstring Checks() const
    {
        std::wstring checks;
        for (int i = 0; i < m_list.GetCount(); ++i) {
            checks += static_cast<wchar_t>(L'0' + m_list.GetCheck(i));
        }
        return checks;
    }

    size_t Changes() { return m_host.Log().Count(ts::Command(kId, CLBN_CHKCHANGE)); }

    ts::AfxHost m_host{200, 140};
    COpenCheckList m_list;
};

TEST_F(CheckList, BoxesOfAFormerWindowAreForgotten)
{
    m_list.SetCheck(0, BST_CHECKED);
    m_list.Enable(0, FALSE);
    m_list.DestroyWindow();
    const HWND filled =
        ::CreateWindow(TEXT("LISTBOX"), TEXT(""), kStyle, 10, 10, 120, 100, m_host.m_hWnd, nullptr, nullptr, nullptr);
    ::SendMessage(filled, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(TEXT("Dan")));
    ASSERT_TRUE(m_list.SubclassWindow(filled));
    EXPECT_EQ(BST_UNCHECKED, m_list.GetCheck(0));
    EXPECT_TRUE(m_list.IsEnabled(0));
}

TEST_F(CheckList, StartsUncheckedAndEnabled)
{
    EXPECT_EQ(L"000", Checks());
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(m_list.IsEnabled(i));
    }
    EXPECT_EQ(static_cast<UINT>(BS_AUTOCHECKBOX), m_list.GetCheckStyle());
}

TEST_F(CheckList, SetCheckIsGivenBackAndNotNotified)
{
    m_list.SetCheck(1, BST_CHECKED);
    EXPECT_EQ(L"010", Checks());
    m_list.SetCheck(1, BST_UNCHECKED);
    EXPECT_EQ(L"000", Checks());
    EXPECT_EQ(0u, Changes());
}

TEST_F(CheckList, ThirdStateNeedsItsStyle)
{
    m_list.SetCheck(0, BST_INDETERMINATE);
    EXPECT_EQ(0, m_list.GetCheck(0));
    m_list.SetCheckStyle(BS_AUTO3STATE);
    m_list.SetCheck(0, BST_INDETERMINATE);
    EXPECT_EQ(BST_INDETERMINATE, m_list.GetCheck(0));
}

TEST_F(CheckList, BadIndicesAndStatesAreIgnored)
{
    for (const int index : {-1, 3, 1000000}) {
        m_list.SetCheck(index, BST_CHECKED);
        m_list.Enable(index, FALSE);
        EXPECT_EQ(BST_UNCHECKED, m_list.GetCheck(index));
        EXPECT_FALSE(m_list.IsEnabled(index));
    }
    m_list.SetCheck(0, 3);
    m_list.SetCheck(0, -1);
    EXPECT_EQ(L"000", Checks());
    CCheckListBox none;
    none.SetCheck(0, BST_CHECKED);
    none.SetSelectionCheck(BST_CHECKED);
    EXPECT_EQ(BST_UNCHECKED, none.GetCheck(0));
}

TEST_F(CheckList, ClickOnABoxChangesItAndNotifies)
{
    ClickBox(1);
    EXPECT_EQ(L"010", Checks());
    EXPECT_EQ(1u, Changes());
    EXPECT_EQ(1, m_list.GetCurSel());
    EXPECT_EQ(m_list.m_hWnd, ::GetFocus());
    ClickBox(1);
    EXPECT_EQ(L"000", Checks());
    EXPECT_EQ(2u, Changes());
}

TEST_F(CheckList, ClickOnATextOnlySelects)
{
    ClickText(2);
    EXPECT_EQ(2, m_list.GetCurSel());
    EXPECT_EQ(L"000", Checks());
    EXPECT_EQ(0u, Changes());
}

TEST_F(CheckList, ClickBelowTheItemsChangesNothing)
{
    ts::Click(m_list, 7, 90);
    EXPECT_EQ(L"000", Checks());
    EXPECT_EQ(0u, Changes());
}

TEST_F(CheckList, DoubleClickOnABoxCountsAsTwoClicks)
{
    const CPoint point = Box(0).CenterPoint();
    ts::DoubleClick(m_list, point.x, point.y);
    EXPECT_EQ(L"000", Checks());
    EXPECT_EQ(2u, Changes());
    EXPECT_FALSE(m_host.Log().Has(ts::Command(kId, LBN_DBLCLK)));
}

TEST_F(CheckList, DoubleClickOnATextOpensTheItem)
{
    const CPoint point = Item(0).CenterPoint();
    ts::DoubleClick(m_list, point.x, point.y);
    EXPECT_TRUE(m_host.Log().Has(ts::Command(kId, LBN_DBLCLK)));
    EXPECT_EQ(L"000", Checks());
}

TEST_F(CheckList, SpaceChangesTheItemWithTheFocus)
{
    m_list.SetFocus();
    m_list.SetCurSel(2);
    ts::Key(VK_SPACE);
    EXPECT_EQ(L"001", Checks());
    EXPECT_EQ(1u, Changes());
    ts::Key(VK_UP);
    ts::Key(VK_SPACE);
    EXPECT_EQ(L"011", Checks());
}

TEST_F(CheckList, SpaceWithCtrlSelectsAsInAPlainList)
{
    Make(LBS_MULTIPLESEL);
    m_list.SetFocus();
    m_list.SetCaretIndex(1);
    ts::Chord({VK_CONTROL, VK_SPACE});
    EXPECT_EQ(L"000", Checks());
    EXPECT_EQ(0u, Changes());
    EXPECT_EQ(1, m_list.GetSel(1));
}

TEST_F(CheckList, SpaceDoesNotLookForAnItem)
{
    m_list.InsertString(0, L" blank");
    m_list.SetFocus();
    m_list.SetCurSel(2);
    ts::Key(VK_SPACE);
    EXPECT_EQ(2, m_list.GetCurSel());
}

TEST_F(CheckList, LettersStillLookForAnItem)
{
    m_list.SetFocus();
    ts::Type(L"c");
    EXPECT_EQ(2, m_list.GetCurSel());
}

TEST_F(CheckList, SpaceInAnEmptyListDoesNothing)
{
    m_list.ResetContent();
    m_list.SetFocus();
    ts::Key(VK_SPACE);
    EXPECT_EQ(0u, Changes());
}

TEST_F(CheckList, DisabledItemKeepsItsBox)
{
    m_list.Enable(1, FALSE);
    EXPECT_FALSE(m_list.IsEnabled(1));
    ClickBox(1);
    ts::Key(VK_SPACE);
    EXPECT_EQ(L"000", Checks());
    EXPECT_EQ(0u, Changes());
    m_list.SetCheck(1, BST_CHECKED);
    EXPECT_EQ(L"010", Checks()) << "the program may change it";
    m_list.Enable(1);
    ClickBox(1);
    EXPECT_EQ(L"000", Checks());
}

TEST_F(CheckList, ThreeStatesFollowOneAnother)
{
    m_list.SetCheckStyle(BS_AUTO3STATE);
    for (const int expected : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED}) {
        ClickBox(0);
        EXPECT_EQ(expected, m_list.GetCheck(0));
    }
}

TEST_F(CheckList, StylesThatAreNotAutomaticOnlyNotify)
{
    for (const UINT style : {BS_CHECKBOX, BS_3STATE}) {
        m_list.SetCheckStyle(style);
        m_host.Log().Clear();
        ClickBox(0);
        EXPECT_EQ(L"000", Checks());
        EXPECT_EQ(1u, Changes());
    }
}

TEST_F(CheckList, StatesMoveWithTheirItems)
{
    m_list.SetCheck(1, BST_CHECKED);
    m_list.Enable(2, FALSE);
    m_list.InsertString(0, L"Zoe");
    EXPECT_EQ(L"0010", Checks());
    EXPECT_FALSE(m_list.IsEnabled(3));
    m_list.InsertString(3, L"Yve");
    EXPECT_EQ(L"00100", Checks());
    EXPECT_TRUE(m_list.IsEnabled(3));
    EXPECT_FALSE(m_list.IsEnabled(4));
    m_list.DeleteString(1);
    EXPECT_EQ(L"0100", Checks());
    m_list.DeleteString(1);
    EXPECT_EQ(L"000", Checks());
    EXPECT_FALSE(m_list.IsEnabled(2));
}

TEST_F(CheckList, RefusedOperationsMoveNothing)
{
    m_list.SetCheck(1, BST_CHECKED);
    EXPECT_EQ(LB_ERR, m_list.DeleteString(7));
    EXPECT_EQ(LB_ERR, m_list.InsertString(7, L"x"));
    EXPECT_EQ(L"010", Checks());
}

TEST_F(CheckList, SortedListKeepsStatesWithTheirItems)
{
    Make(LBS_SORT);
    m_list.SetCheck(m_list.FindStringExact(-1, L"Bob"), BST_CHECKED);
    m_list.AddString(L"Abe");
    EXPECT_EQ(BST_CHECKED, m_list.GetCheck(m_list.FindStringExact(-1, L"Bob")));
    EXPECT_EQ(L"0010", Checks());
}

TEST_F(CheckList, ResetForgetsAllStates)
{
    m_list.SetCheck(0, BST_CHECKED);
    m_list.Enable(0, FALSE);
    m_list.ResetContent();
    m_list.AddString(L"Ann");
    EXPECT_EQ(L"0", Checks());
    EXPECT_TRUE(m_list.IsEnabled(0));
}

TEST_F(CheckList, FileNamesInASortedListTakeTheStatesAway)
{
    const ts::TempFolder folder;
    ts::WriteBytes(folder.File(L"aaa.txt"), "x");
    const std::wstring pattern = folder.File(L"*.txt");
    for (const DWORD style : {DWORD{0}, DWORD{LBS_SORT}}) {
        Make(style);
        m_list.SetCheck(1, BST_CHECKED);
        m_list.SendMessage(LB_DIR, DDL_READWRITE, reinterpret_cast<LPARAM>(pattern.c_str()));
        ASSERT_EQ(4, m_list.GetCount());
        EXPECT_EQ(style ? L"0000" : L"0100", Checks()) << "they may stand before the others";
    }
}

TEST_F(CheckList, ItemDataBelongToTheProgram)
{
    m_list.SetItemData(1, 4711);
    m_list.SetCheck(1, BST_CHECKED);
    m_list.Enable(1, FALSE);
    EXPECT_EQ(4711u, m_list.GetItemData(1));
    m_list.SetItemData(1, 4712);
    EXPECT_EQ(BST_CHECKED, m_list.GetCheck(1));
}

TEST_F(CheckList, SelectedItemsChangeTogether)
{
    Make(LBS_EXTENDEDSEL);
    m_list.Enable(1, FALSE);
    m_list.SelItemRange(TRUE, 0, 2);
    ClickBox(2);
    EXPECT_EQ(L"101", Checks());
    EXPECT_EQ(3, m_list.GetSelCount()) << "the selection stays";
    EXPECT_EQ(1u, Changes());
}

TEST_F(CheckList, BoxOfAnUnselectedItemChangesAlone)
{
    Make(LBS_EXTENDEDSEL);
    m_list.SetSel(0, TRUE);
    ClickBox(2);
    EXPECT_EQ(L"001", Checks());
}

TEST_F(CheckList, SetSelectionCheckSkipsDisabledItems)
{
    Make(LBS_MULTIPLESEL);
    m_list.SetSel(0, TRUE);
    m_list.SetSel(1, TRUE);
    m_list.Enable(0, FALSE);
    m_list.SetSelectionCheck(BST_CHECKED);
    EXPECT_EQ(L"010", Checks());
}

TEST_F(CheckList, BoxIsDrawnAtTheLeftEnd)
{
    m_list.EnableWindow(TRUE);
    const ts::Picture look = ts::CaptureWindow(m_list);
    EXPECT_TRUE(ts::FrameIs(look, Box(0), ::GetSysColor(COLOR_WINDOWTEXT)));
    CRect inside = Box(0);
    inside.DeflateRect(1, 1);
    EXPECT_TRUE(ts::AreaIs(look, inside, ::GetSysColor(COLOR_WINDOW)));
}

TEST_F(CheckList, StatesLookDifferent)
{
    m_list.SetCheckStyle(BS_AUTO3STATE);
    m_list.SetCheck(1, BST_CHECKED);
    m_list.SetCheck(2, BST_INDETERMINATE);
    const ts::Picture look = ts::CaptureWindow(m_list);
    const ts::Picture tick = look.Crop(Box(1));
    EXPECT_TRUE(ts::PixelIs(tick, 5, 9, ::GetSysColor(COLOR_WINDOWTEXT)));
    EXPECT_TRUE(ts::PixelIs(tick, 9, 9, ::GetSysColor(COLOR_WINDOW)));
    CRect block = Box(2);
    block.DeflateRect(4, 4);
    EXPECT_TRUE(ts::AreaIs(look, block, ::GetSysColor(COLOR_WINDOWTEXT)));
    block.InflateRect(1, 1);
    EXPECT_TRUE(ts::FrameIs(look, block, ::GetSysColor(COLOR_WINDOW)));
}

TEST_F(CheckList, DisabledItemAndDisabledListAreGrey)
{
    const COLORREF grey = ::GetSysColor(COLOR_GRAYTEXT);
    m_list.Enable(1, FALSE);
    const ts::Picture one = ts::CaptureWindow(m_list);
    EXPECT_TRUE(ts::FrameIs(one, Box(1), grey));
    CRect text = Item(1);
    text.left = Box(1).right + 1;
    EXPECT_GT(one.Crop(text).Count(grey), 0);
    EXPECT_EQ(0, one.Crop(text).Count(::GetSysColor(COLOR_WINDOWTEXT)));
    m_list.EnableWindow(FALSE);
    EXPECT_TRUE(ts::FrameIs(ts::CaptureWindow(m_list), Box(0), grey));
}

TEST_F(CheckList, SelectionStopsAtTheBox)
{
    m_list.SetCurSel(1);
    const ts::Picture look = ts::CaptureWindow(m_list);
    const CRect item = Item(1);
    const int left = Box(1).right + 3;
    EXPECT_TRUE(ts::AreaIs(look, {item.right - 10, item.top, item.right, item.bottom}, ::GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_TRUE(ts::AreaIs(look, {left, item.top, left + 1, item.bottom}, ::GetSysColor(COLOR_HIGHLIGHT)));
    EXPECT_TRUE(ts::AreaIs(look, {left - 3, item.top, left, item.bottom}, ::GetSysColor(COLOR_WINDOW)));
}

TEST_F(CheckList, AmpersandsAreShown)
{
    const auto width = [this](const wchar_t* text) {
        m_list.ResetContent();
        m_list.AddString(text);
        CRect rect = Item(0);
        rect.left = Box(0).right + 1;
        return CRect(ts::CaptureWindow(m_list).Crop(rect).BoundsOf(::GetSysColor(COLOR_WINDOWTEXT))).Width();
    };
    const int plain = width(L"xx");
    EXPECT_GT(width(L"x&x"), plain + 3);
}

TEST_F(CheckList, FocusIsFramedUnlessTheSystemHidesIt)
{
    const auto drawn = [this](UINT state) {
        return ts::DrawTo(60, 16, [this, state](HDC dc) {
            DRAWITEMSTRUCT item = {};
            item.CtlType = ODT_LISTBOX;
            item.itemState = state;
            item.hwndItem = m_list.m_hWnd;
            item.hDC = dc;
            item.rcItem = {0, 0, 60, 16};
            m_list.DrawItem(&item);
        });
    };
    const ts::Picture plain = drawn(0);
    EXPECT_FALSE(plain == drawn(ODS_FOCUS));
    EXPECT_TRUE(ts::SamePicture(plain, drawn(ODS_FOCUS | ODS_NOFOCUSRECT)));
}

TEST_F(CheckList, BoxCanBePlacedElsewhere)
{
    m_list.boxShift = 90;
    m_list.Invalidate();
    CRect box = Box(0);
    box.OffsetRect(90, 0);
    EXPECT_TRUE(ts::FrameIs(ts::CaptureWindow(m_list), box, ::GetSysColor(COLOR_WINDOWTEXT)));
    ts::Click(m_list, box.CenterPoint().x, box.CenterPoint().y);
    EXPECT_EQ(L"100", Checks());
    EXPECT_EQ(Item(0), m_list.lastItem);
    ClickBox(1);
    EXPECT_EQ(L"100", Checks()) << "there is no box any more";
}

TEST_F(CheckList, ItemsHaveRoomForBoxAndText)
{
    EXPECT_EQ(m_list.CalcMinimumItemHeight(), m_list.GetItemHeight(0));
    EXPECT_GE(m_list.GetItemHeight(0), kBox + 1);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(240, L"Tahoma"));
    m_list.SetFont(&font);
    TEXTMETRICW metric = {};
    CClientDC dc(&m_list);
    dc.SelectObject(&font);
    dc.GetTextMetrics(&metric);
    EXPECT_EQ(metric.tmHeight, m_list.GetItemHeight(0));
    m_list.DestroyWindow();
}

TEST_F(CheckList, MeasuringKeepsAGreaterHeight)
{
    MEASUREITEMSTRUCT measure = {};
    measure.itemHeight = 2;
    m_list.MeasureItem(&measure);
    EXPECT_EQ(static_cast<UINT>(m_list.CalcMinimumItemHeight()), measure.itemHeight);
    measure.itemHeight = 100;
    m_list.MeasureItem(&measure);
    EXPECT_EQ(100u, measure.itemHeight);
}

TEST_F(CheckList, CreateMakesAPlainListOwnerDrawn)
{
    CCheckListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE, CRect(140, 10, 190, 60), &m_host, 22));
    EXPECT_EQ(static_cast<DWORD>(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS),
              list.GetStyle() & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS));
}

TEST_F(CheckList, ExistingListWithItemsCanBeTakenOver)
{
    const HWND window = ::CreateWindowW(L"LISTBOX", nullptr, kStyle, 140, 10, 50, 60, m_host,
                                        reinterpret_cast<HMENU>(22), nullptr, nullptr);
    ::SendMessageW(window, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"x"));
    CCheckListBox list;
    ASSERT_TRUE(list.SubclassWindow(window));
    EXPECT_EQ(list.CalcMinimumItemHeight(), list.GetItemHeight(0));
    list.AddString(L"y");
    list.SetCheck(1, BST_CHECKED);
    EXPECT_EQ(BST_UNCHECKED, list.GetCheck(0));
    EXPECT_EQ(BST_CHECKED, list.GetCheck(1));
}

TEST_F(CheckList, HandlerMayEmptyTheListWhileABoxIsClicked)
{
    m_host.Log().Answer(WM_COMMAND, [this](const ts::Message& message) -> std::optional<LRESULT> {
        if (message.code == LBN_SETFOCUS) {
            m_list.ResetContent();
        }
        return std::nullopt;
    });
    ClickBox(2);
    EXPECT_EQ(0, m_list.GetCount());
    EXPECT_EQ(0u, Changes());
}

TEST_F(CheckList, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CCheckListBox list;
        list.Create(kStyle, CRect(140, 10, 190, 60), &m_host, 22);
        list.AddString(L"x");
        list.SetCheck(0, BST_CHECKED);
        list.RedrawWindow();
        list.DestroyWindow();
    }));
}
} // namespace
