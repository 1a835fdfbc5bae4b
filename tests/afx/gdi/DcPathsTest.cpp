#include "MemoryDc.h"

TEST(Draw, PathsAreStrokedAndFilled)
{
    MemoryDc dc;
    CBrush brush(kRed);
    CBrush* former = dc.SelectObject(&brush);
    auto square = [&](int x) {
        dc.BeginPath();
        dc.MoveTo(x, 0);
        dc.LineTo(x + 9, 0);
        dc.LineTo(x + 9, 9);
        dc.LineTo(x, 9);
        dc.CloseFigure();
        dc.EndPath();
    };
    square(0);
    EXPECT_EQ(dc.GetPath(nullptr, nullptr, 0), 4);
    EXPECT_TRUE(dc.FillPath());
    EXPECT_EQ(dc.Count(kRed), 81);
    square(20);
    EXPECT_TRUE(dc.StrokePath());
    EXPECT_EQ(dc.Count(kBlack), 36);
    square(20);
    EXPECT_TRUE(dc.StrokeAndFillPath());
    EXPECT_GE(dc.Count(kRed), 81 + 64);
    square(0);
    EXPECT_TRUE(dc.FlattenPath());
    EXPECT_TRUE(dc.AbortPath());
    EXPECT_FALSE(dc.FillPath());
    square(0);
    EXPECT_TRUE(dc.SelectClipPath(RGN_COPY));
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 9, 9));
    dc.SelectObject(former);
}
