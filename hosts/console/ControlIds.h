#pragma once

/** @file
 * Ids of the controls of the main window and of each page.
 */

#include <QorUI/QorUI.h>

namespace ids::frame
{
constexpr UINT kPageList = 2000;
}

namespace ids::buttons
{
constexpr UINT kFirstLive = 2201;
constexpr UINT kLivePush = kFirstLive;
constexpr UINT kLiveCommand = 2202;
constexpr UINT kLiveCheck = 2203;
constexpr UINT kLiveRadioFirst = 2204;
constexpr UINT kLiveRadioLast = 2206;
constexpr UINT kLiveBitmap = 2207;
constexpr UINT kResult = 2208;
} // namespace ids::buttons

namespace ids::links
{
constexpr UINT kAddress = 3001;
constexpr UINT kSet = 3002;
constexpr UINT kOpen = 3003;
constexpr UINT kLink = 3004;
constexpr UINT kUnderlined = 3005;
constexpr UINT kVisited = 3006;
constexpr UINT kAutoSize = 3007;
constexpr UINT kLabel = 3008;
constexpr UINT kResult = 3009;
constexpr UINT kClickLabel = 3010;
} // namespace ids::links

namespace ids::layout
{
constexpr UINT kOpen = 2301;
constexpr UINT kResult = 2302;
} // namespace ids::layout

namespace ids::messages
{
constexpr UINT kKinds = QOR_MSG_YESNO + 1; // of boxes, each with a radio button
constexpr UINT kText = 2401;
constexpr UINT kKindFirst = 2402;
constexpr UINT kTopmost = kKindFirst + kKinds;
constexpr UINT kAutoClose = kTopmost + 1;
constexpr UINT kErrorCode = kTopmost + 2;
constexpr UINT kShow = kTopmost + 3;
constexpr UINT kResult = kTopmost + 4;
} // namespace ids::messages

namespace ids::drawing
{
constexpr UINT kLess = 2501;
constexpr UINT kMore = 2502;
} // namespace ids::drawing

namespace ids::account
{
constexpr UINT kName = 2601;
constexpr UINT kPassword = 2602;
constexpr UINT kLogon = 2603;
constexpr UINT kLogoff = 2604;
constexpr UINT kUser = 2605;
constexpr UINT kStore = 2606;
} // namespace ids::account

namespace ids::edits
{
constexpr UINT kPlain = 2701;
constexpr UINT kName = 2702;
constexpr UINT kNameState = 2703;
constexpr UINT kSecret = 2704;
constexpr UINT kHours = 2705;
constexpr UINT kDays = 2706;
constexpr UINT kNumber = 2707;
constexpr UINT kNumbers = 2708;
constexpr UINT kLog = 2709;
constexpr UINT kAddLine = 2710;
constexpr UINT kAddWarning = 2711;
constexpr UINT kAddLink = 2712;
constexpr UINT kClear = 2713;
} // namespace ids::edits

namespace ids::pickers
{
constexpr UINT kKind = 2801;
constexpr UINT kKindData = 2802;
constexpr UINT kFixed = 2803;
constexpr UINT kFree = 2804;
constexpr UINT kHotKey = 2805;
constexpr UINT kDate = 2806;
constexpr UINT kTime = 2807;
constexpr UINT kAddress = 2808;
constexpr UINT kSearch = 2809;
constexpr UINT kTexts = 2810;
constexpr UINT kChecks = 2811;
constexpr UINT kDrag = 2812;
constexpr UINT kDragOn = 2813;
constexpr UINT kAdd = 2814;
constexpr UINT kDelete = 2815;
constexpr UINT kChecked = 2816;
constexpr UINT kUp = 2817;
constexpr UINT kDown = 2818;
} // namespace ids::pickers

namespace ids::calendar
{
constexpr UINT kCalendar = 2601;
constexpr UINT kGridFirst = 2602;
constexpr UINT kGridLast = 2604;
constexpr UINT kDaysFirst = 2605;
constexpr UINT kDaysLast = 2607;
constexpr UINT kWeekFirst = 2608;
constexpr UINT kWeekLast = 2609;
constexpr UINT kMarks = 2610;
constexpr UINT kEarlier = 2611;
constexpr UINT kLater = 2612;
constexpr UINT kToday = 2613;
constexpr UINT kResult = 2614;
constexpr UINT kPrevious = 2615;
constexpr UINT kNext = 2616;
constexpr UINT kLonger = 2617;
} // namespace ids::calendar

namespace ids::clock
{
constexpr UINT kClock = 2701;
constexpr UINT kHour = 2702;
constexpr UINT kMinute = 2703;
constexpr UINT kSet = 2704;
constexpr UINT kForward = 2705;
constexpr UINT kBackward = 2706;
constexpr UINT kNow = 2707;
constexpr UINT kTime = 2708;
constexpr UINT kLog = 2709;
} // namespace ids::clock

namespace ids::list
{
constexpr UINT kList = 2701;
constexpr UINT kChecks = 2702;
constexpr UINT kFill = 2703;
constexpr UINT kRemove = 2704;
constexpr UINT kState = 2705;
constexpr UINT kOrder = 2706;
} // namespace ids::list

namespace ids::progress
{
constexpr UINT kPercent = 2701;
constexpr UINT kFiles = 2702;
constexpr UINT kSilent = 2703;
constexpr UINT kList = 2704;
constexpr UINT kRun = 2705;
constexpr UINT kStop = 2706;
constexpr UINT kReset = 2707;
constexpr UINT_PTR kTimer = 7; // that moves the bars
} // namespace ids::progress

namespace ids::info
{
constexpr UINT kChart = 2701;
constexpr UINT kRing = 2702;
constexpr UINT kBars = 2703;
constexpr UINT kSnapshots = 2704;
constexpr UINT kInfo = 2705;
constexpr UINT kStatus = 2706;
constexpr UINT kTip = 2707;
} // namespace ids::info
