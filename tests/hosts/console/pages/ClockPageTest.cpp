#include <hosts/console/ControlIds.h>
#include <tests/hosts/console/PagesFixture.h>

#include <string>

namespace
{

using namespace ids::clock;

class ClockPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"clock");
    }

    bool Shows(const wchar_t* time)
    {
        CString text;
        text.Format(L"The clock shows %s.", time);
        return ts::PumpUntil([&] { return Text(kTime) == text; });
    }
};

TEST_F(ClockPage, TimeIsTypedAndSet)
{
    TypeInto(kHour, L"7");
    TypeInto(kMinute, L"5");
    Press(kSet, VK_RETURN);
    EXPECT_TRUE(Shows(L"07:05"));
    const ts::Picture before = ts::CaptureWindow(Control(kClock));
    TypeInto(kMinute, L"x35"); // a letter is no digit
    Press(kSet, VK_SPACE);
    EXPECT_TRUE(Shows(L"07:35"));
    EXPECT_FALSE(ts::SamePicture(before, ts::CaptureWindow(Control(kClock))));
}

TEST_F(ClockPage, TakesNoTimeThatThereIsNot)
{
    TypeInto(kHour, L"99");
    TypeInto(kMinute, L"77");
    EXPECT_STREQ(L"23", Text(kHour));
    EXPECT_STREQ(L"59", Text(kMinute));
}

TEST_F(ClockPage, HandsRunByKeyboard)
{
    TypeInto(kHour, L"7");
    TypeInto(kMinute, L"5");
    Press(kSet, VK_SPACE);
    ASSERT_TRUE(Shows(L"07:05"));
    TypeInto(kMinute, L"25");
    Press(kForward, VK_SPACE);
    EXPECT_TRUE(Shows(L"07:25"));
    TypeInto(kMinute, L"15");
    Press(kBackward, VK_RETURN);
    EXPECT_TRUE(Shows(L"07:15"));
}

TEST_F(ClockPage, HandsRunToTheTimeOfDay)
{
    const auto shown = [] { return COleDateTime::GetCurrentTime().Format(L"The clock shows %H:%M."); };
    const int hour = COleDateTime::GetCurrentTime().GetHour();
    TypeInto(kHour, std::to_wstring((hour + 23) % 24));
    Press(kSet, VK_SPACE);
    const CString before = shown();
    Press(kNow, VK_SPACE);
    const CString after = shown();
    EXPECT_TRUE(ts::PumpUntil([&] { return Text(kTime) == before || Text(kTime) == after; }));
}

} // namespace
