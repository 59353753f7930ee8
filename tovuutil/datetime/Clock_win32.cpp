#include "tovuutil/datetime/detail/Clock.h"

#include <sys/timeb.h>
#include <ctime>

namespace tovu {
namespace detail {

void currentTimeOfDay(int& hours, int& minutes, int& seconds, int& milliSeconds)
{
    std::time_t const now = std::time(nullptr);
    std::tm local{};
    localtime_s(&local, &now);
    hours = local.tm_hour;
    minutes = local.tm_min;
    seconds = local.tm_sec;
    struct _timeb precise;
    _ftime(&precise);
    milliSeconds = precise.millitm;
}

LocalDateTime currentLocalDateTime()
{
    struct _timeb precise;
    _ftime(&precise);
    std::time_t const seconds = precise.time;
    std::tm local{};
    localtime_s(&local, &seconds);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
            local.tm_min,         local.tm_sec,     precise.millitm};
}

} // namespace detail
} // namespace tovu
