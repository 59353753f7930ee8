#include "tovuutil/datetime/detail/Clock.h"

#include <ctime>

namespace tovu {
namespace detail {

void currentTimeOfDay(int& hours, int& minutes, int& seconds, int& milliSeconds)
{
    std::time_t const now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    hours = local.tm_hour;
    minutes = local.tm_min;
    seconds = local.tm_sec;
    timespec precise{};
    clock_gettime(CLOCK_REALTIME, &precise);
    milliSeconds = static_cast<int>(precise.tv_nsec / 1000000);
}

LocalDateTime currentLocalDateTime()
{
    timespec precise{};
    clock_gettime(CLOCK_REALTIME, &precise);
    std::time_t const seconds = precise.tv_sec;
    std::tm local{};
    localtime_r(&seconds, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
            local.tm_min,         local.tm_sec,     static_cast<int>(precise.tv_nsec / 1000000)};
}

} // namespace detail
} // namespace tovu
