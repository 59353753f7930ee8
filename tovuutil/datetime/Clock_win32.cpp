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

} // namespace detail
} // namespace tovu
