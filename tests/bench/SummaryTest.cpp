#include <bench/Summary.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace
{

constexpr double kMicro = 1e-6;

TEST(Spread, TellsTheMiddleAndTheEnds)
{
    const Spread odd = SpreadOf({5, 1, 4});
    EXPECT_EQ(4, odd.median);
    EXPECT_EQ(1, odd.least);
    EXPECT_EQ(5, odd.most);
    EXPECT_EQ(3, SpreadOf({4, 9, 2, 1}).median);
    EXPECT_EQ(7, SpreadOf({7}).median);
}

TEST(Spread, OfNothingIsZero)
{
    const Spread none = SpreadOf({});
    EXPECT_EQ(0, none.median);
    EXPECT_EQ(0, none.least);
    EXPECT_EQ(0, none.most);
}

TEST(CaseTimes, TakeBothSidesOfTheirCaseAndNoOther)
{
    CaseTimes times("list, 1000 rows");
    EXPECT_TRUE(times.Add("list, 1000 rows/ours", 2));
    EXPECT_FALSE(times.HasStock());
    EXPECT_TRUE(times.Add("list, 1000 rows/stock", 8));
    EXPECT_TRUE(times.HasStock());
    for (const char* other : {"list/ours", "list, 1000 rows", "list, 1000 rows/", "list, 1000 rows/other",
                              "list, 1000 rows/ours/ours", "a list, 1000 rows/ours"}) {
        EXPECT_FALSE(times.Add(other, 100)) << other;
    }
    EXPECT_EQ(2, times.Ours().most);
    EXPECT_EQ(8, times.Stock().most);
    EXPECT_EQ(0.25, times.Ratio().median);
}

TEST(CaseTimes, RatioIsThatOfTheMediansAndItsRangeThatOfTheRounds)
{
    CaseTimes times("box");
    for (const auto& [ours, stock] : {std::pair(1.0, 10.0), std::pair(2.0, 8.0), std::pair(3.0, 15.0)}) {
        times.Add("box/ours", ours);
        times.Add("box/stock", stock);
    }
    const Spread ratio = times.Ratio();
    EXPECT_DOUBLE_EQ(0.2, ratio.median);
    EXPECT_DOUBLE_EQ(0.1, ratio.least);
    EXPECT_DOUBLE_EQ(0.25, ratio.most);
}

TEST(CaseTimes, OneDisturbedRoundLeavesTheMedianRatio)
{
    CaseTimes times("box");
    for (const double ours : {18.0, 60.0, 18.0, 18.0, 18.0}) {
        times.Add("box/ours", ours);
        times.Add("box/stock", 100);
    }
    EXPECT_DOUBLE_EQ(0.18, times.Ratio().median);
    EXPECT_DOUBLE_EQ(0.60, times.Ratio().most);
}

TEST(CaseTimes, AreDividedAmongTheParts)
{
    CaseTimes times("chart", 500);
    times.Add("chart/ours", 1000);
    EXPECT_EQ(2, times.Ours().median);
    EXPECT_EQ(0, times.Ratio().median);
}

TEST(TimeText, HasThreeDigitsAndTheUnitThatFits)
{
    EXPECT_EQ("2.50 s", TimeText(2.5));
    EXPECT_EQ("12.3 ms", TimeText(0.01234));
    EXPECT_EQ("456 us", TimeText(456.2 * kMicro));
    EXPECT_EQ("1.00 us", TimeText(kMicro));
    EXPECT_EQ("20.0 ns", TimeText(0.02 * kMicro));
    EXPECT_EQ("0.50 ns", TimeText(0.0005 * kMicro));
    EXPECT_EQ("0.00 ns", TimeText(0));
}

TEST(TimeText, NeverShowsAThousandOfAUnit)
{
    EXPECT_EQ("1.00 ms", TimeText(999.7 * kMicro));
    EXPECT_EQ("10.0 us", TimeText(9.997 * kMicro));
    EXPECT_EQ("100 us", TimeText(99.97 * kMicro));
    EXPECT_EQ("1.00 us", TimeText(0.9996 * kMicro));
}

TEST(Rows, ShowTimesAndRatioWithTheirRanges)
{
    CaseTimes times("box");
    for (const auto& [ours, stock] : {std::pair(1.0, 10.0), std::pair(2.0, 8.0), std::pair(3.0, 15.0)}) {
        times.Add("box/ours", ours * kMicro);
        times.Add("box/stock", stock * kMicro);
    }
    EXPECT_EQ("| box | 2.00 us (1.00 us to 3.00 us) | 10.0 us (8.00 us to 15.0 us) | 0.20 (0.10 to 0.25) |",
              MarkdownRow(times));
    const std::string row = TextRow(times);
    for (const char* title : {"Case", "Ours", "Stock", "Ratio"}) {
        EXPECT_NE(std::string::npos, TextHeading().find(title)) << title;
    }
    EXPECT_EQ(TextHeading().find("Ours"), row.find("2.00 us"));
    EXPECT_EQ(TextHeading().find("Stock"), row.find("10.0 us"));
    EXPECT_EQ(TextHeading().find("Ratio"), row.find("0.20"));
}

TEST(Rows, OfACaseWithoutStockHaveNoRatio)
{
    CaseTimes times("chart");
    times.Add("chart/ours", kMicro);
    EXPECT_EQ("| chart | 1.00 us (1.00 us to 1.00 us) | - | - |", MarkdownRow(times));
}

} // namespace
