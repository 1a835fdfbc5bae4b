#pragma once

#include <QorUI/app/module/QorUIDef.h>

#include <array>

/** @file
 * The names that the month calendar shows. Asking for them sets locales of the C run-time, and leaves them set.
 */

/** Months from January on. */
using QorMonthNames = std::array<CString, 12>;

/** First characters of the weekdays in the order that they are shown in. */
using QorDayInitials = std::array<CString, 7>;

/**
 * The full month names of a locale, which becomes the locale of the C run-time.
 * @param runtimeLocale the C run-time's name of it; empty for the user's
 * @param systemLocale the system's name of it, asked when the C run-time does not know it; null for the user's
 */
QorMonthNames QorGetMonthNames(const char* runtimeLocale, LPCWSTR systemLocale);

/**
 * The initials of the weekdays. They are English whatever the user's locale; English becomes the locale of the C
 * run-time's dates.
 * @param firstDayOfWeek 1 for Sunday to 7 for Saturday
 */
QorDayInitials QorGetDayInitials(int firstDayOfWeek);

/** The user's first day of the week, 1 for Sunday to 7 for Saturday. @param locale LOCALE_USER_DEFAULT */
int QorGetFirstDayOfWeek(LCID locale);

/** As above, from the system's value: 0 for Monday to 6 for Sunday. What is none makes it Sunday. */
int QorFirstDayOfWeekOf(int systemValue);
