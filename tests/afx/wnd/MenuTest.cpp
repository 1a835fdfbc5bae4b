#include <tests/afx/resource.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxwin.h>

namespace
{
/** A popup menu with the items One (1), Two (2), a separator and Three (3). */
class Popup : public CMenu
{
  public:
    Popup()
    {
        CreatePopupMenu();
        AppendMenu(MF_STRING, 1, TEXT("One"));
        AppendMenu(MF_STRING, 2, TEXT("Two"));
        AppendMenu(MF_SEPARATOR);
        AppendMenu(MF_STRING, 3, TEXT("Three"));
    }
};

CString TextAt(const CMenu& menu, UINT position)
{
    CString text;
    menu.GetMenuString(position, text, MF_BYPOSITION);
    return text;
}

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

TEST(Menu, DestructorDestroysTheMenu)
{
    HMENU handle = nullptr;
    {
        Popup menu;
        handle = menu;
        EXPECT_TRUE(::IsMenu(handle));
        EXPECT_EQ(CMenu::FromHandle(handle), &menu);
        EXPECT_EQ(CMenu::FromHandlePermanent(handle), &menu);
    }
    EXPECT_FALSE(::IsMenu(handle));
    EXPECT_EQ(CMenu::FromHandlePermanent(handle), nullptr);
}

TEST(Menu, DetachKeepsTheMenu)
{
    HMENU handle = nullptr;
    {
        Popup menu;
        handle = menu.Detach();
        EXPECT_EQ(menu.GetSafeHmenu(), nullptr);
    }
    EXPECT_TRUE(::IsMenu(handle));
    CMenu again;
    EXPECT_TRUE(again.Attach(handle));
    EXPECT_FALSE(again.Attach(handle));
    EXPECT_TRUE(again.DestroyMenu());
    EXPECT_FALSE(again.DestroyMenu());
}

TEST(Menu, TemporaryObjectDoesNotDestroyTheMenu)
{
    HMENU handle = ::CreatePopupMenu();
    EXPECT_NE(CMenu::FromHandle(handle), nullptr);
    EXPECT_EQ(CMenu::FromHandlePermanent(handle), nullptr);
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(handle));
    ::DestroyMenu(handle);
    EXPECT_EQ(CMenu::FromHandle(nullptr), nullptr);
}

TEST(Menu, LoadsFromTheResourceChainByIdAndName)
{
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDM_MAIN));
    EXPECT_EQ(menu.GetMenuItemCount(), 2u);
    CMenu* file = menu.GetSubMenu(0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->GetMenuItemID(0), static_cast<UINT>(ID_OPEN));
    EXPECT_STREQ(TextAt(*file, 2), TEXT("E&xit"));
    EXPECT_EQ(menu.GetSubMenu(1), nullptr);
    CMenu byName;
    EXPECT_TRUE(byName.LoadMenu(TEXT("NAMED_MENU")));
    EXPECT_FALSE(CMenu().LoadMenu(9999));
    EXPECT_FALSE(CMenu().LoadMenu(TEXT("NO_SUCH_MENU")));
}

TEST(Menu, LoadsFromATemplateInMemory)
{
    HRSRC place = ::FindResource(nullptr, MAKEINTRESOURCE(IDM_MAIN), RT_MENU);
    CMenu menu;
    EXPECT_TRUE(menu.LoadMenuIndirect(::LockResource(::LoadResource(nullptr, place))));
    EXPECT_EQ(menu.GetMenuItemCount(), 2u);
    EXPECT_FALSE(CMenu().LoadMenuIndirect(nullptr));
}

