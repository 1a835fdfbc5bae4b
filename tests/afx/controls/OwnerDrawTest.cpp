#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

namespace
{
constexpr UINT ID = 77;
constexpr DWORD CHILD = WS_CHILD | WS_VISIBLE;
constexpr COLORREF PAINT = RGB(1, 200, 3);
const CRect PLACE(10, 10, 160, 130);

/** Paints its items in one colour and remembers what it was asked to draw. */
template <class Base>
class Painted : public Base
{
  public:
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        ++draws;
        type = item->CtlType;
        lastItem = static_cast<int>(item->itemID);
        CDC::FromHandle(item->hDC)->FillSolidRect(&item->rcItem, PAINT);
    }

    int draws = 0;
    int lastItem = -2;
    UINT type = 0;
};

template <class Base>
class Measured : public Painted<Base>
{
  public:
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measures;
        item->itemHeight = 31;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override
    {
        ++compares;
        // Greater values first.
        return item->itemData1 < item->itemData2 ? 1 : -1;
    }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { deleted.push_back(item->itemData); }

    int measures = 0;
    int compares = 0;
    std::vector<ULONG_PTR> deleted;
};

bool IsPainted(CWnd& wnd, int x = 3, int y = 3)
{
    return ts::CaptureWindow(wnd).At(x, y) == PAINT;
}

class KeyList : public CListBox
{
  public:
    int VKeyToItem(UINT nKey, UINT nIndex) override
    {
        key = nKey;
        index = nIndex;
        return -2;
    }
    UINT key = 0;
    UINT index = 99;
};

class CharList : public Painted<CListBox>
{
  public:
    int CharToItem(UINT nKey, UINT) override
    {
        key = nKey;
        return 1;
    }
    UINT key = 0;
};

class OwnMenu : public CMenu
{
  public:
    void DrawItem(LPDRAWITEMSTRUCT item) override { drawn.push_back(item->itemID); }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        measured.push_back(item->itemID);
        item->itemWidth = 60;
        item->itemHeight = 20;
    }
    std::vector<UINT> drawn;
    std::vector<UINT> measured;
};
} // namespace

TEST(OwnerDraw, ButtonDrawsItself)
{
    ts::AfxHost host;
    Painted<CButton> button;
    ASSERT_TRUE(button.Create(TEXT("x"), CHILD | BS_OWNERDRAW, PLACE, &host, ID));
    EXPECT_TRUE(IsPainted(button));
    EXPECT_EQ(button.type, static_cast<UINT>(ODT_BUTTON));
}

TEST(OwnerDraw, StaticDrawsItself)
{
    ts::AfxHost host;
    Painted<CStatic> label;
    ASSERT_TRUE(label.Create(TEXT("x"), CHILD | SS_OWNERDRAW, PLACE, &host, ID));
    EXPECT_TRUE(IsPainted(label));
    EXPECT_EQ(label.type, static_cast<UINT>(ODT_STATIC));
}

TEST(OwnerDraw, ListBoxMeasuresComparesDrawsAndDeletes)
{
    ts::AfxHost host;
    Measured<CListBox> list;
    ASSERT_TRUE(list.Create(CHILD | LBS_OWNERDRAWFIXED | LBS_SORT, PLACE, &host, ID));
    EXPECT_EQ(list.measures, 1);
    EXPECT_EQ(list.GetItemHeight(0), 31);
    list.AddString(reinterpret_cast<LPCTSTR>(1));
    EXPECT_EQ(list.AddString(reinterpret_cast<LPCTSTR>(2)), 0);
    EXPECT_GT(list.compares, 0);
    EXPECT_TRUE(IsPainted(list));
    EXPECT_EQ(list.type, static_cast<UINT>(ODT_LISTBOX));
    list.DeleteString(0);
    EXPECT_EQ(list.deleted, std::vector<ULONG_PTR>{2});
}

TEST(OwnerDraw, ComboBoxMeasuresComparesDrawsAndDeletes)
{
    ts::AfxHost host;
    Measured<CComboBox> combo;
    ASSERT_TRUE(combo.Create(CHILD | CBS_OWNERDRAWFIXED | CBS_SORT | CBS_DROPDOWNLIST, PLACE, &host, ID));
    EXPECT_GT(combo.measures, 0);
    combo.AddString(reinterpret_cast<LPCTSTR>(1));
    EXPECT_EQ(combo.AddString(reinterpret_cast<LPCTSTR>(2)), 0);
    EXPECT_GT(combo.compares, 0);
    combo.SetCurSel(1);
    EXPECT_TRUE(IsPainted(combo, 10, 10));
    EXPECT_EQ(combo.type, static_cast<UINT>(ODT_COMBOBOX));
    combo.DeleteString(0);
    EXPECT_EQ(combo.deleted, std::vector<ULONG_PTR>{2});
}

TEST(OwnerDraw, ListBoxIsAskedAboutKeys)
{
    ts::AfxHost host;
    KeyList list;
    ASSERT_TRUE(list.Create(CHILD | LBS_WANTKEYBOARDINPUT, PLACE, &host, ID));
    list.AddString(TEXT("a"));
    list.AddString(TEXT("b"));
    list.SetCurSel(0);
    list.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(list.key, static_cast<UINT>(VK_DOWN));
    EXPECT_EQ(list.index, 0u);
    EXPECT_EQ(list.GetCurSel(), 0);
}

