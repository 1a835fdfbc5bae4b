#include <QorUI/datetime/ClockHands.h>
#include <tests/support/Support.h>

using namespace QorHands;

namespace
{

const CPoint kCenter(80, 80);

std::vector<int> Ticks(HandRun run, int from)
{
    std::vector<int> times;
    while (run.step != 0 && times.size() < 50) {
        from = NextTime(run, from);
        times.push_back(from);
    }
    return times;
}

HandRun Begun(int from, int to, bool forward)
{
    HandRun run;
    BeginRun(run, from, to, forward);
    return run;
}

} // namespace

TEST(ClockHands, EndPointsAtTheQuarters)
{
    EXPECT_EQ(CPoint(80, 20), EndPoint(kCenter, 0.75, MinuteAngle(0)));
    EXPECT_EQ(CPoint(140, 80), EndPoint(kCenter, 0.75, MinuteAngle(15)));
    EXPECT_EQ(CPoint(80, 140), EndPoint(kCenter, 0.75, MinuteAngle(30)));
    EXPECT_EQ(CPoint(20, 80), EndPoint(kCenter, 0.75, MinuteAngle(45)));
}

TEST(ClockHands, EndPointsRoundToTheNearestPixel)
{
    // 80 + 60 * sin 36 = 115.27, 80 - 60 * cos 36 = 31.46; 80 + 60 * sin 6 = 86.27, 80 - 60 * cos 6 = 20.33
    EXPECT_EQ(CPoint(115, 31), EndPoint(kCenter, 0.75, MinuteAngle(6)));
    EXPECT_EQ(CPoint(86, 20), EndPoint(kCenter, 0.75, MinuteAngle(1)));
    EXPECT_EQ(3, ToPixel(2.5));
    EXPECT_EQ(2, ToPixel(2.49));
}

TEST(ClockHands, LengthIsOfTheSmallerRadius)
{
    EXPECT_EQ(CPoint(50, 2), EndPoint({50, 8}, 0.75, 0));
    EXPECT_EQ(CPoint(8, 44), EndPoint({8, 50}, 0.75, 0));
}

TEST(ClockHands, HourHandMovesWithTheMinutes)
{
    EXPECT_NEAR(3.1415926535 / 2, HourAngle(3, 0), 1e-9);
    EXPECT_NEAR(3.1415926535 / 4, HourAngle(1, 30), 1e-9);
    EXPECT_EQ(CPoint(128, 80), EndPoint(kCenter, kHourRatio, HourAngle(3, 0)));
}

TEST(ClockHands, MinuteHandIsHitThreePixelsBesideIt)
{
    for (const int beside : {-3, 0, 3}) {
        EXPECT_TRUE(OnMinuteHand(kCenter, 0, {80 + beside, 40})) << beside;
        EXPECT_TRUE(OnMinuteHand(kCenter, 30, {80 + beside, 120})) << beside;
        EXPECT_TRUE(OnMinuteHand(kCenter, 15, {120, 80 + beside})) << beside;
        EXPECT_TRUE(OnMinuteHand(kCenter, 45, {40, 80 + beside})) << beside;
    }
    for (const int beside : {-4, 4}) {
        EXPECT_FALSE(OnMinuteHand(kCenter, 0, {80 + beside, 40})) << beside;
        EXPECT_FALSE(OnMinuteHand(kCenter, 15, {120, 80 + beside})) << beside;
    }
}

TEST(ClockHands, SlantedHandIsHitAlongItsRun)
{
    // At minute 10 the hand goes from (80, 80) to (132, 50).
    EXPECT_TRUE(OnMinuteHand(kCenter, 10, {106, 65}));
    EXPECT_TRUE(OnMinuteHand(kCenter, 10, {106, 68}));
    EXPECT_FALSE(OnMinuteHand(kCenter, 10, {106, 69}));
    EXPECT_TRUE(OnMinuteHand(kCenter, 10, {106, 62}));
    EXPECT_FALSE(OnMinuteHand(kCenter, 10, {106, 61}));
    // At minute 35 it goes to (50, 132).
    EXPECT_TRUE(OnMinuteHand(kCenter, 35, {65, 106}));
    EXPECT_TRUE(OnMinuteHand(kCenter, 35, {62, 106}));
    EXPECT_FALSE(OnMinuteHand(kCenter, 35, {61, 106}));
}

TEST(ClockHands, DiagonalIsMeasuredAcross)
{
    // At minute 10 the hand is 4 pixels right of (85, 75), but only 2 below it.
    EXPECT_FALSE(OnMinuteHand(kCenter, 10, {85, 75}));
    EXPECT_TRUE(OnMinuteHand(kCenter, 10, {86, 75}));
}

TEST(ClockHands, HandIsHitBetweenItsEndsOnly)
{
    EXPECT_TRUE(OnMinuteHand(kCenter, 0, {80, 20}));
    EXPECT_FALSE(OnMinuteHand(kCenter, 0, {80, 19}));
    EXPECT_FALSE(OnMinuteHand(kCenter, 0, {80, 81}));
    EXPECT_FALSE(OnMinuteHand(kCenter, 10, {79, 80}));
    EXPECT_FALSE(OnMinuteHand(kCenter, 10, {133, 50}));
    EXPECT_TRUE(OnMinuteHand(kCenter, 10, kCenter));
    EXPECT_FALSE(OnMinuteHand(kCenter, 0, {130, 60}));
    EXPECT_FALSE(OnMinuteHand(kCenter, 15, {100, 40}));
}

