#include "Checks.h"

#include <atltypes.h>

TEST(CPoint, ConstructsFromEveryKind)
{
    EXPECT_TRUE(CPoint() == CPoint(0, 0));
    EXPECT_TRUE(CPoint(POINT{1, 2}) == CPoint(1, 2));
    EXPECT_TRUE(CPoint(SIZE{3, 4}) == CPoint(3, 4));
    EXPECT_TRUE(CPoint(static_cast<LPARAM>(MAKELPARAM(-5, 6))) == CPoint(-5, 6));
}

TEST(CPoint, Arithmetic)
{
    CPoint pt(10, 20);
    pt.Offset(1, 2);
    pt.Offset(POINT{1, 1});
    pt.Offset(SIZE{-2, -3});
    EXPECT_EQ(CPoint(10, 20), pt);
    pt += SIZE{1, 2};
    pt -= POINT{3, 4};
    EXPECT_EQ(CPoint(8, 18), pt);
    pt += POINT{2, 2};
    pt -= SIZE{1, 1};
    EXPECT_EQ(CPoint(9, 19), pt);
    EXPECT_EQ(CPoint(-9, -19), -pt);
    EXPECT_EQ(CSize(4, 9), pt - CPoint(5, 10));
    EXPECT_EQ(CPoint(14, 29), pt + CPoint(5, 10));
    EXPECT_EQ(CPoint(10, 20), pt + CSize(1, 1));
    EXPECT_EQ(CPoint(8, 18), pt - CSize(1, 1));
    pt.SetPoint(7, 8);
    EXPECT_TRUE(pt == (POINT{7, 8}));
    EXPECT_TRUE(pt != (POINT{7, 9}));
}

TEST(CSize, ConstructsFromEveryKind)
{
    EXPECT_TRUE(CSize() == CSize(0, 0));
    EXPECT_TRUE(CSize(SIZE{1, 2}) == CSize(1, 2));
    EXPECT_TRUE(CSize(POINT{3, 4}) == CSize(3, 4));
    EXPECT_TRUE(CSize(static_cast<DWORD>(MAKELONG(-5, 6))) == CSize(-5, 6));
}

TEST(CSize, Arithmetic)
{
    CSize size(4, 5);
    size += SIZE{1, 1};
    size -= SIZE{2, 3};
    EXPECT_EQ(CSize(3, 3), size);
    EXPECT_EQ(CSize(4, 5), size + CSize(1, 2));
    EXPECT_EQ(CSize(2, 1), size - CSize(1, 2));
    EXPECT_EQ(CSize(-3, -3), -size);
    EXPECT_EQ(CPoint(13, 23), size + CPoint(10, 20));
    EXPECT_EQ(CPoint(-7, -17), size - CPoint(10, 20));
    EXPECT_TRUE(size != CSize(3, 4));
    const CRect rect(1, 2, 3, 4);
    EXPECT_EQ(CRect(4, 5, 6, 7), size + &rect);
    EXPECT_EQ(CRect(-2, -1, 0, 1), size - &rect);
}

TEST(CRect, ConstructsFromEveryKind)
{
    const RECT rect = {1, 2, 3, 4};
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect(rect) == CRect(1, 2, 3, 4));
    EXPECT_TRUE(CRect(&rect) == rect);
    EXPECT_EQ(CRect(1, 2, 11, 22), CRect(CPoint(1, 2), CSize(10, 20)));
    EXPECT_EQ(CRect(1, 2, 10, 20), CRect(CPoint(1, 2), CPoint(10, 20)));
}

TEST(CRect, Measures)
{
    CRect rect(1, 2, 11, 23);
    EXPECT_EQ(10, rect.Width());
    EXPECT_EQ(21, rect.Height());
    EXPECT_EQ(CSize(10, 21), rect.Size());
    EXPECT_EQ(CPoint(6, 12), rect.CenterPoint());
    rect.TopLeft() = CPoint(3, 4);
    rect.BottomRight().x = 30;
    EXPECT_EQ(CRect(3, 4, 30, 23), rect);
    const CRect& constant = rect;
    EXPECT_EQ(CPoint(30, 23), constant.BottomRight());
}

TEST(CRect, EmptyNullAndHit)
{
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
    const CRect rect(0, 0, 10, 10);
    EXPECT_TRUE(rect.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(rect.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(10, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 10)));
}

TEST(CRect, ServesAsPointerForTheSystem)
{
    CRect rect;
    ::SetRect(rect, 1, 2, 3, 4);
    const CRect copy(rect);
    EXPECT_TRUE(::EqualRect(copy, rect));
}

