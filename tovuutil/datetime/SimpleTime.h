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
    // The current local time of day.
    SimpleTime();
    SimpleTime(int hours, int minutes, int seconds, int milliSeconds);
    ~SimpleTime() {}

    int getHours() const { return hours_; }
    int getMinutes() const { return minutes_; }
    int getSeconds() const { return seconds_; }
    int getMilliSeconds() const { return milliSeconds_; }
    void setHours(int hours) { hours_ = hours; }
    void setMinutes(int minutes) { minutes_ = minutes; }
    void setSeconds(int seconds) { seconds_ = seconds; }
    void setMilliSeconds(int milliSeconds) { milliSeconds_ = milliSeconds; }

    void initNow();
    // The time at the end of a text: "12:34:56" and "2024-01-01 12:34:56" both
    // give 12:34:56.000; unreadable parts give 0.
    void initFormatT(std::string const& text);

    // Seconds since midnight of hours, minutes and seconds.
    long calcSecondsOfTime() const;
    long getTimeValueSeconds() const;
    // Milliseconds since midnight: seconds * 1000 plus the milliseconds field.
    long getValue() const;
    long getTimeValueMilliSeconds() const;
    // seconds * 1000 is computed in 32 bits, as it always was; milliseconds become 0.
    void setTimeValueBySeconds(long seconds);
    void setTimeValueByMilliSeconds(long ms);

    // Both return the whole days carried.
    int add(int hours, int minutes, int seconds, int milliSeconds);
    int subtract(int hours, int minutes, int seconds, int milliSeconds);

    bool operator>(SimpleTime const& other) const;
    bool operator>=(SimpleTime const& other) const;
    bool operator<=(SimpleTime const& other) const;
    bool operator<(SimpleTime const& other) const;
    bool operator==(SimpleTime const& other) const;
    bool operator!=(SimpleTime const& other) const;
    SimpleTime operator+(SimpleTime const& other) const;
    SimpleTime operator-(SimpleTime const& other) const;
    SimpleTime& operator+=(SimpleTime const& other);
    SimpleTime& operator-=(SimpleTime const& other);

    // getFormat_T().
    std::string getFormatted() const;
    // Replaces, in this order, "%H", "%I", "%M", "%p", "%r", "%R", "%S", "%T"
    // and "%X"; other text stays.
    std::string getFormatted(std::string const& format) const;
    // Hours, two digits.
    std::string getFormat_H() const;
    // 12-hour clock: 0 gives 12, 13..23 give 1..11.
    std::string getFormat_I() const;
    std::string getFormat_M() const;
    // "am" for 1..12 o'clock, else "pm": noon is "am" and midnight "pm", as
    // hosts have always shown it.
    std::string getFormat_p() const;
    // %I:%M:%S %p
    std::string getFormat_r() const;
    // %H:%M
    std::string getFormat_R() const;
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