TEST(ClockMinutes, AxesAreExact)
{
    EXPECT_EQ(0u, MinuteAt(kCenter, {80, 10}));
    EXPECT_EQ(30u, MinuteAt(kCenter, {80, 150}));
    EXPECT_EQ(15u, MinuteAt(kCenter, {150, 80}));
    EXPECT_EQ(45u, MinuteAt(kCenter, {10, 80}));
    EXPECT_EQ(0u, MinuteAt(kCenter, kCenter));
}

TEST(ClockMinutes, QuadrantsCountFromTheirAxis)
{
    EXPECT_EQ(7u, MinuteAt(kCenter, {120, 40}));
    EXPECT_EQ(22u, MinuteAt(kCenter, {120, 120}));
    EXPECT_EQ(37u, MinuteAt(kCenter, {40, 120}));
    EXPECT_EQ(52u, MinuteAt(kCenter, {40, 40}));
    EXPECT_EQ(0u, MinuteAt(kCenter, {81, 10}));
    EXPECT_EQ(59u, MinuteAt(kCenter, {79, 10}));
    EXPECT_EQ(14u, MinuteAt(kCenter, {150, 79}));
    EXPECT_EQ(15u, MinuteAt(kCenter, {150, 81}));
}

TEST(ClockMinutes, EveryMinuteComesBackFromItsDirection)
{
    for (UINT minute = 0; minute < 60; ++minute) {
        const CPoint point = EndPoint({1000, 1000}, 0.9, MinuteAngle(minute) + 0.05);
        EXPECT_EQ(minute, MinuteAt({1000, 1000}, point));
    }
}

TEST(ClockMinutes, PassingTwelveCarries)
{
    EXPECT_EQ(1, HourCarry(0, 59));
    EXPECT_EQ(1, HourCarry(15, 45));
    EXPECT_EQ(0, HourCarry(16, 45));
    EXPECT_EQ(0, HourCarry(15, 44));
    EXPECT_EQ(-1, HourCarry(59, 0));
    EXPECT_EQ(-1, HourCarry(45, 15));
    EXPECT_EQ(0, HourCarry(45, 16));
    EXPECT_EQ(0, HourCarry(44, 15));
    EXPECT_EQ(0, HourCarry(5, 3));
    EXPECT_EQ(0, HourCarry(50, 55));
}

TEST(ClockRun, ForwardsTakesTenSteps)
{
    const HandRun run = Begun(60, 160, true);
    EXPECT_EQ(10, run.step);
    EXPECT_FALSE(run.wrap);
    EXPECT_EQ((std::vector{70, 80, 90, 100, 110, 120, 130, 140, 150, 160}), Ticks(run, 60));
}

TEST(ClockRun, BackwardsTakesNegativeSteps)
{
    const HandRun run = Begun(200, 100, false);
    EXPECT_EQ(-10, run.step);
    EXPECT_EQ(10u, Ticks(run, 200).size());
    EXPECT_EQ(100, Ticks(run, 200).back());
}

TEST(ClockRun, ForwardsPassesMidnight)
{
    const HandRun run = Begun(23 * 60 + 50, 10, true);
    EXPECT_EQ(2, run.step);
    EXPECT_TRUE(run.wrap);
    EXPECT_EQ((std::vector{1432, 1434, 1436, 1438, 0, 2, 4, 6, 8, 10}), Ticks(run, 1430));
}

TEST(ClockRun, BackwardsPassesMidnight)
{
    const HandRun run = Begun(60, 23 * 60, false);
    EXPECT_EQ(-12, run.step);
    EXPECT_TRUE(run.wrap);
    EXPECT_EQ((std::vector{48, 36, 24, 12, 0, 1428, 1416, 1404, 1392, 1380}), Ticks(run, 60));
}

TEST(ClockRun, ShortDistanceTakesOneStep)
{
    const HandRun run = Begun(60, 65, true);
    EXPECT_EQ(10, run.step);
    EXPECT_EQ((std::vector{65}), Ticks(run, 60));
    EXPECT_EQ(-10, Begun(65, 60, false).step);
    EXPECT_EQ((std::vector{60}), Ticks(Begun(65, 60, false), 65));
}

TEST(ClockRun, ShortDistanceAcrossMidnightStops)
{
    EXPECT_EQ((std::vector{2}), Ticks(Begun(1438, 2, true), 1438));
    EXPECT_EQ((std::vector{1438}), Ticks(Begun(2, 1438, false), 2));
}

TEST(ClockRun, EveryRunEndsAtItsTarget)
{
    for (int from = 0; from < 1440; from += 37) {
        for (int to = 0; to < 1440; to += 41) {
            for (const bool forward : {true, false}) {
                const std::vector<int> ticks = Ticks(Begun(from, to, forward), from);
                ASSERT_LE(ticks.size(), 20u) << from << " to " << to;
                ASSERT_EQ(from == to, ticks.empty());
                ASSERT_EQ(to, ticks.empty() ? from : ticks.back()) << from << " to " << to;
                for (const int time : ticks) {
                    ASSERT_TRUE(time >= 0 && time < 1440);
                }
            }
        }
    }
}

TEST(ClockRun, WithoutADistanceOnlyTheTargetChanges)
{
    HandRun run = {100, 5, TRUE};
    EXPECT_FALSE(BeginRun(run, 60, 60, true));
    EXPECT_EQ(60, run.target);
    EXPECT_EQ(5, run.step);
    EXPECT_TRUE(run.wrap);
}
