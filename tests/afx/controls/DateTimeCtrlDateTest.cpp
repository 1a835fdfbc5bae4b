#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxdisp.h>

namespace
{

const COleDateTime kDate(2009, 3, 14, 15, 6, 7);

COleDateTime WithStatus(COleDateTime::DateTimeStatus status)
{
    COleDateTime date(kDate);
    date.SetStatus(status);
    return date;
}

class DatePicker : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_picker.Create(WS_CHILD | WS_VISIBLE | DTS_SHOWNONE, CRect(10, 10, 150, 34), &m_host, 7));
    }

    ts::AfxHost m_host{200, 100};
    CDateTimeCtrl m_picker;
};

} // namespace

TEST_F(DatePicker, GivesTheDateThatWasSet)
{
    EXPECT_TRUE(m_picker.SetTime(kDate));
    COleDateTime date;
    EXPECT_TRUE(m_picker.GetTime(date));
    EXPECT_TRUE(date == kDate);
}

TEST_F(DatePicker, NullDateMeansNoDate)
{
    EXPECT_TRUE(m_picker.SetTime(WithStatus(COleDateTime::null)));
    COleDateTime date(kDate);
    EXPECT_TRUE(m_picker.GetTime(date));
    EXPECT_EQ(COleDateTime::null, date.GetStatus());
}

TEST_F(DatePicker, InvalidDateIsRefused)
{
    ASSERT_TRUE(m_picker.SetTime(kDate));
    EXPECT_FALSE(m_picker.SetTime(WithStatus(COleDateTime::invalid)));
    COleDateTime date;
    EXPECT_TRUE(m_picker.GetTime(date));
    EXPECT_TRUE(date == kDate);
}

TEST_F(DatePicker, RangeHasOpenAndSetEnds)
{
    const COleDateTime first(2009, 1, 1, 0, 0, 0);
    EXPECT_TRUE(m_picker.SetRange(&first, nullptr));
    COleDateTime low;
    COleDateTime high(kDate);
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN), m_picker.GetRange(&low, &high));
    EXPECT_TRUE(low == first);
    EXPECT_EQ(COleDateTime::null, high.GetStatus());
    const COleDateTime invalid = WithStatus(COleDateTime::invalid);
    EXPECT_FALSE(m_picker.SetRange(&invalid, nullptr));
    EXPECT_EQ(static_cast<DWORD>(GDTR_MIN), m_picker.GetRange(nullptr, nullptr));
}

TEST(DatePickerWithoutWindow, GivesNoDate)
{
    const CDateTimeCtrl picker;
    COleDateTime date(kDate);
    EXPECT_FALSE(picker.GetTime(date));
    EXPECT_NE(COleDateTime::valid, date.GetStatus());
}
