#include "MemoryDc.h"

TEST(Dc, ColoursAndModesReturnTheFormerOnes)
{
    MemoryDc dc;
    EXPECT_EQ(dc.SetTextColor(kRed), kBlack);
    EXPECT_EQ(dc.GetTextColor(), kRed);
    EXPECT_EQ(dc.SetBkColor(kBlue), kWhite);
    EXPECT_EQ(dc.GetBkColor(), kBlue);
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(dc.SetROP2(R2_NOT), R2_COPYPEN);
    EXPECT_EQ(dc.GetROP2(), R2_NOT);
    EXPECT_EQ(dc.SetPolyFillMode(WINDING), ALTERNATE);
    EXPECT_EQ(dc.GetPolyFillMode(), WINDING);
    EXPECT_EQ(dc.SetStretchBltMode(COLORONCOLOR), BLACKONWHITE);
    EXPECT_EQ(dc.GetStretchBltMode(), COLORONCOLOR);
    EXPECT_EQ(dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(TA_LEFT));
    EXPECT_EQ(dc.GetTextAlign(), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(dc.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    EXPECT_EQ(dc.GetArcDirection(), AD_CLOCKWISE);
    EXPECT_EQ(dc.SetTextCharacterExtra(3), 0);
    EXPECT_EQ(dc.GetTextCharacterExtra(), 3);
    EXPECT_EQ(dc.SetBrushOrg(2, 3), CPoint(0, 0));
    EXPECT_EQ(dc.GetBrushOrg(), CPoint(2, 3));
    EXPECT_TRUE(dc.SetMiterLimit(4));
    EXPECT_EQ(dc.GetMiterLimit(), 4);
    dc.SetDCBrushColor(kRed);
    EXPECT_EQ(dc.GetDCBrushColor(), kRed);
    dc.SetDCPenColor(kBlue);
    EXPECT_EQ(dc.GetDCPenColor(), kBlue);
}

TEST(Dc, AttributesAreAskedOfTheAttributeContext)
{
    MemoryDc output;
    MemoryDc attributes;
    CDC dc;
    dc.SetOutputDC(output);
    dc.SetAttribDC(attributes);
    EXPECT_EQ(dc.SetTextColor(kRed), kBlack);
    EXPECT_EQ(::GetTextColor(output), kRed);
    EXPECT_EQ(::GetTextColor(attributes), kRed);
    EXPECT_EQ(dc.SaveDC(), -1);
    dc.SetTextColor(kBlue);
    dc.MoveTo(3, 3);
    dc.LineTo(9, 3);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(9, 3));
    EXPECT_EQ(output.Count(kBlack), 6);
    EXPECT_EQ(attributes.Count(kBlack), 0);
    EXPECT_TRUE(dc.RestoreDC(-1));
    EXPECT_EQ(::GetTextColor(output), kRed);
    EXPECT_EQ(::GetTextColor(attributes), kRed);
    dc.ReleaseAttribDC();
    dc.ReleaseOutputDC();
    EXPECT_EQ(dc.GetSafeHdc(), nullptr);
}
