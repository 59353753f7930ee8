#include "tovuutil/datetime/TovuDate.h"

#include "tovuutil/datetime/detail/Clock.h"

namespace {

constexpr long long kDay = 86400000;

bool inRange(int value, int limit) { return value >= 0 && value < limit; }

// "HH:MM:SS": digits and colons only.
bool isTimeShape(std::string const& text, std::size_t from)
{
    static char const shape[] = "DD:DD:DD";
    if (text.size() - from != sizeof shape - 1)
        return false;
    for (std::size_t i = 0; i < sizeof shape - 1; ++i) {
        char const c = text[from + i];
        if (shape[i] == 'D' ? c < '0' || c > '9' : c != shape[i])
            return false;
    }
    return true;
}

// A duration as SimpleTime counts it; the milliseconds may exceed 32 bits
// when added.
long long durationOf(int hours, int minutes, int seconds, int milliSeconds)
{
    return SimpleTime(hours, minutes, seconds, 0).getValue() + static_cast<long long>(milliSeconds);
}

} // namespace

TovuDate::TovuDate() : date_(0, 0, 0), time_(0, 0, 0, 0) { initNow(); }

TovuDate::TovuDate(SimpleDate const& date, SimpleTime const& time) : date_(date), time_(time) {}

void TovuDate::initNow()
{
    tovu::detail::LocalDateTime const now = tovu::detail::currentLocalDateTime();
    date_ = SimpleDate(now.day, now.month, now.year);
    time_ = SimpleTime(now.hours, now.minutes, now.seconds, now.milliSeconds);
}

bool TovuDate::initFormatD(std::string const& text)
{
    date_ = SimpleDate(0, 0, 0);
    time_ = SimpleTime(0, 0, 0, 0);
    std::string const datePart = text.substr(0, 10);
    bool const withTime = text.size() > 10;
    if (withTime && (text[10] != ' ' || !isTimeShape(text, 11)))
        return false;
    if (!date_.initFormatD(datePart))
        return false;
    if (withTime)
        time_.initFormatT(text.substr(11));
    return true;
}

bool TovuDate::isValid() const
{
    return date_.isValid() && inRange(time_.getHours(), 24) && inRange(time_.getMinutes(), 60) &&
           inRange(time_.getSeconds(), 60) && inRange(time_.getMilliSeconds(), 1000);
}

long long TovuDate::getValue() const
{
    if (!isValid())
        return -1;
    return date_.getDayNumber() * kDay + time_.getValue();
}

bool TovuDate::moveBy(long long milliSeconds)
{
    if (!isValid())
        return false;
    long long const total = time_.getValue() + milliSeconds;
    long long days = total / kDay;
    if (total % kDay < 0)
        --days; // whole days toward the past, the rest within the day
    SimpleDate date = date_;
    if (!date.addDays(static_cast<long>(days)))
        return false;
    date_ = date;
    time_.setTimeValueByMilliSeconds(static_cast<long>(total - days * kDay));
    return true;
}

bool TovuDate::add(int hours, int minutes, int seconds, int milliSeconds)
{
    return moveBy(durationOf(hours, minutes, seconds, milliSeconds));
}

bool TovuDate::subtract(int hours, int minutes, int seconds, int milliSeconds)
{
    return moveBy(-durationOf(hours, minutes, seconds, milliSeconds));
}

long long TovuDate::milliSecondsUntil(TovuDate const& other) const
{
    if (!isValid() || !other.isValid())
        return 0;
    return other.getValue() - getValue();
}

bool TovuDate::operator>(TovuDate const& other) const { return other < *this; }
bool TovuDate::operator>=(TovuDate const& other) const { return !(*this < other); }
bool TovuDate::operator<=(TovuDate const& other) const { return !(other < *this); }
bool TovuDate::operator<(TovuDate const& other) const
{
    return date_ < other.date_ || (date_ == other.date_ && time_ < other.time_);
}
bool TovuDate::operator==(TovuDate const& other) const { return date_ == other.date_ && time_ == other.time_; }
bool TovuDate::operator!=(TovuDate const& other) const { return !(*this == other); }

std::string TovuDate::getFormatted() const { return getFormatted("%d.%m.%Y %H:%M:%S"); }

std::string TovuDate::getFormatted(std::string const& format) const
{
    return time_.getFormatted(date_.getFormatted(format));
}
