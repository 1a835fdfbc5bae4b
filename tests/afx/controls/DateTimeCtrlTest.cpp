#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>

#include <afxcmn.h>
#include <afxwin.h>

namespace
{
constexpr UINT kId = 77;
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
const CRect kPlace(10, 10, 210, 40);
} // namespace

TEST(DateTime, TimeIsSetAndRead)
{
    ts::AfxHost host;
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(kChild | DTS_SHOWNONE, kPlace, &host, kId));
    EXPECT_TRUE(picker.SetFormat(TEXT("HH:mm")));
    SYSTEMTIME time = {2024, 2, 4, 29, 13, 14, 15, 0};
    EXPECT_TRUE(picker.SetTime(&time));
    SYSTEMTIME read = {};
    EXPECT_EQ(picker.GetTime(&read), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(read.wDay, 29);
    EXPECT_EQ(read.wHour, 13);
    EXPECT_TRUE(picker.SetTime());
    EXPECT_EQ(picker.GetTime(&read), static_cast<DWORD>(GDT_NONE));
}

TEST(DateTime, RangeAndColours)
{
    ts::AfxHost host;
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.CreateEx(0, kChild, kPlace, &host, kId));
    SYSTEMTIME range[2] = {{2024, 1, 0, 1, 0, 0, 0, 0}, {2024, 12, 0, 31, 0, 0, 0, 0}};
    EXPECT_TRUE(picker.SetRange(GDTR_MIN | GDTR_MAX, range));
    SYSTEMTIME read[2] = {};
    EXPECT_EQ(picker.GetRange(read), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(read[1].wMonth, 12);
    picker.SetMonthCalColor(MCSC_MONTHBK, RGB(1, 2, 3));
    EXPECT_EQ(picker.GetMonthCalColor(MCSC_MONTHBK), RGB(1, 2, 3));
}

TEST(DateTime, AutomationDatesAreTaken)
{
    ts::AfxHost host;
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(kChild | DTS_SHOWNONE, kPlace, &host, kId));
    EXPECT_TRUE(picker.SetTime(COleDateTime(2024, 2, 29, 13, 14, 15)));
    COleDateTime read;
    EXPECT_TRUE(picker.GetTime(read));
    EXPECT_EQ(read.GetDay(), 29);
    COleDateTime none;
    none.SetStatus(COleDateTime::null);
    EXPECT_TRUE(picker.SetTime(none));
    EXPECT_TRUE(picker.GetTime(read));
    EXPECT_EQ(read.GetStatus(), COleDateTime::null);
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_FALSE(picker.SetTime(invalid));
    EXPECT_FALSE(CDateTimeCtrl().GetTime(read));
}
