#ifndef TOVUUTIL_DATETIME_SIMPLETIME_H
#define TOVUUTIL_DATETIME_SIMPLETIME_H

#include <string>

#include <tovuutil/export.h>

// SimpleTime
//
// A time of day with millisecond resolution. The setters store any value
// unchecked; when values are combined, a component out of its range (seconds
// and minutes 0..59, hours 0..23) counts as 0 and the milliseconds field goes
// in as it is. A count outside one day sets 00:00:00.000. Nothing throws.
//
// add() carries whole days; subtract() deliberately does not wrap before
// midnight: 00:30 minus 01:00 gives 00:30 (the absolute difference) and 0.
//
// Example:
//   SimpleTime t(23, 30, 0, 0);
//   t.add(1, 0, 0, 0);          // returns 1, t is 00:30:00.000
//   t.getFormatted("%H.%M Uhr") // "00.30 Uhr"
class TOVU_API SimpleTime {
public:
    // SimpleTime()
    //
    // The current local time of day (initNow()).
    SimpleTime();
    // Stores the four values unchanged.
    SimpleTime(int hours, int minutes, int seconds, int milliSeconds);
    ~SimpleTime() {}

    // The hours field as stored.
    int getHours() const { return hours_; }
    // The minutes field as stored.
    int getMinutes() const { return minutes_; }
    // The seconds field as stored.
    int getSeconds() const { return seconds_; }
    // The milliseconds field as stored.
    int getMilliSeconds() const { return milliSeconds_; }
    // Stores the hours unchecked.
    void setHours(int hours) { hours_ = hours; }
    // Stores the minutes unchecked.
    void setMinutes(int minutes) { minutes_ = minutes; }
    // Stores the seconds unchecked.
    void setSeconds(int seconds) { seconds_ = seconds; }
    // Stores the milliseconds unchecked.
    void setMilliSeconds(int milliSeconds) { milliSeconds_ = milliSeconds; }

    // initNow()
    //
    // Hours, minutes and seconds from the local time, then the milliseconds
    // from a second reading of the clock; a second boundary crossed between the
    // two readings is accepted.
    void initNow();
    // initFormatT()
    //
    // The time at the end of a text, ":" separating the parts: the seconds
    // right of the last ":", the minutes right of the ":" before, the hours
    // from the last two characters of what remains; the milliseconds become 0.
    // Unreadable parts give 0.
    // Example: "12:34:56" and "2024-01-01 12:34:56" both give 12:34:56.000.
    void initFormatT(std::string const& text);

    // calcSecondsOfTime(), getTimeValueSeconds()
    //
    // Seconds since midnight of hours, minutes and seconds; each out of its
    // range counts as 0. Example: SimpleTime(10, 75, 0, 0) gives 36000.
    long calcSecondsOfTime() const;
    // The same as calcSecondsOfTime().
    long getTimeValueSeconds() const;
    // getValue(), getTimeValueMilliSeconds()
    //
    // Milliseconds since midnight: the seconds above * 1000 plus the
    // milliseconds field as it is (1500 or -3 go in unchanged).
    long getValue() const;
    // The same as getValue().
    long getTimeValueMilliSeconds() const;
    // setTimeValueBySeconds(), setTimeValueByMilliSeconds()
    //
    // All four fields from a count; a count outside 0..86399999 ms sets
    // 00:00:00.000. For setTimeValueBySeconds the product seconds * 1000 wraps
    // in 32 bits, as it always has, and the milliseconds become 0.
    // Example: setTimeValueByMilliSeconds(86399999) gives 23:59:59.999.
    void setTimeValueBySeconds(long seconds);
    // All four fields from a count of milliseconds, as above.
    void setTimeValueByMilliSeconds(long ms);

    // add(), subtract()
    //
    // Add or subtract a duration given as components (out-of-range hours,
    // minutes and seconds count as 0) and return the whole days carried,
    // truncated toward zero. add() keeps the remainder within the day (a
    // negative remainder sets 00:00:00.000); subtract() keeps the absolute
    // difference and signs the carry.
    // Example: SimpleTime(0, 30, 0, 0).subtract(1, 0, 0, 0) returns 0 and
    //          leaves 00:30:00.000.
    int add(int hours, int minutes, int seconds, int milliSeconds);
    // Subtracts a duration, as described above; the signed carry.
    int subtract(int hours, int minutes, int seconds, int milliSeconds);

    // Comparisons of getValue() of both sides.
    bool operator>(SimpleTime const& other) const;
    // getValue() >= other.getValue().
    bool operator>=(SimpleTime const& other) const;
    // getValue() <= other.getValue().
    bool operator<=(SimpleTime const& other) const;
    // getValue() < other.getValue().
    bool operator<(SimpleTime const& other) const;
    // getValue() == other.getValue(): fields out of range may compare equal.
    bool operator==(SimpleTime const& other) const;
    // getValue() != other.getValue().
    bool operator!=(SimpleTime const& other) const;
    // The other's four components through add() or subtract(); the carry is
    // dropped. + and - work on a copy.
    SimpleTime operator+(SimpleTime const& other) const;
    // A copy, other subtracted through subtract().
    SimpleTime operator-(SimpleTime const& other) const;
    // Adds other through add().
    SimpleTime& operator+=(SimpleTime const& other);
    // Subtracts other through subtract().
    SimpleTime& operator-=(SimpleTime const& other);

    // getFormat_T().
    std::string getFormatted() const;
    // Replaces, in this order, "%H", "%I", "%M", "%p", "%r", "%R", "%S", "%T"
    // and "%X" by the texts below; other text, unknown directives too, stays.
    // Numbers are zero-filled on the left, a minus sign kept in front.
    // Example: 09:05 with "%H.%M Uhr" gives "09.05 Uhr".
    std::string getFormatted(std::string const& format) const;
    // Hours, two digits.
    std::string getFormat_H() const;
    // 12-hour clock: 0 gives 12, 13..23 give 1..11.
    std::string getFormat_I() const;
    // Minutes, two digits.
    std::string getFormat_M() const;
    // "am" for 1..12 o'clock, else "pm": noon is "am" and midnight "pm", as
    // hosts have always shown it.
    std::string getFormat_p() const;
    // %I:%M:%S %p
    std::string getFormat_r() const;
    // %H:%M
    std::string getFormat_R() const;
    // Seconds, two digits.
    std::string getFormat_S() const;
    // %H:%M:%S
    std::string getFormat_T() const;
    // Milliseconds, three digits.
    std::string getFormat_X() const;

private:
    void setFromMilliSeconds(long long v);

    int milliSeconds_;
    int seconds_;
    int minutes_;
    int hours_;
};

#endif
