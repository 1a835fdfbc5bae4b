#include <tests/support/Support.h>

#include <commctrl.h>

namespace
{

ts::Message Received(UINT id, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return ts::Message::Make(nullptr, id, wParam, lParam);
}

TEST(Sequence, MatchesEqualOnes)
{
    EXPECT_TRUE(ts::SameSequence({Received(WM_SIZE, 0, 5), Received(WM_COMMAND, MAKEWPARAM(3, BN_CLICKED))},
                                 {ts::Msg(WM_SIZE, 0, 5), ts::Command(3, BN_CLICKED)}));
}

TEST(Sequence, LeavesPartsThatAreNotGivenOpen)
{
    EXPECT_TRUE(ts::SameSequence({Received(WM_SIZE, 1, 77)}, {ts::Msg(WM_SIZE)}));
}

TEST(Sequence, RefusesAnotherOrder)
{
    EXPECT_FALSE(ts::SameSequence({Received(WM_SIZE), Received(WM_MOVE)}, {ts::Msg(WM_MOVE), ts::Msg(WM_SIZE)}));
}

TEST(Sequence, RefusesAMissingAndASurplusMessage)
{
    EXPECT_FALSE(ts::SameSequence({Received(WM_SIZE)}, {ts::Msg(WM_SIZE), ts::Msg(WM_MOVE)}));
    EXPECT_FALSE(ts::SameSequence({Received(WM_SIZE), Received(WM_MOVE)}, {ts::Msg(WM_SIZE)}));
}

TEST(Sequence, RefusesOtherParameters)
{
    EXPECT_FALSE(ts::SameSequence({Received(WM_SIZE, 1, 0)}, {ts::Msg(WM_SIZE, 2)}));
    EXPECT_FALSE(ts::SameSequence({Received(WM_SIZE, 1, 3)}, {ts::Msg(WM_SIZE, 1, 4)}));
    EXPECT_FALSE(ts::SameSequence({Received(WM_COMMAND, MAKEWPARAM(3, 1))}, {ts::Command(3, 2)}));
    EXPECT_FALSE(ts::SameSequence({Received(WM_COMMAND, MAKEWPARAM(4, 1))}, {ts::Command(3, 1)}));
}

TEST(Sequence, NamesTheFirstDifferenceAndMarksTheLines)
{
    const testing::AssertionResult result =
        ts::SameSequence({Received(WM_SIZE), Received(WM_MOVE)}, {ts::Msg(WM_SIZE), ts::Command(5, BN_CLICKED)});
    const std::string text = result.message();
    EXPECT_NE(std::string::npos, text.find("from line 1 on")) << text;
    EXPECT_NE(std::string::npos, text.find("  ! 1   expected WM_COMMAND control=5 code=0")) << text;
    EXPECT_NE(std::string::npos, text.find("got WM_MOVE")) << text;
}

TEST(MessageName, KnowsSystemUserAndRegisteredMessages)
{
    EXPECT_EQ("WM_MOUSELEAVE", ts::MessageName(WM_MOUSELEAVE));
    EXPECT_EQ("WM_USER+5", ts::MessageName(WM_USER + 5));
    EXPECT_EQ("WM_APP+2", ts::MessageName(WM_APP + 2));
    EXPECT_EQ("registered 'QorTestSomething'", ts::MessageName(RegisterWindowMessageW(L"QorTestSomething")));
}

} // namespace
