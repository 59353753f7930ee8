#ifndef TOVUUTIL_DATETIME_DETAIL_CLOCK_H
#define TOVUUTIL_DATETIME_DETAIL_CLOCK_H

namespace tovu {
namespace detail {

// The local time of day; the milliseconds are read after the rest.
void currentTimeOfDay(int& hours, int& minutes, int& seconds, int& milliSeconds);

// The local date and time from one reading of the clock, so that the date
// and the time of day always belong together. Months run 1..12.
struct LocalDateTime {
    int year, month, day;
    int hours, minutes, seconds, milliSeconds;
};
LocalDateTime currentLocalDateTime();

} // namespace detail
} // namespace tovu

#endif