TEST(OwnerDraw, ListBoxIsAskedAboutCharacters)
{
    ts::AfxHost host;
    CharList list;
    ASSERT_TRUE(list.Create(CHILD | LBS_OWNERDRAWFIXED | LBS_WANTKEYBOARDINPUT, PLACE, &host, ID));
    list.AddString(nullptr);
    list.AddString(nullptr);
    list.SendMessage(WM_CHAR, L'q', 1);
    EXPECT_EQ(list.key, static_cast<UINT>(L'q'));
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST(OwnerDraw, TabDrawsItself)
{
    ts::AfxHost host;
    Painted<CTabCtrl> tab;
    ASSERT_TRUE(tab.Create(CHILD | TCS_OWNERDRAWFIXED, PLACE, &host, ID));
    tab.InsertItem(0, TEXT("One"));
    CRect rect;
    tab.GetItemRect(0, &rect);
    EXPECT_TRUE(IsPainted(tab, rect.CenterPoint().x, rect.CenterPoint().y));
    EXPECT_EQ(tab.type, static_cast<UINT>(ODT_TAB));
}

TEST(OwnerDraw, ListViewDrawsItself)
{
    ts::AfxHost host;
    Painted<CListCtrl> list;
    ASSERT_TRUE(list.Create(CHILD | LVS_REPORT | LVS_OWNERDRAWFIXED, PLACE, &host, ID));
    list.InsertColumn(0, TEXT("Name"), LVCFMT_LEFT, 100);
    list.InsertItem(0, TEXT("x"));
    CRect rect;
    list.GetItemRect(0, &rect, LVIR_BOUNDS);
    EXPECT_TRUE(IsPainted(list, rect.left + 3, rect.CenterPoint().y));
    EXPECT_EQ(list.type, static_cast<UINT>(ODT_LISTVIEW));
    EXPECT_EQ(list.lastItem, 0);
}

TEST(OwnerDraw, HeaderOfAListViewDrawsItself)
{
    ts::AfxHost host;
    CListCtrl list;
    ASSERT_TRUE(list.Create(CHILD | LVS_REPORT, PLACE, &host, ID));
    list.InsertColumn(0, TEXT("Name"), LVCFMT_LEFT, 100);
    Painted<CHeaderCtrl> header;
    ASSERT_TRUE(header.SubclassWindow(list.GetHeaderCtrl()->m_hWnd));
    HDITEM item = {};
    item.mask = HDI_FORMAT;
    item.fmt = HDF_OWNERDRAW;
    ASSERT_TRUE(header.SetItem(0, &item));
    EXPECT_TRUE(IsPainted(header, 50, 8));
    EXPECT_EQ(header.lastItem, 0);
    header.UnsubclassWindow();
}

TEST(OwnerDraw, HeaderOfItsOwnDrawsItself)
{
    ts::AfxHost host;
    Painted<CHeaderCtrl> header;
    ASSERT_TRUE(header.Create(CHILD, CRect(0, 0, 200, 20), &host, ID));
    HDITEM item = {};
    item.mask = HDI_FORMAT | HDI_WIDTH;
    item.fmt = HDF_OWNERDRAW;
    item.cxy = 80;
    EXPECT_EQ(header.InsertItem(0, &item), 0);
    EXPECT_TRUE(IsPainted(header, 40, 8));
}

TEST(OwnerDraw, MenuMeasuresAndDrawsItsItems)
{
    ts::AfxHost host;
    OwnMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_OWNERDRAW, 41, TEXT("data"));
    ts::Settle();
    host.SetTimer(1, 50, nullptr);
    ts::MessageRecorder recorder(host);
    recorder.RecordOnly({WM_TIMER});
    recorder.Answer(WM_TIMER, [&](const ts::Message&) -> std::optional<LRESULT> {
        if (!menu.drawn.empty()) {
            ::EndMenu();
        }
        return 0;
    });
    menu.TrackPopupMenu(TPM_LEFTALIGN, 50, 50, &host);
    host.KillTimer(1);
    ASSERT_FALSE(menu.measured.empty());
    EXPECT_EQ(menu.measured[0], 41u);
    ASSERT_FALSE(menu.drawn.empty());
    EXPECT_EQ(menu.drawn[0], 41u);
}

TEST(OwnerDraw, ControlsThatDrawNothingAreHarmless)
{
    ts::AfxHost host;
    CButton button;
    CListBox list;
    CTabCtrl tab;
    button.Create(TEXT("x"), CHILD | BS_OWNERDRAW, PLACE, &host, 1);
    list.Create(CHILD | LBS_OWNERDRAWFIXED | LBS_SORT, PLACE, &host, 2);
    tab.Create(CHILD | TCS_OWNERDRAWFIXED, PLACE, &host, 3);
    tab.InsertItem(0, TEXT("One"));
    list.AddString(nullptr);
    list.AddString(nullptr);
    ts::Settle();
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.SendMessage(WM_CHAR, L'x', 1), 0);
}
