#include "tovuutil/datetime/SimpleDate.h"

#include "tovuutil/datetime/DateField.h"
#include "tovuutil/datetime/detail/Calendar.h"
#include "tovuutil/datetime/detail/Clock.h"
#include "tovuutil/text/FormatValidator.h"
#include "tovuutil/text/StringUtil.h"

namespace {

// Counts beyond these leave the calendar from any date; refusing them first
// keeps the sums small.
constexpr long kLastDayNumber = 3652059; // 31.12.9999
constexpr long kMonthsInCalendar = 10000 * 12;

char const* const kWeekdays[7] = {"Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag", "Sonntag"};
char const* const kMonths[12] = {"Januar", "Februar", "M\xE4rz",     "April",   "Mai",      "Juni",
                                 "Juli",   "August",  "September", "Oktober", "November", "Dezember"};

// Day numbers count from 01.03.0000 internally: with March first, the leap
// day is the last day of its year and each 400-year era has the same shape.
// The years here are 1..9999, so every value is non-negative.
constexpr long kMarchZeroToDayNumber = 305;

long dayNumberOf(int day, int month, int year)
{
    long const y = month <= 2 ? year - 1 : year;
    long const era = y / 400;
    long const yearOfEra = y - era * 400;
    long const dayOfYear = (153L * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    long const dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - kMarchZeroToDayNumber;
}

struct Civil {
    int day, month, year;
};

Civil civilOf(long dayNumber)
{
    long const z = dayNumber + kMarchZeroToDayNumber;
    long const era = z / 146097;
    long const dayOfEra = z - era * 146097;
    long const yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    long const dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    long const shiftedMonth = (5 * dayOfYear + 2) / 153;
    int const day = static_cast<int>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    int const month = static_cast<int>(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    int const year = static_cast<int>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0));
    return {day, month, year};
}

std::string digits(int value, int n) { return formatNumeric(int2String(value), n); }

// The length-and-shape part of a date-field check: codes 1 and 2 come alone.
bool hasFieldShape(std::list<int> const& codes) { return codes.empty() || codes.front() > 2; }

} // namespace

SimpleDate::SimpleDate() : day_(0), month_(0), year_(0) { initNow(); }

SimpleDate::SimpleDate(int day, int month, int year) : day_(day), month_(month), year_(year) {}

void SimpleDate::initNow()
{
    tovu::detail::LocalDateTime const now = tovu::detail::currentLocalDateTime();
    *this = SimpleDate(now.day, now.month, now.year);
}

bool SimpleDate::initFormatD(std::string const& text)
{
    *this = SimpleDate(0, 0, 0);
    if (!hasFieldShape(checkDateFormatD(text)))
        return false;
    long const value = calcValue4FormatD(text);
    *this = SimpleDate(static_cast<int>(value % 100), static_cast<int>(value / 100 % 100),
                       static_cast<int>(value / 10000));
    return true;
}

bool SimpleDate::initFormatE(std::string const& text)
{
    *this = SimpleDate(0, 0, 0);
    if (!hasFieldShape(checkDateFormatE(text)))
        return false;
    long const value = calcValue4FormatE(text);
    *this = SimpleDate(static_cast<int>(value % 100), static_cast<int>(value / 100 % 100),
                       expandYear(static_cast<int>(value / 10000)));
    return true;
}

bool SimpleDate::initFormatT(std::string const& text, int year)
{
    *this = SimpleDate(0, 0, 0);
    if (!hasFieldShape(checkDateFormatT(text)))
        return false;
    long const value = calcValue4FormatT(text);
    *this = SimpleDate(static_cast<int>(value % 100), static_cast<int>(value / 100), year);
    return true;
}

int SimpleDate::expandYear(int twoDigitYear)
{
    if (twoDigitYear < 0 || twoDigitYear > 99)
        return twoDigitYear;
    return twoDigitYear < 50 ? 2000 + twoDigitYear : 1900 + twoDigitYear;
}

bool SimpleDate::isValid() const
{
    return year_ >= 1 && year_ <= 9999 && day_ >= 1 && day_ <= daysInMonth(month_, year_);
}

bool SimpleDate::isLeapYear(int year) { return tovu::detail::isLeapYear(year); }

int SimpleDate::daysInMonth(int month, int year)
{
    if (month < 1 || month > 12)
        return 0;
    if (month == 2 && !isLeapYear(year))
        return 28;
    return tovu::detail::kMonthLengths[month - 1];
}

long SimpleDate::getValue() const
{
    if (day_ < 0 || day_ > 99 || month_ < 0 || month_ > 99 || year_ < 0 || year_ > 9999)
        return -1;
    return year_ * 10000L + month_ * 100L + day_;
}

long SimpleDate::getDayNumber() const { return isValid() ? dayNumberOf(day_, month_, year_) : 0; }

void SimpleDate::setDayNumber(long dayNumber)
{
    if (dayNumber < 1 || dayNumber > kLastDayNumber) {
        *this = SimpleDate(0, 0, 0);
        return;
    }
    Civil const c = civilOf(dayNumber);
    *this = SimpleDate(c.day, c.month, c.year);
}

