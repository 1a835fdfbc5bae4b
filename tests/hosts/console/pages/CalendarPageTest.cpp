#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

namespace
{

using namespace ids::calendar;

class CalendarPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"calendar");
    }

    CSize CalendarSize()
    {
        CRect rect;
        ::GetWindowRect(Control(kCalendar), rect);
        return rect.Size();
    }

    ts::Picture Calendar() { return ts::CaptureWindow(Control(kCalendar)); }

    /** Whether these days of March 2009 are selected, and the page says so. */
    testing::AssertionResult IsSelected(int first, int last)
    {
        COleDateTime end;
        const COleDateTime start = ControlAs<CQorCalendar>(kCalendar).GetSelDate(&end);
        const CString text = L"selected: " + start.Format(VAR_DATEVALUEONLY) + L" to " + end.Format(VAR_DATEVALUEONLY);
        if (start == COleDateTime(2009, 3, first, 0, 0, 0) && end == COleDateTime(2009, 3, last, 0, 0, 0) &&
            Text(kResult).Find(text) >= 0) {
            return testing::AssertionSuccess();
        }
        return testing::AssertionFailure() << ts::ToUtf8(Text(kResult).GetString());
    }
};

TEST_F(CalendarPage, OptionsAreChosenByKeyboard)
{
    ShowState(L"four-months");
    const CSize four = CalendarSize();
    Press(kGridFirst + 1, VK_UP);
    EXPECT_LT(CalendarSize().cx, four.cx);
    ts::Key(VK_UP); // round to twelve months
    EXPECT_GT(CalendarSize().cx, four.cx);
    EXPECT_GT(CalendarSize().cy, four.cy);
    ts::Picture before = Calendar();
    Press(kWeekFirst, VK_DOWN);
    EXPECT_FALSE(ts::SamePicture(before, Calendar()));
    before = Calendar();
    Press(kMarks, VK_SPACE);
    EXPECT_FALSE(ts::SamePicture(before, Calendar()));
    Press(kMarks, VK_RETURN);
    EXPECT_TRUE(ts::SamePicture(before, Calendar()));
}

TEST_F(CalendarPage, DaysAreSelectedByKeyboard)
{
    ShowState(L"four-months");
    EXPECT_TRUE(IsSelected(10, 16));
    Press(kLonger, VK_SPACE);
    EXPECT_TRUE(IsSelected(10, 16)); // seven days are the most
    Press(kNext, VK_RETURN);
    EXPECT_TRUE(IsSelected(11, 17));
    Press(kPrevious, VK_SPACE);
    ts::Key(VK_SPACE);
    EXPECT_TRUE(IsSelected(9, 15));
    Press(kDaysLast, VK_UP); // a single day
    EXPECT_TRUE(IsSelected(9, 9));
    ts::Key(VK_DOWN);
    Press(kLonger, VK_SPACE);
    EXPECT_TRUE(IsSelected(9, 10));
}

TEST_F(CalendarPage, ButtonsPageAndGoToToday)
{
    ShowState(L"four-months");
    Press(kLater, VK_SPACE);
    EXPECT_EQ(0, Text(kResult).Find(L"From July 2009;"));
    Press(kEarlier, VK_RETURN);
    EXPECT_EQ(0, Text(kResult).Find(L"From March 2009;"));
    Press(kToday, VK_SPACE);
    const COleDateTime today = COleDateTime::GetCurrentTime();
    const COleDateTime selected = ControlAs<CQorCalendar>(kCalendar).GetSelDate(nullptr);
    EXPECT_STREQ(today.Format(VAR_DATEVALUEONLY), selected.Format(VAR_DATEVALUEONLY));
    EXPECT_EQ(-1, Text(kResult).Find(L"March 2009"));
}

} // namespace
