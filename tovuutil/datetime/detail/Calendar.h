#ifndef TOVUUTIL_DATETIME_DETAIL_CALENDAR_H
#define TOVUUTIL_DATETIME_DETAIL_CALENDAR_H

// The Gregorian rules shared by the date-field checks and SimpleDate.
namespace tovu {
namespace detail {

constexpr bool isLeapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

// February at 29; the caller picks 28 for a common year.
constexpr int kMonthLengths[12] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

} // namespace detail
} // namespace tovu

#endif