TEST(Menu, ItemsAreAddedChangedAndTakenOut)
{
    Popup menu;
    EXPECT_TRUE(menu.InsertMenu(1, MF_BYPOSITION | MF_STRING, 9, TEXT("Between")));
    EXPECT_STREQ(TextAt(menu, 1), TEXT("Between"));
    EXPECT_TRUE(menu.ModifyMenu(9, MF_BYCOMMAND | MF_STRING, 10, TEXT("Changed")));
    EXPECT_EQ(menu.GetMenuItemID(1), 10u);
    EXPECT_TRUE(menu.RemoveMenu(1, MF_BYPOSITION));
    EXPECT_TRUE(menu.DeleteMenu(3, MF_BYCOMMAND));
    EXPECT_EQ(menu.GetMenuItemCount(), 3u);
    EXPECT_FALSE(menu.DeleteMenu(77, MF_BYCOMMAND));
    EXPECT_FALSE(menu.ModifyMenu(77, MF_BYCOMMAND, 1, TEXT("x")));
}

TEST(Menu, RemovedPopupLivesAndDeletedPopupDies)
{
    CMenu bar;
    bar.CreateMenu();
    Popup removed;
    HMENU removedHandle = removed.m_hMenu;
    HMENU deletedHandle = ::CreatePopupMenu();
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(removedHandle), TEXT("A"));
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(deletedHandle), TEXT("B"));
    EXPECT_EQ(bar.GetSubMenu(0), &removed);
    EXPECT_TRUE(bar.RemoveMenu(0, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(removedHandle));
    EXPECT_TRUE(bar.DeleteMenu(0, MF_BYPOSITION));
    EXPECT_FALSE(::IsMenu(deletedHandle));
}