TEST(CRect, InflateAndDeflate)
{
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(CRect(9, 8, 21, 22), rect);
    rect.DeflateRect(SIZE{1, 2});
    EXPECT_EQ(CRect(10, 10, 20, 20), rect);
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(CRect(9, 8, 23, 24), rect);
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_EQ(CRect(10, 10, 20, 20), rect);
    const CRect margins(1, 2, 3, 4);
    rect.InflateRect(&margins);
    rect -= &margins;
    EXPECT_EQ(CRect(10, 10, 20, 20), rect);
    EXPECT_EQ(CRect(9, 8, 23, 24), rect + &margins);
    EXPECT_EQ(CRect(11, 12, 17, 16), rect - &margins);
    rect.InflateRect(SIZE{2, 3});
    rect.DeflateRect(2, 3);
    rect.DeflateRect(&margins);
    EXPECT_EQ(CRect(11, 12, 17, 16), rect);
}

TEST(CRect, Moves)
{
    CRect rect(1, 2, 11, 22);
    rect.OffsetRect(1, 1);
    rect.OffsetRect(POINT{1, 1});
    rect.OffsetRect(SIZE{-2, -2});
    rect.MoveToX(5);
    rect.MoveToY(6);
    EXPECT_EQ(CRect(5, 6, 15, 26), rect);
    rect.MoveToXY(0, 1);
    EXPECT_EQ(CRect(0, 1, 10, 21), rect);
    rect.MoveToXY(CPoint(2, 3));
    rect += POINT{1, 1};
    rect -= SIZE{3, 4};
    EXPECT_EQ(CRect(0, 0, 10, 20), rect);
    rect += SIZE{2, 2};
    rect -= POINT{1, 1};
    EXPECT_EQ(CRect(1, 1, 11, 21), rect);
    EXPECT_EQ(CRect(2, 3, 12, 23), rect + CPoint(1, 2));
    EXPECT_EQ(CRect(0, -1, 10, 19), rect - CPoint(1, 2));
    EXPECT_EQ(CRect(2, 3, 12, 23), rect + CSize(1, 2));
    EXPECT_EQ(CRect(0, -1, 10, 19), rect - CSize(1, 2));
    EXPECT_EQ(CRect(2, 3, 12, 23), CPoint(1, 2) + &rect);
    EXPECT_EQ(CRect(0, -1, 10, 19), CPoint(1, 2) - &rect);
}

TEST(CRect, NormalizeSwapsSides)
{
    CRect rect(20, 30, 10, 15);
    rect.NormalizeRect();
    EXPECT_EQ(CRect(10, 15, 20, 30), rect);
    rect.SwapLeftRight();
    EXPECT_EQ(CRect(20, 15, 10, 30), rect);
}

TEST(CRect, SetOperations)
{
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 15, 15);
    CRect rect;
    EXPECT_TRUE(rect.IntersectRect(a, b));
    EXPECT_EQ(CRect(5, 5, 10, 10), rect);
    EXPECT_TRUE(rect.UnionRect(a, b));
    EXPECT_EQ(CRect(0, 0, 15, 15), rect);
    EXPECT_TRUE(rect.SubtractRect(a, CRect(0, 0, 10, 4)));
    EXPECT_EQ(CRect(0, 4, 10, 10), rect);
    EXPECT_FALSE(rect.IntersectRect(a, CRect(20, 20, 30, 30)));
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_EQ(CRect(5, 5, 10, 10), a & b);
    EXPECT_EQ(CRect(0, 0, 15, 15), a | b);
    rect = a;
    rect &= b;
    EXPECT_EQ(CRect(5, 5, 10, 10), rect);
    rect |= a;
    EXPECT_EQ(a, rect);
}

TEST(CRect, AssignsComparesAndScales)
{
    const RECT plain = {2, 4, 6, 8};
    CRect rect;
    rect = plain;
    EXPECT_TRUE(rect == plain);
    EXPECT_TRUE(rect.EqualRect(&plain));
    EXPECT_TRUE(rect != CRect(2, 4, 6, 9));
    EXPECT_EQ(CRect(3, 6, 9, 12), rect.MulDiv(3, 2));
    rect.CopyRect(CRect(1, 1, 2, 2));
    EXPECT_EQ(CRect(1, 1, 2, 2), rect);
    rect.SetRect(CPoint(3, 3), CPoint(4, 4));
    EXPECT_EQ(CRect(3, 3, 4, 4), rect);
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
}
