#include <QorUI/lists/HdrLayout.h>

#include <gtest/gtest.h>

#include <afxwin.h>

namespace
{

TEST(HdrLayout, CentreIsTestedBeforeRight)
{
    EXPECT_EQ(0x8924u, QorHdr::TextFormat(HDF_LEFT));
    EXPECT_EQ(0x8925u, QorHdr::TextFormat(HDF_CENTER));
    EXPECT_EQ(0x8926u, QorHdr::TextFormat(HDF_RIGHT));
    EXPECT_EQ(0x8925u, QorHdr::TextFormat(HDF_CENTER | HDF_RIGHT));
}

TEST(HdrLayout, TextKeepsSixPixelsOnBothSides)
{
    EXPECT_EQ(CRect(106, 0, 194, 20), CRect(QorHdr::TextRect({100, 0, 200, 20}, false, false)));
}

TEST(HdrLayout, SortedColumnKeepsEighteenPixelsForTheArrow)
{
    EXPECT_EQ(CRect(106, 0, 176, 20), CRect(QorHdr::TextRect({100, 0, 200, 20}, false, true)));
}

TEST(HdrLayout, PressedTextMovesRightAndDown)
{
    EXPECT_EQ(CRect(107, 2, 195, 20), CRect(QorHdr::TextRect({100, 0, 200, 20}, true, false)));
}

TEST(HdrLayout, ArrowStandsSixPixelsFromTheRight)
{
    EXPECT_EQ(CRect(188, 8, 194, 11), CRect(QorHdr::ArrowRect({100, 0, 200, 20})));
    EXPECT_EQ(CRect(188, 11, 194, 14), CRect(QorHdr::ArrowRect({100, 2, 200, 23})));
}

} // namespace
