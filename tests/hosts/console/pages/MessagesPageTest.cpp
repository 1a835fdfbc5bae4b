#include <hosts/console/ControlIds.h>
#include <QorUI/res/resource.h>
#include <tests/hosts/console/PagesFixture.h>

#include <vector>

namespace
{

using namespace ids::messages;

class MessagesPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"messages");
    }

    /** Opens the box and presses keys in it. @return the text that it showed. */
    CString Answer(WORD open, const std::vector<WORD>& keys)
    {
        ts::ModalDriver driver;
        CString text;
        for (const WORD key : keys) {
            driver.InDialog([&text, key](HWND box) {
                text = ts::TextOf(::GetDlgItem(box, IDC_BOX_TEXT));
                ts::Key(key);
            });
        }
        Press(kShow, open);
        EXPECT_TRUE(driver.Finished());
        return text;
    }
};

TEST_F(MessagesPage, BoxShowsTheTypedTextAndTheErrorCode)
{
    TypeInto(kText, L"Typed");
    EXPECT_STREQ(L"Typed", Answer(VK_RETURN, {VK_RETURN}));
    EXPECT_STREQ(L"Result: 1", Text(kResult));
    Press(kErrorCode, VK_SPACE);
    const CString text = Answer(VK_SPACE, {VK_ESCAPE});
    EXPECT_EQ(0, text.Find(L"Typed"));
    EXPECT_GT(text.GetLength(), 5);
    EXPECT_EQ(Control(kShow), ::GetFocus());
}

TEST_F(MessagesPage, EveryButtonOfABoxIsReachedByKeyboard)
{
    Press(kKindFirst, VK_UP); // round to the last: yes, no, cancel
    struct
    {
        std::vector<WORD> keys;
        const wchar_t* result;
    } const answers[] = {{{VK_RETURN}, L"Result: 7"},
                         {{VK_TAB, VK_TAB, VK_SPACE}, L"Result: 6"},
                         {{VK_TAB, VK_SPACE}, L"Result: 2"},
                         {{VK_ESCAPE}, L"Result: 2"}};
    for (const auto& [keys, result] : answers) {
        Answer(VK_SPACE, keys);
        EXPECT_STREQ(result, Text(kResult));
    }
}

} // namespace