SimpleDate SimpleDate::fromDayNumber(long dayNumber)
{
    SimpleDate date(0, 0, 0);
    date.setDayNumber(dayNumber);
    return date;
}

bool SimpleDate::addDays(long days)
{
    if (!isValid() || days < -kLastDayNumber || days > kLastDayNumber)
        return false;
    long const target = getDayNumber() + days;
    if (target < 1 || target > kLastDayNumber)
        return false;
    setDayNumber(target);
    return true;
}

bool SimpleDate::addMonths(long months)
{
    if (!isValid() || months < -kMonthsInCalendar || months > kMonthsInCalendar)
        return false;
    long const target = year_ * 12L + (month_ - 1) + months;
    if (target < 12 || target >= kMonthsInCalendar)
        return false;
    int const year = static_cast<int>(target / 12);
    int const month = static_cast<int>(target % 12) + 1;
    int const last = daysInMonth(month, year);
    *this = SimpleDate(day_ < last ? day_ : last, month, year);
    return true;
}

bool SimpleDate::addYears(long years)
{
    if (years < -kMonthsInCalendar / 12 || years > kMonthsInCalendar / 12)
        return false;
    return addMonths(years * 12);
}

long SimpleDate::daysUntil(SimpleDate const& other) const
{
    if (!isValid() || !other.isValid())
        return 0;
    return other.getDayNumber() - getDayNumber();
}

int SimpleDate::getDayOfWeek() const
{
    // 01.01.0001 (day 1) was a Monday.
    return isValid() ? static_cast<int>((getDayNumber() - 1) % 7) : -1;
}

int SimpleDate::getDayOfYear() const
{
    return isValid() ? static_cast<int>(getDayNumber() - dayNumberOf(1, 1, year_) + 1) : -1;
}

// A week belongs to the year of its Thursday and counts from that year's
// first Thursday.
int SimpleDate::getIsoWeek() const
{
    if (!isValid())
        return -1;
    long const thursday = getDayNumber() - getDayOfWeek() + 3;
    return static_cast<int>((thursday - dayNumberOf(1, 1, civilOf(thursday).year)) / 7 + 1);
}

int SimpleDate::getIsoWeekYear() const
{
    if (!isValid())
        return -1;
    return civilOf(getDayNumber() - getDayOfWeek() + 3).year;
}

bool SimpleDate::operator>(SimpleDate const& other) const { return getValue() > other.getValue(); }
bool SimpleDate::operator>=(SimpleDate const& other) const { return getValue() >= other.getValue(); }
bool SimpleDate::operator<=(SimpleDate const& other) const { return getValue() <= other.getValue(); }
bool SimpleDate::operator<(SimpleDate const& other) const { return getValue() < other.getValue(); }
bool SimpleDate::operator==(SimpleDate const& other) const { return getValue() == other.getValue(); }
bool SimpleDate::operator!=(SimpleDate const& other) const { return getValue() != other.getValue(); }

std::string SimpleDate::getFormatted() const { return getFormatted("%d.%m.%Y"); }

std::string SimpleDate::getFormatted(std::string const& format) const
{
    std::string text = format;
    text = replacePattern(text, "%d", getFormat_d());
    text = replacePattern(text, "%m", getFormat_m());
    text = replacePattern(text, "%Y", getFormat_Y());
    text = replacePattern(text, "%y", getFormat_y());
    text = replacePattern(text, "%j", getFormat_j());
    text = replacePattern(text, "%V", getFormat_V());
    text = replacePattern(text, "%G", getFormat_G());
    text = replacePattern(text, "%a", getFormat_a());
    text = replacePattern(text, "%A", getFormat_A());
    text = replacePattern(text, "%b", getFormat_b());
    text = replacePattern(text, "%B", getFormat_B());
    return text;
}

std::string SimpleDate::getFormat_d() const { return digits(day_, 2); }

std::string SimpleDate::getFormat_m() const { return digits(month_, 2); }

std::string SimpleDate::getFormat_Y() const { return digits(year_, 4); }

std::string SimpleDate::getFormat_y() const { return digits(year_ % 100, 2); }

std::string SimpleDate::getFormat_j() const { return isValid() ? digits(getDayOfYear(), 3) : std::string(); }

std::string SimpleDate::getFormat_V() const { return isValid() ? digits(getIsoWeek(), 2) : std::string(); }

std::string SimpleDate::getFormat_G() const { return isValid() ? digits(getIsoWeekYear(), 4) : std::string(); }

std::string SimpleDate::getFormat_a() const { return getFormat_A().substr(0, 2); }

std::string SimpleDate::getFormat_A() const { return isValid() ? kWeekdays[getDayOfWeek()] : std::string(); }

std::string SimpleDate::getFormat_b() const { return getFormat_B().substr(0, 3); }

std::string SimpleDate::getFormat_B() const
{
    return month_ >= 1 && month_ <= 12 ? kMonths[month_ - 1] : std::string();
}
