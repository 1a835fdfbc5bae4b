#include "MemoryDc.h"

TEST(Font, PointFontIsMeasuredForTheScreen)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, TEXT("Tahoma")));
    LOGFONT description = {};
    ASSERT_NE(font.GetLogFont(&description), 0);
    CClientDC screen(nullptr);
    EXPECT_EQ(description.lfHeight, -::MulDiv(120, screen.GetDeviceCaps(LOGPIXELSY), 720));
    EXPECT_STREQ(description.lfFaceName, TEXT("Tahoma"));
}

TEST(Font, PointFontIndirectKeepsTheOtherMembers)
{
    LOGFONT wanted = {};
    wanted.lfHeight = 90;
    wanted.lfWeight = FW_BOLD;
    wanted.lfUnderline = TRUE;
    CFont font;
    ASSERT_TRUE(font.CreatePointFontIndirect(&wanted));
    LOGFONT description = {};
    font.GetLogFont(&description);
    EXPECT_EQ(description.lfWeight, FW_BOLD);
    EXPECT_TRUE(description.lfUnderline);
    EXPECT_EQ(wanted.lfHeight, 90);
    EXPECT_FALSE(CFont().CreatePointFontIndirect(nullptr));
    EXPECT_FALSE(CFont().CreateFontIndirect(nullptr));
}

TEST(Font, CreateFontTakesEveryMember)
{
    CFont font;
    ASSERT_TRUE(font.CreateFont(-20, 0, 0, 0, FW_BOLD, TRUE, FALSE, TRUE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, TEXT("Tahoma")));
    LOGFONT description = {};
    font.GetLogFont(&description);
    EXPECT_EQ(description.lfHeight, -20);
    EXPECT_TRUE(description.lfItalic);
    EXPECT_TRUE(description.lfStrikeOut);
    EXPECT_FALSE(description.lfUnderline);
}
