#include "tovuutil/datetime/SimpleTime.h"

#include <cstdint>
#include <cstdlib>

#include "tovuutil/datetime/detail/Clock.h"
#include "tovuutil/text/FormatValidator.h"
#include "tovuutil/text/StringUtil.h"

namespace {

constexpr long long kDay = 86400000;

bool inRange(int value, int limit) { return value >= 0 && value < limit; }

// Seconds since midnight; a component out of its range counts as 0.
long secondsOf(int hours, int minutes, int seconds)
{
    long result = inRange(seconds, 60) ? seconds : 0;
    if (inRange(minutes, 60))
        result += minutes * 60L;
    if (inRange(hours, 24))
        result += hours * 3600L;
    return result;
}

long long milliSecondsOf(int hours, int minutes, int seconds, int milliSeconds)
{
    return secondsOf(hours, minutes, seconds) * 1000LL + milliSeconds;
}

std::string digits(int value, int n) { return formatNumeric(int2String(value), n); }

} // namespace

SimpleTime::SimpleTime() : milliSeconds_(0), seconds_(0), minutes_(0), hours_(0) { initNow(); }

SimpleTime::SimpleTime(int hours, int minutes, int seconds, int milliSeconds)
    : milliSeconds_(milliSeconds), seconds_(seconds), minutes_(minutes), hours_(hours)
{
}

void SimpleTime::initNow() { tovu::detail::currentTimeOfDay(hours_, minutes_, seconds_, milliSeconds_); }

void SimpleTime::initFormatT(std::string const& text)
{
    std::string copy = text;
    seconds_ = string2Int(extractRightToken(copy, ':'));
    minutes_ = string2Int(extractRightToken(copy, ':'));
    hours_ = string2Int(extractRightToken(copy, 2));
    milliSeconds_ = 0;
}

long SimpleTime::calcSecondsOfTime() const { return secondsOf(hours_, minutes_, seconds_); }

long SimpleTime::getTimeValueSeconds() const { return calcSecondsOfTime(); }

long SimpleTime::getValue() const
{
    return static_cast<long>(milliSecondsOf(hours_, minutes_, seconds_, milliSeconds_));
}

long SimpleTime::getTimeValueMilliSeconds() const { return getValue(); }

void SimpleTime::setFromMilliSeconds(long long v)
{
    hours_ = minutes_ = seconds_ = milliSeconds_ = 0;
    if (v < 0 || v >= kDay)
        return;
    hours_ = static_cast<int>(v / 3600000);
    minutes_ = static_cast<int>(v % 3600000 / 60000);
    seconds_ = static_cast<int>(v % 60000 / 1000);
    milliSeconds_ = static_cast<int>(v % 1000);
}

void SimpleTime::setTimeValueBySeconds(long seconds)
{
    // The product wraps in 32 bits like the original arithmetic, without
    // signed overflow.
    std::uint32_t const wrapped = static_cast<std::uint32_t>(static_cast<std::uint64_t>(seconds) * 1000u);
    std::int32_t const v = static_cast<std::int32_t>(wrapped);
    setFromMilliSeconds(v);
    milliSeconds_ = 0;
}

void SimpleTime::setTimeValueByMilliSeconds(long ms) { setFromMilliSeconds(ms); }

int SimpleTime::add(int hours, int minutes, int seconds, int milliSeconds)
{
    long long const v = getValue() + milliSecondsOf(hours, minutes, seconds, milliSeconds);
    setFromMilliSeconds(v % kDay);
    return static_cast<int>(v / kDay);
}

int SimpleTime::subtract(int hours, int minutes, int seconds, int milliSeconds)
{
    long long const v = getValue() - milliSecondsOf(hours, minutes, seconds, milliSeconds);
    long long const a = v < 0 ? -v : v;
    setFromMilliSeconds(a % kDay);
    return static_cast<int>(a / kDay) * (v < 0 ? -1 : 1);
}

bool SimpleTime::operator>(SimpleTime const& other) const { return getValue() > other.getValue(); }
bool SimpleTime::operator>=(SimpleTime const& other) const { return getValue() >= other.getValue(); }
bool SimpleTime::operator<=(SimpleTime const& other) const { return getValue() <= other.getValue(); }
bool SimpleTime::operator<(SimpleTime const& other) const { return getValue() < other.getValue(); }
bool SimpleTime::operator==(SimpleTime const& other) const { return getValue() == other.getValue(); }
bool SimpleTime::operator!=(SimpleTime const& other) const { return getValue() != other.getValue(); }

SimpleTime SimpleTime::operator+(SimpleTime const& other) const
{
    SimpleTime result(*this);
    result += other;
    return result;
}

SimpleTime SimpleTime::operator-(SimpleTime const& other) const
{
    SimpleTime result(*this);
    result -= other;
    return result;
}

SimpleTime& SimpleTime::operator+=(SimpleTime const& other)
{
    add(other.hours_, other.minutes_, other.seconds_, other.milliSeconds_);
    return *this;
}

SimpleTime& SimpleTime::operator-=(SimpleTime const& other)
{
    subtract(other.hours_, other.minutes_, other.seconds_, other.milliSeconds_);
    return *this;
}

std::string SimpleTime::getFormatted() const { return getFormat_T(); }

std::string SimpleTime::getFormatted(std::string const& format) const
{
    std::string text = format;
    text = replacePattern(text, "%H", getFormat_H());
    text = replacePattern(text, "%I", getFormat_I());
    text = replacePattern(text, "%M", getFormat_M());
    text = replacePattern(text, "%p", getFormat_p());
    text = replacePattern(text, "%r", getFormat_r());
    text = replacePattern(text, "%R", getFormat_R());
    text = replacePattern(text, "%S", getFormat_S());
    text = replacePattern(text, "%T", getFormat_T());
    text = replacePattern(text, "%X", getFormat_X());
    return text;
}

std::string SimpleTime::getFormat_H() const { return digits(hours_, 2); }

std::string SimpleTime::getFormat_I() const
{
    int hours = hours_;
    if (hours == 0)
        hours = 12;
    else if (hours >= 13 && hours <= 23)
        hours -= 12;
    return digits(hours, 2);
}

std::string SimpleTime::getFormat_M() const { return digits(minutes_, 2); }

std::string SimpleTime::getFormat_p() const { return hours_ >= 1 && hours_ <= 12 ? "am" : "pm"; }

std::string SimpleTime::getFormat_r() const
{
    return getFormat_I() + ":" + getFormat_M() + ":" + getFormat_S() + " " + getFormat_p();
}

std::string SimpleTime::getFormat_R() const { return getFormat_H() + ":" + getFormat_M(); }

std::string SimpleTime::getFormat_S() const { return digits(seconds_, 2); }

std::string SimpleTime::getFormat_T() const { return getFormat_R() + ":" + getFormat_S(); }

std::string SimpleTime::getFormat_X() const { return digits(milliSeconds_, 3); }
