#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

namespace
{

using namespace ids::edits;

class EditsPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"edits");
    }

    bool LogHas(const wchar_t* line) { return Text(kLog).Find(line) >= 0; }
};

TEST_F(EditsPage, TextsAreTypedAndCharactersRefused)
{
    TypeInto(kPlain, L"some text");
    EXPECT_STREQ(L"some text", Text(kPlain));
    TypeInto(kName, L"a:");
    EXPECT_STREQ(L"The name has a refused character.", Text(kNameState));
    ts::Key(VK_BACK);
    EXPECT_STREQ(L"The name is valid.", Text(kNameState));
    ts::Key(VK_BACK);
    EXPECT_STREQ(L"The name is empty.", Text(kNameState));
    TypeInto(kSecret, L"word");
    EXPECT_STREQ(L"word", Text(kSecret));
}

TEST_F(EditsPage, EscapeInAFieldOfSeveralLinesLeavesThePageThere)
{
    for (const UINT id : {kHours, kLog}) {
        const HWND page = *m_frame.CurrentPage();
        Press(id, VK_ESCAPE);
        ts::Settle();
        EXPECT_TRUE(::IsWindow(page)) << id;
    }
}

TEST_F(EditsPage, NumbersAreTypedIntoTheirRange)
{
    TypeInto(kHours, L"99");
    EXPECT_STREQ(L"Hours 23, days 7, number 0", Text(kNumbers));
    TypeInto(kDays, L"6");
    EXPECT_STREQ(L"Hours 23, days 6, number 0", Text(kNumbers));
    TypeInto(kNumber, L"42");
    EXPECT_STREQ(L"Hours 23, days 6, number 42", Text(kNumbers));
    EXPECT_FALSE(LogHas(L"You entered"));
    ts::Key(VK_RETURN);
    EXPECT_TRUE(LogHas(L"You entered 42."));
}

TEST_F(EditsPage, LinesAreAddedReadAndCleared)
{
    Press(kAddLine, VK_RETURN);
    Press(kAddWarning, VK_SPACE);
    EXPECT_TRUE(LogHas(L"3. A snapshot was taken."));
    EXPECT_TRUE(LogHas(L"4. The disk is nearly full."));
    const int length = Text(kLog).GetLength();
    Press(kAddLink, VK_RETURN);
    EXPECT_GT(Text(kLog).GetLength(), length);
    ASSERT_TRUE(TabTo(kLog));
    ts::Chord({VK_CONTROL, VK_HOME});
    ts::Key(VK_DOWN);
    EXPECT_EQ(1, ::SendMessageW(Control(kLog), EM_LINEFROMCHAR, static_cast<WPARAM>(-1), 0));
    Press(kClear, VK_SPACE);
    EXPECT_STREQ(L"", Text(kLog));
}

} // namespace
