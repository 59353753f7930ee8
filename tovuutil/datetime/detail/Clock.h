#ifndef TOVUUTIL_DATETIME_DETAIL_CLOCK_H
#define TOVUUTIL_DATETIME_DETAIL_CLOCK_H

namespace tovu {
namespace detail {

// The local time of day; the milliseconds are read after the rest.
void currentTimeOfDay(int& hours, int& minutes, int& seconds, int& milliSeconds);

} // namespace detail
} // namespace tovu

#endif
