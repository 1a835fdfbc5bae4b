#include <QorUI/inputs/ComboLook.h>

#include <gtest/gtest.h>

#include <afxwin.h>

namespace
{

TEST(ComboLayout, PartsShareOneColumn)
{
    const QorComboParts parts = QorComboLayout({0, 0, 120, 21}, 16);
    EXPECT_EQ(CRect(0, 0, 103, 21), CRect(parts.text));
    EXPECT_EQ(CRect(102, 0, 120, 21), CRect(parts.button));
    EXPECT_EQ(CRect(104, 2, 118, 19), CRect(parts.face));
}

TEST(ComboLayout, ArrowIsSixByThreeInTheFace)
{
    const QorComboParts parts = QorComboLayout({0, 0, 120, 21}, 16);
    EXPECT_EQ(CPoint(107, 9), CPoint(parts.corner[0]));
    EXPECT_EQ(CPoint(113, 9), CPoint(parts.corner[1]));
    EXPECT_EQ(CPoint(110, 12), CPoint(parts.corner[2]));
}

TEST(ComboLayout, ArrowOfAnOddFaceRoundsDown)
{
    const QorComboParts parts = QorComboLayout({0, 0, 121, 24}, 17);
    EXPECT_EQ(CRect(104, 2, 119, 22), CRect(parts.face));
    EXPECT_EQ(CPoint(107, 10), CPoint(parts.corner[0]));
}

} // namespace
