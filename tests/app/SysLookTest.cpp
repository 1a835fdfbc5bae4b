#include <cstring>
#include <gtest/gtest.h>
#include <QorUI/app/Look.h>
#include <QorUI/app/Messages.h>
#include <QorUI/app/SysLook.h>

namespace
{

TEST(SysLook, FontIsTheMessageFont)
{
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = 504;
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, 504, &metrics, 0));
    LOGFONTW font = {};
    ASSERT_NE(0, QorSysLook.m_font.GetLogFont(&font));
    EXPECT_STREQ(metrics.lfMessageFont.lfFaceName, font.lfFaceName);
    EXPECT_EQ(metrics.lfMessageFont.lfHeight, font.lfHeight);
    EXPECT_EQ(metrics.lfMessageFont.lfWeight, font.lfWeight);
}

TEST(SysLook, TwelveColoursFollowTheFontInTheirOrder)
{
    constexpr int kIndexes[] = {COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW,   COLOR_BTNFACE, COLOR_BTNTEXT,
                                COLOR_GRAYTEXT,     COLOR_WINDOWFRAME, COLOR_BTNFACE, COLOR_BTNHIGHLIGHT,
                                COLOR_BTNSHADOW,    COLOR_HIGHLIGHT,   COLOR_WINDOW,  COLOR_WINDOWTEXT};
    const auto* start = reinterpret_cast<const char*>(&QorSysLook);
    EXPECT_EQ(start, reinterpret_cast<const char*>(&QorSysLook.m_font));
    COLORREF colours[12];
    std::memcpy(colours, start + sizeof(CFont), sizeof(colours));
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(::GetSysColor(kIndexes[i]), colours[i]) << "colour " << i;
    EXPECT_EQ(sizeof(CFont) + sizeof(colours), sizeof(QorSysLook));
}

TEST(SysLook, IsNotReadAgainWhenTheSystemColoursChange)
{
    const int index = COLOR_BTNTEXT;
    const COLORREF old = ::GetSysColor(index);
    const COLORREF changed = old ^ RGB(1, 1, 1);
    ASSERT_TRUE(::SetSysColors(1, &index, &changed));
    EXPECT_EQ(old, QorSysLook.m_clrBtnText);
    ::SetSysColors(1, &index, &old);
}

TEST(SysLook, DisabledTextIsGrey)
{
    EXPECT_EQ(::GetSysColor(COLOR_GRAYTEXT), QorSysLook.TextColor(true));
    EXPECT_EQ(::GetSysColor(COLOR_BTNTEXT), QorSysLook.TextColor(false));
}

TEST(Look, HasTheFixedColours)
{
    EXPECT_EQ(RGB(236, 245, 250), QorLook::kDlgBody);
    EXPECT_EQ(RGB(255, 255, 255), QorLook::kDlgCaption);
    EXPECT_EQ(RGB(189, 189, 189), QorLook::kOutline);
    EXPECT_EQ(RGB(186, 210, 234), QorLook::kFrameBack);
    EXPECT_EQ(RGB(128, 128, 128), QorLook::kFlatBorder);
    EXPECT_EQ(RGB(147, 145, 176), QorLook::kTabBorder);
}

TEST(Messages, HaveTheirNumbers)
{
    EXPECT_EQ(WM_USER + 300, WM_DRAWPARENTBACK);
    EXPECT_EQ(WM_USER + 301, WM_QORTRAY_CALLBACK);
    EXPECT_EQ(WM_USER + 302, WM_QORWAIT_END);
    EXPECT_EQ(WM_USER + 303, WM_SHEET_APPLY);
    EXPECT_EQ(WM_USER + 304, WM_QORTRAY_RECREATED);
    EXPECT_EQ(WM_USER + 305, WM_TABWND_SELCHANGE);
    EXPECT_EQ(WM_USER + 306, WM_PANEL_NOTIFY);
    EXPECT_EQ(WM_USER + 400, WM_QORZIP_PROGRESS);
    EXPECT_EQ(0x52C, WM_DRAWPARENTBACK);
}

TEST(Messages, TaskbarCreatedIsTheRegisteredMessage)
{
    EXPECT_EQ(::RegisterWindowMessageW(L"TaskbarCreated"), WM_QOR_TASKBARCREATED);
}

} // namespace
