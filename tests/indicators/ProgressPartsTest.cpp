#include <QorUI/indicators/ProgressParts.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

#include <climits>

namespace
{

TEST(ProgressFraction, IsThePassedPartOfTheRange)
{
    EXPECT_DOUBLE_EQ(0.0, QorProgress::Fraction(10, 10, 30));
    EXPECT_DOUBLE_EQ(0.25, QorProgress::Fraction(15, 10, 30));
    EXPECT_DOUBLE_EQ(1.0, QorProgress::Fraction(30, 10, 30));
    EXPECT_DOUBLE_EQ(1.5, QorProgress::Fraction(40, 10, 30));
}

TEST(ProgressFraction, RangeWithoutWidthIsNothingDone)
{
    EXPECT_DOUBLE_EQ(0.0, QorProgress::Fraction(5, 5, 5));
    EXPECT_DOUBLE_EQ(0.0, QorProgress::Fraction(9, 5, 5));
}

TEST(ProgressFraction, WholeRangeOfIntegersDoesNotOverflow)
{
    EXPECT_DOUBLE_EQ(1.0, QorProgress::Fraction(INT_MAX, INT_MIN, INT_MAX));
    EXPECT_NEAR(0.5, QorProgress::Fraction(0, INT_MIN, INT_MAX), 1e-6);
}

TEST(ProgressFraction, FillIsCutOffToWholePixels)
{
    const CRect area(2, 2, 98, 18);
    EXPECT_EQ(CRect(2, 2, 2, 18), QorProgress::Filled(area, 0));
    EXPECT_EQ(CRect(2, 2, 33, 18), QorProgress::Filled(area, 0.33)); // 31.68
    EXPECT_EQ(area, QorProgress::Filled(area, 1));
    EXPECT_EQ(area, QorProgress::Filled(area, 1.5));
    EXPECT_EQ(CRect(2, 2, 2, 18), QorProgress::Filled(area, -1));
    EXPECT_EQ(CRect(33, 2, 98, 18), QorProgress::Empty(area, CRect(2, 2, 33, 18)));
}

TEST(ProgressCell, BarStandsBehindOneToThreeCharacters)
{
    for (const wchar_t* text : {L"5|x", L"45|x", L"150|x"}) {
        EXPECT_TRUE(QorProgress::ParseCell(text).valid) << ts::ToUtf8(text);
    }
    for (const wchar_t* text : {L"|x", L"1234|x", L"45", L""}) {
        EXPECT_FALSE(QorProgress::ParseCell(text).valid) << ts::ToUtf8(text);
    }
}

TEST(ProgressCell, HasPercentAndLabel)
{
    const QorProgress::Cell cell = QorProgress::ParseCell(L"45|Copying | more");
    EXPECT_EQ(45, cell.percent);
    EXPECT_STREQ(L"Copying | more", cell.label);
    EXPECT_EQ(0, QorProgress::ParseCell(L"x|y").percent);
    EXPECT_TRUE(QorProgress::ParseCell(L"7|").label.IsEmpty());
}

TEST(ProgressCell, FillIsLimitedToTheBar)
{
    const CRect area(10, 2, 60, 12);
    EXPECT_EQ(CRect(10, 2, 33, 12), QorProgress::FilledCell(area, 45)); // 22.5 is rounded
    EXPECT_EQ(area, QorProgress::FilledCell(area, 150));
    EXPECT_EQ(CRect(10, 2, 10, 12), QorProgress::FilledCell(area, -9));
}

} // namespace