TEST(Menu, StatesAreSetAndTold)
{
    Popup menu;
    EXPECT_EQ(menu.CheckMenuItem(1, MF_CHECKED), static_cast<UINT>(MF_UNCHECKED));
    EXPECT_EQ(menu.CheckMenuItem(1, MF_UNCHECKED), static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(menu.EnableMenuItem(2, MF_GRAYED), static_cast<UINT>(MF_ENABLED));
    EXPECT_TRUE(menu.GetMenuState(2, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(menu.CheckMenuItem(77, MF_CHECKED), static_cast<UINT>(-1));
    EXPECT_EQ(menu.EnableMenuItem(77, MF_GRAYED), static_cast<UINT>(-1));
    EXPECT_TRUE(menu.CheckMenuRadioItem(1, 2, 2, MF_BYCOMMAND));
    EXPECT_TRUE(menu.GetMenuState(2, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.SetDefaultItem(1));
    EXPECT_EQ(menu.GetDefaultItem(0), 1u);
    EXPECT_EQ(menu.GetDefaultItem(0, TRUE), 0u);
    EXPECT_TRUE(menu.SetMenuContextHelpId(42));
    EXPECT_EQ(menu.GetMenuContextHelpId(), 42u);
}

TEST(Menu, StringsAreGivenInBothForms)
{
    Popup menu;
    TCHAR buffer[3] = {};
    EXPECT_EQ(menu.GetMenuString(1, buffer, 3, MF_BYCOMMAND), 2);
    EXPECT_STREQ(buffer, TEXT("On"));
    CString text(TEXT("before"));
    EXPECT_EQ(menu.GetMenuString(3, text, MF_BYCOMMAND), 5);
    EXPECT_STREQ(text, TEXT("Three"));
    EXPECT_EQ(menu.GetMenuString(77, text, MF_BYCOMMAND), 0);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(Menu, ItemInfoIsReadAndWritten)
{
    Popup menu;
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_ID | MIIM_DATA;
    info.wID = 50;
    info.dwItemData = 1234;
    EXPECT_TRUE(menu.InsertMenuItem(0, &info, TRUE));
    info.dwItemData = 0;
    EXPECT_TRUE(menu.GetMenuItemInfo(50, &info));
    EXPECT_EQ(info.dwItemData, 1234u);
    info.dwItemData = 77;
    EXPECT_TRUE(menu.SetMenuItemInfo(0, &info, TRUE));
    menu.GetMenuItemInfo(0, &info, TRUE);
    EXPECT_EQ(info.dwItemData, 77u);
    EXPECT_FALSE(menu.GetMenuItemInfo(0, nullptr, TRUE));
    EXPECT_FALSE(menu.InsertMenuItem(0, nullptr, TRUE));
}

TEST(Menu, MenuInfoIsReadAndWritten)
{
    Popup menu;
    CBrush brush(RGB(255, 0, 0));
    MENUINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIM_BACKGROUND;
    info.hbrBack = brush;
    EXPECT_TRUE(menu.SetMenuInfo(&info));
    info.hbrBack = nullptr;
    EXPECT_TRUE(menu.GetMenuInfo(&info));
    EXPECT_EQ(info.hbrBack, static_cast<HBRUSH>(brush));
    EXPECT_FALSE(menu.GetMenuInfo(nullptr));
}

TEST(Menu, BitmapsStandInPlaceOfText)
{
    Popup menu;
    CBitmap bitmap;
    bitmap.LoadBitmap(IDB_STRIP);
    EXPECT_TRUE(menu.AppendMenu(MF_ENABLED, 20, &bitmap));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION, 21, &bitmap));
    EXPECT_TRUE(menu.ModifyMenu(1, MF_BYCOMMAND, 22, &bitmap));
    EXPECT_TRUE(menu.SetMenuItemBitmaps(2, MF_BYCOMMAND, &bitmap, nullptr));
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_BITMAP;
    ASSERT_TRUE(menu.GetMenuItemInfo(20, &info));
    EXPECT_EQ(info.hbmpItem, static_cast<HBITMAP>(bitmap));
    info.fMask = MIIM_CHECKMARKS;
    ASSERT_TRUE(menu.GetMenuItemInfo(2, &info));
    EXPECT_EQ(info.hbmpUnchecked, static_cast<HBITMAP>(bitmap));
    EXPECT_EQ(info.hbmpChecked, nullptr);
}

TEST(Menu, EmptyObjectFailsQuietly)
{
    CMenu menu;
    EXPECT_EQ(menu.GetMenuItemCount(), static_cast<UINT>(-1));
    EXPECT_EQ(menu.GetMenuItemID(0), static_cast<UINT>(-1));
    EXPECT_EQ(menu.GetSubMenu(0), nullptr);
    EXPECT_FALSE(menu.AppendMenu(MF_STRING, 1, TEXT("x")));
    EXPECT_FALSE(menu.TrackPopupMenu(0, 0, 0, nullptr));
    EXPECT_EQ(menu.CheckMenuItem(1, MF_CHECKED), static_cast<UINT>(-1));
    EXPECT_FALSE(menu.Attach(nullptr));
    CString text;
    EXPECT_EQ(menu.GetMenuString(0, text, MF_BYPOSITION), 0);
    menu.DrawItem(nullptr);
    menu.MeasureItem(nullptr);
    EXPECT_TRUE(menu == CMenu());
}

TEST(Menu, ComparesHandles)
{
    Popup first;
    Popup second;
    EXPECT_TRUE(first == first);
    EXPECT_TRUE(first != second);
}

TEST(Menu, OwnerOfAMenuRefusesANewOneAndLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CMenu menu;
        EXPECT_TRUE(menu.CreateMenu());
        EXPECT_FALSE(menu.CreatePopupMenu());
        EXPECT_FALSE(menu.LoadMenu(IDM_MAIN));
        EXPECT_EQ(0u, menu.GetMenuItemCount());
    }));
}

TEST(Menu, LeavesNoMenuBehind)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CMenu bar;
        bar.LoadMenu(IDM_MAIN);
        bar.GetSubMenu(0)->AppendMenu(MF_STRING, 1, TEXT("x"));
        Popup popup;
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.Detach()), TEXT("y"));
    }));
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

TEST(Menu, GivesNoHandleThroughANullPointer)
{
    CMenu* volatile none = nullptr;
    EXPECT_EQ(none->GetSafeHmenu(), nullptr);
}
