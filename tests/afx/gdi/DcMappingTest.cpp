#include "MemoryDc.h"

namespace
{
constexpr int kDensityPerInch = 2540;
} // namespace

TEST(Dc, MappingMovesAndScales)
{
    MemoryDc dc;
    EXPECT_EQ(dc.SetMapMode(MM_ANISOTROPIC), MM_TEXT);
    EXPECT_EQ(dc.GetMapMode(), MM_ANISOTROPIC);
    dc.SetWindowExt(100, 100);
    EXPECT_EQ(dc.GetWindowExt(), CSize(100, 100));
    dc.SetViewportExt(CSize(200, 300));
    EXPECT_EQ(dc.GetViewportExt(), CSize(200, 300));
    EXPECT_EQ(dc.SetViewportOrg(5, 7), CPoint(0, 0));
    EXPECT_EQ(dc.OffsetViewportOrg(1, 1), CPoint(5, 7));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(6, 8));
    EXPECT_EQ(dc.SetWindowOrg(10, 10), CPoint(0, 0));
    EXPECT_EQ(dc.OffsetWindowOrg(1, 2), CPoint(10, 10));
    EXPECT_EQ(dc.GetWindowOrg(), CPoint(11, 12));
    CPoint point(11, 12);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(6, 8));
    dc.DPtoLP(&point);
    EXPECT_EQ(point, CPoint(11, 12));
    CSize size(10, 10);
    dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(20, 30));
    dc.DPtoLP(&size);
    EXPECT_EQ(size, CSize(10, 10));
    CRect rect(11, 12, 21, 22);
    dc.LPtoDP(static_cast<LPRECT>(rect));
    EXPECT_EQ(rect, CRect(6, 8, 26, 38));
}

TEST(Dc, ScalingTheExtentsReturnsTheFormerOnes)
{
    MemoryDc dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(100, 100);
    dc.SetViewportExt(50, 50);
    EXPECT_EQ(dc.ScaleWindowExt(2, 1, 3, 1), CSize(100, 100));
    EXPECT_EQ(dc.GetWindowExt(), CSize(200, 300));
    EXPECT_EQ(dc.ScaleViewportExt(1, 5, 1, 10), CSize(50, 50));
    EXPECT_EQ(dc.GetViewportExt(), CSize(10, 5));
}

TEST(Dc, HimetricIsHundredthsOfAMillimetre)
{
    MemoryDc dc;
    const int density = dc.GetDeviceCaps(LOGPIXELSX);
    SIZE size = {density, density};
    dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(size.cx, kDensityPerInch);
    dc.HIMETRICtoDP(&size);
    EXPECT_EQ(size.cx, density);
    dc.LPtoHIMETRIC(&size);
    EXPECT_EQ(size.cy, kDensityPerInch);
    dc.HIMETRICtoLP(&size);
    EXPECT_EQ(size.cy, density);
}
