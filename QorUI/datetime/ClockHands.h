#pragma once

/** @file
 * Hands and times of the clock, worked out without a window. Points in pixels from the dial's top left corner.
 */

#include <QorUI/app/module/QorUIDef.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace QorHands
{

inline constexpr double kPi = 3.1415926535;
inline constexpr double kQuarterTurn = 1.57079632675;
inline constexpr double kFullTurn = 6.283185307;
inline constexpr double kHourRatio = 0.6;    ///< length of the hour hand, of the dial's radius
inline constexpr double kMinuteRatio = 0.75; ///< length of the minute hand
inline constexpr int kGrip = 3;              ///< the minute hand is hit so far beside it
inline constexpr int kDayMinutes = 24 * 60;
inline constexpr int kTicks = 10; ///< timer ticks of an animation

/** Angle of the hour hand in radians clockwise from twelve o'clock. */
inline double HourAngle(UINT hour, UINT minute)
{
    return (minute / 60.0 + hour) / 12 * kPi * 2;
}

inline double MinuteAngle(UINT minute)
{
    return minute / 60.0 * kPi * 2;
}

/** To the nearest pixel, halves upwards. */
inline int ToPixel(double value)
{
    return static_cast<int>((value * 10 + 5) / 10);
}

/** Where a hand ends. @param ratio of its length to the dial's radius */
inline CPoint EndPoint(CPoint center, double ratio, double angle)
{
    const double length = (std::min)(center.x, center.y) * ratio;
    return {ToPixel(center.x + std::sin(angle) * length), ToPixel(center.y - std::cos(angle) * length)};
}

/** Whether a value lies between the two ends; ends that are equal set no bound. */
constexpr bool Between(int value, int one, int other)
{
    return one == other || (value >= (std::min)(one, other) && value <= (std::max)(one, other));
}

/** Whether the hand at a coordinate is close enough to the mouse. */
inline bool Grips(int mouse, double hand)
{
    return std::abs(std::floor(hand + 0.5) - mouse) <= kGrip;
}

/** Whether a point is on the minute hand. */
inline bool OnMinuteHand(CPoint center, UINT minute, CPoint point)
{
    const double angle = MinuteAngle(minute);
    const CPoint end = EndPoint(center, kMinuteRatio, angle);
    if (!Between(point.x, center.x, end.x) || !Between(point.y, center.y, end.y)) {
        return false;
    }
    if (std::abs(point.x - center.x) <= std::abs(point.y - center.y)) {
        return Grips(point.x, std::tan(angle) * (center.y - point.y) + center.x);
    }
    return Grips(point.y, 1 / std::tan(angle) * (center.x - point.x) + center.y);
}

/** The minute that the direction of a point stands for. */
inline UINT MinuteAt(CPoint center, CPoint point)
{
    if (point.x == center.x) {
        return point.y > center.y ? 30 : 0;
    }
    if (point.y == center.y) {
        return point.x > center.x ? 15 : 45;
    }
    double angle = std::atan(static_cast<double>(point.y - center.y) / (point.x - center.x));
    if (angle < 0) {
        angle += kPi;
    }
    if (angle > kQuarterTurn) {
        angle -= kQuarterTurn;
    }
    const UINT minute = static_cast<UINT>(angle / kFullTurn * 60);
    if (point.x > center.x) {
        return point.y < center.y ? minute : minute + 15;
    }
    return point.y > center.y ? minute + 30 : minute + 45;
}

/** How a minute after another one changes the hour: 1 or -1 when the hand went past twelve, else 0. */
constexpr int HourCarry(UINT minute, UINT lastMinute)
{
    if (minute < 16 && lastMinute >= 45 && lastMinute <= 59) {
        return 1;
    }
    return minute >= 45 && minute <= 59 && lastMinute < 16 ? -1 : 0;
}

/** A run of the hands to another time, in minutes since midnight. */
struct HandRun
{
    int target = 0;
    int step = 0;      ///< minutes per tick, negative for backwards; 0 while the hands stand still
    BOOL wrap = FALSE; ///< midnight has still to be passed
};

/** Begins a run; without a distance only the target changes. @return whether the hands have to move */
constexpr bool BeginRun(HandRun& run, int from, int to, bool forward)
{
    run.target = to;
    int distance = forward ? to - from : from - to;
    if (distance == 0) {
        return false;
    }
    run.wrap = distance < 0;
    if (distance < 0) {
        distance += kDayMinutes;
    }
    const int step = distance / kTicks == 0 ? kTicks : distance / kTicks;
    run.step = forward ? step : -step;
    return true;
}

/** Moves a run on by a tick. @return the time to show; the run's step is 0 when that is the target */
constexpr int NextTime(HandRun& run, int from)
{
    const bool forward = run.step > 0;
    int next = from + run.step;
    if (run.wrap && (forward ? next >= kDayMinutes : next < 0)) {
        next += forward ? -kDayMinutes : kDayMinutes;
        run.wrap = FALSE;
    }
    if (!run.wrap && (forward ? next >= run.target : next <= run.target)) {
        run.step = 0;
        return run.target;
    }
    return next;
}

} // namespace QorHands
