#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

#include <string>
#include <utility>

namespace
{

using namespace ids::pickers;

class PickersPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"pickers");
    }

    /** The texts of the list with items to move, the selected one in brackets. */
    std::wstring Items()
    {
        auto& list = ControlAs<CDragLB>(kDrag);
        std::wstring items;
        for (int i = 0; i < list.GetCount(); ++i) {
            CString text;
            list.GetText(i, text);
            items += list.GetCurSel() == i ? L"[" + std::wstring(text) + L"]" : std::wstring(text);
            items += L'|';
        }
        return items;
    }

    LRESULT Ask(UINT id, UINT message) { return ::SendMessageW(Control(id), message, 0, 0); }

    SYSTEMTIME Time(UINT id)
    {
        SYSTEMTIME time = {};
        ::SendMessageW(Control(id), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
        return time;
    }

    DWORD Address()
    {
        DWORD address = 0;
        ::SendMessageW(Control(kAddress), IPM_GETADDRESS, 0, reinterpret_cast<LPARAM>(&address));
        return address;
    }
};

TEST_F(PickersPage, CombosAreChosenFromAndDroppedDown)
{
    Press(kKind, VK_DOWN);
    EXPECT_STREQ(L"Its item data: 200", Text(kKindData));
    ts::Key(VK_F4);
    EXPECT_TRUE(Ask(kKind, CB_GETDROPPEDSTATE));
    ts::Key(VK_DOWN);
    ts::Key(VK_RETURN);
    EXPECT_FALSE(Ask(kKind, CB_GETDROPPEDSTATE));
    EXPECT_STREQ(L"Its item data: 300", Text(kKindData));
    ts::Chord({VK_MENU, VK_DOWN});
    EXPECT_TRUE(Ask(kKind, CB_GETDROPPEDSTATE));
    ts::Chord({VK_MENU, VK_UP});
    EXPECT_FALSE(Ask(kKind, CB_GETDROPPEDSTATE));
    TypeInto(kFree, L"Never");
    EXPECT_STREQ(L"Never", Text(kFree));
    ts::Key(VK_UP);
    EXPECT_NE(CB_ERR, Ask(kFree, CB_GETCURSEL));
}

TEST_F(PickersPage, PickersTakeKeys)
{
    ASSERT_TRUE(TabTo(kHotKey));
    ts::Chord({VK_CONTROL, VK_SHIFT, 'K'});
    EXPECT_EQ(MAKEWORD('K', HOTKEYF_CONTROL | HOTKEYF_SHIFT), Ask(kHotKey, HKM_GETHOTKEY));
    Press(kDate, VK_RIGHT); // the system may select no field before
    ts::Key(VK_UP);
    EXPECT_NE(std::pair(WORD{5}, WORD{17}), std::pair(Time(kDate).wMonth, Time(kDate).wDay));
    ts::Key(VK_DOWN);
    EXPECT_EQ(std::pair(WORD{5}, WORD{17}), std::pair(Time(kDate).wMonth, Time(kDate).wDay));
    Press(kTime, VK_RIGHT);
    ts::Key(VK_UP);
    EXPECT_NE(std::pair(WORD{13}, WORD{30}), std::pair(Time(kTime).wHour, Time(kTime).wMinute));
    TypeInto(kAddress, L"10.1.2.3");
    EXPECT_EQ(static_cast<DWORD>(MAKEIPADDRESS(10, 1, 2, 3)), Address());
}

TEST_F(PickersPage, SearchedTextsAreAddedAndDeleted)
{
    const LRESULT count = Ask(kTexts, LB_GETCOUNT);
    TypeInto(kSearch, L"A new text");
    Press(kAdd, VK_RETURN);
    EXPECT_EQ(count + 1, Ask(kTexts, LB_GETCOUNT));
    EXPECT_EQ(count, Ask(kTexts, LB_GETCURSEL));
    Press(kDelete, VK_SPACE);
    EXPECT_EQ(count, Ask(kTexts, LB_GETCOUNT));
    Press(kTexts, VK_DOWN); // the first key only selects where the caret is
    ts::Key(VK_HOME);
    ts::Key(VK_DOWN);
    EXPECT_EQ(1, Ask(kTexts, LB_GETCURSEL));
}

TEST_F(PickersPage, ItemsAreCheckedByKeyboard)
{
    Press(kChecks, VK_HOME);
    EXPECT_STREQ(L"Checked items: 1", Text(kChecked));
    ts::Key(VK_SPACE);
    EXPECT_STREQ(L"Checked items: 2", Text(kChecked));
    Press(kDrag, VK_DOWN);
    ts::Key(VK_END);
    EXPECT_EQ(3, Ask(kDrag, LB_GETCURSEL));
    Press(kDragOn, VK_SPACE);
    EXPECT_EQ(BST_UNCHECKED, Ask(kDragOn, BM_GETCHECK));
}

TEST_F(PickersPage, ItemsAreMovedByKeyboard)
{
    const std::wstring none = L"Every day|Every week|Every month|At start-up|";
    Press(kUp, VK_SPACE);
    Press(kDown, VK_SPACE);
    EXPECT_EQ(none, Items());
    Press(kDrag, VK_HOME);
    ts::Key(VK_DOWN);
    Press(kUp, VK_SPACE);
    EXPECT_EQ(L"[Every week]|Every day|Every month|At start-up|", Items());
    ts::Key(VK_SPACE); // at the top already
    EXPECT_EQ(L"[Every week]|Every day|Every month|At start-up|", Items());
    Press(kDown, VK_RETURN);
    for (int i = 0; i < 3; ++i) {
        ts::Key(VK_RETURN);
    }
    EXPECT_EQ(L"Every day|Every month|At start-up|[Every week]|", Items());
    ts::Chord({VK_MENU, 'U'});
    EXPECT_EQ(L"Every day|Every month|[Every week]|At start-up|", Items());
}

} // namespace
