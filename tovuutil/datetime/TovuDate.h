#ifndef TOVUUTIL_DATETIME_TOVUDATE_H
#define TOVUUTIL_DATETIME_TOVUDATE_H

#include <string>

#include <tovuutil/datetime/SimpleDate.h>
#include <tovuutil/datetime/SimpleTime.h>

// TovuDate
//
// A local date and time of day with millisecond resolution: a SimpleDate and
// a SimpleTime side by side. It is valid when the date is valid and the time
// in range (hours 0..23, minutes and seconds 0..59, milliseconds 0..999).
// Nothing throws, nothing logs.
//
// Example:
//   TovuDate d;
//   d.initFormatD("31.12.2023 23:30:00");
//   d.add(1, 0, 0, 0);          // 01.01.2024 00:30:00
//   d.getFormatted("%a %d.%m. %H:%M") // "Mo 01.01. 00:30"
class TOVU_API TovuDate {
public:
    // TovuDate()
    //
    // Now (initNow()).
    TovuDate();
    // Stores both unchanged.
    TovuDate(SimpleDate const& date, SimpleTime const& time);
    ~TovuDate() {}

    // The date part, valid or not.
    SimpleDate const& getDate() const { return date_; }
    // The time part, valid or not.
    SimpleTime const& getTime() const { return time_; }
    // Replaces the date part unchecked.
    void setDate(SimpleDate const& date) { date_ = date; }
    // Replaces the time part unchecked.
    void setTime(SimpleTime const& time) { time_ = time; }

    // initNow()
    //
    // The local date and time to the millisecond, from one reading of the
    // clock: a midnight between reading the date and the time cannot pair
    // one day's date with the next day's time.
    void initNow();
    // initFormatD()
    //
    // "DD.MM.YYYY HH:MM:SS" (one blank between) or "DD.MM.YYYY", the latter
    // at 00:00:00.000. The date part is read as SimpleDate::initFormatD, the
    // time part must be digits and colons in that shape; the values are
    // stored unchecked. Any other text sets 0.0.0 00:00:00.000 and the answer
    // is false.
    bool initFormatD(std::string const& text);

    // A valid date and every time field in range, as stated above.
    bool isValid() const;

    // getValue()
    //
    // Milliseconds since 31.12.0000 00:00:00.000 (see
    // SimpleDate::getDayNumber()), the time counted by SimpleTime::getValue();
    // -1 for an invalid date-time.
    long long getValue() const;

    // add(), subtract()
    //
    // Move by a duration given as components; as in SimpleTime, an hour,
    // minute or second out of its range counts as 0 and the milliseconds go
    // in as they are. The whole days that the time carries past midnight move
    // the date (SimpleTime::add's carry). Unlike SimpleTime::subtract, going
    // back past midnight ends on the day before: 01.01.2024 00:30 minus one
    // hour is 31.12.2023 23:30. The answer is false, and nothing changes,
    // when the date-time is invalid or the result would leave the years
    // 1..9999.
    bool add(int hours, int minutes, int seconds, int milliSeconds);
    // Moves back by the duration; the date follows past midnight (see add).
    bool subtract(int hours, int minutes, int seconds, int milliSeconds);

    // milliSecondsUntil()
    //
    // Milliseconds from this date-time to the other, negative when the other
    // is earlier; 0 when either is invalid.
    long long milliSecondsUntil(TovuDate const& other) const;

    // Comparisons of the date, then of the time (the operators of
    // SimpleDate and SimpleTime).
    bool operator>(TovuDate const& other) const;
    // Not earlier: !(*this < other).
    bool operator>=(TovuDate const& other) const;
    // Not later: !(other < *this).
    bool operator<=(TovuDate const& other) const;
    // An earlier date, or the same date and an earlier time.
    bool operator<(TovuDate const& other) const;
    // The same date and the same time.
    bool operator==(TovuDate const& other) const;
    // !(*this == other).
    bool operator!=(TovuDate const& other) const;

    // "%d.%m.%Y %H:%M:%S".
    std::string getFormatted() const;
    // The date's directives first (SimpleDate::getFormatted), then the
    // time's (SimpleTime::getFormatted), each set in its own order.
    // Example: "%d.%m.%Y %T.%X" gives "24.12.2023 18:00:00.000".
    std::string getFormatted(std::string const& format) const;

private:
    bool moveBy(long long milliSeconds);

    SimpleDate date_;
    SimpleTime time_;
};

#endif
