#ifndef TOVUUTIL_DATETIME_SIMPLEDATE_H
#define TOVUUTIL_DATETIME_SIMPLEDATE_H

#include <string>

#include <tovuutil/export.h>

// SimpleDate
//
// A calendar date of the Gregorian calendar, extended back to the year 1. The
// setters store any value unchecked; isValid() tells whether the three fields
// name a day of the years 1 to 9999. Arithmetic, day numbers, weekdays and
// weeks work on valid dates only: on an invalid date they change nothing and
// answer false, 0, -1 or "" as stated below. Nothing throws, nothing logs.
//
// Years before 1890 are valid dates here. The date-field check reports them
// (code 5) because forms refuse them, but a date of 1850 is still a date that
// can be counted with; the field check stays the place for the form's rule.
//
// Example:
//   SimpleDate d(31, 1, 2024);
//   d.addMonths(1);                 // 29.02.2024: the month end is clamped
//   d.getFormatted("%A, %d. %B %Y") // "Donnerstag, 29. Februar 2024"
class TOVU_API SimpleDate {
public:
    // SimpleDate()
    //
    // Today's local date (initNow()).
    SimpleDate();
    // Stores the three values unchanged.
    SimpleDate(int day, int month, int year);
    ~SimpleDate() {}

    // The day as stored, valid or not.
    int getDay() const { return day_; }
    // The month as stored, valid or not.
    int getMonth() const { return month_; }
    // The year as stored, valid or not.
    int getYear() const { return year_; }
    // Stores the day unchecked.
    void setDay(int day) { day_ = day; }
    // Stores the month unchecked.
    void setMonth(int month) { month_ = month; }
    // Stores the year unchecked.
    void setYear(int year) { year_ = year; }

    // initNow()
    //
    // Today's date from the local clock.
    void initNow();
    // initFormatD(), initFormatE(), initFormatT()
    //
    // The date of a field text "DD.MM.YYYY", "DD.MM.YY" or "DD.MM." (with the
    // year given). The text must have exactly that length and shape, as the
    // date-field checks demand; its values are then stored unchecked, so
    // "31.02.2023" gives a date that is not valid. A text of another length
    // or shape sets 0.0.0 and the answer is false.
    // Example: initFormatE("24.12.23") gives 24.12.2023;
    //          initFormatT("29.02.", 2023) gives an invalid date.
    bool initFormatD(std::string const& text);
    // "DD.MM.YY", the year widened by expandYear(); false for another shape.
    bool initFormatE(std::string const& text);
    // "DD.MM." with the year given; false for another shape.
    bool initFormatT(std::string const& text, int year);

    // expandYear()
    //
    // The century rule of two-digit years, used by initFormatE: 00..49 are
    // 2000..2049, 50..99 are 1950..1999. Other values are returned unchanged.
    static int expandYear(int twoDigitYear);

    // isValid()
    //
    // True when the date exists: month 1..12, day 1..the month's length
    // (February by the leap-year rule), year 1..9999. Within these years the
    // answer agrees with checkDateFormatD of the date's text, code 5 apart.
    bool isValid() const;
    // isLeapYear(), daysInMonth()
    //
    // The Gregorian rules: a year divisible by 4 and not by 100, or by 400.
    // daysInMonth() is 28..31, or 0 for a month outside 1..12.
    static bool isLeapYear(int year);
    // The month's length in that year, 28..31; 0 for a month outside 1..12.
    static int daysInMonth(int month, int year);

    // getValue()
    //
    // YYYYMMDD as calcValue4FormatD gives it for the date's text "DD.MM.YYYY";
    // -1 when a field does not fit that text (day or month outside 0..99,
    // year outside 0..9999). Validity is not required.
    // Example: SimpleDate(24, 12, 2023).getValue() == 20231224.
    long getValue() const;

    // getDayNumber(), setDayNumber(), fromDayNumber()
    //
    // Days since 31.12.0000, so 01.01.0001 is day 1 and 31.12.9999 is day
    // 3652059. getDayNumber() of an invalid date is 0; setting a number
    // outside 1..3652059 sets 0.0.0.
    long getDayNumber() const;
    // Sets the date of that day number; 0.0.0 outside 1..3652059.
    void setDayNumber(long dayNumber);
    // A new date set by setDayNumber(dayNumber).
    static SimpleDate fromDayNumber(long dayNumber);

    // addDays(), addMonths(), addYears()
    //
    // Move the date by a number of days, calendar months or calendar years,
    // forward or back. When the target month is shorter than the day, the day
    // becomes the month's last: 31.01. + 1 month is 29.02. in a leap year and
    // 28.02. otherwise, and 29.02.2024 + 1 year is 28.02.2025. The answer is
    // false, and the date unchanged, when the date is invalid or the result
    // would leave the years 1..9999.
    bool addDays(long days);
    // Calendar months, the day clamped to the month's end; false if unchanged.
    bool addMonths(long months);
    // Calendar years, 29.02. clamped to 28.02.; false if unchanged.
    bool addYears(long years);

    // daysUntil()
    //
    // Days from this date to the other, negative when the other is earlier;
    // 0 when either date is invalid.
    // Example: SimpleDate(1, 1, 2024).daysUntil(SimpleDate(1, 3, 2024)) == 60.
    long daysUntil(SimpleDate const& other) const;

    // getDayOfWeek(), getDayOfYear(), getIsoWeek(), getIsoWeekYear()
    //
    // The day of the week with Monday 0 .. Sunday 6, as German calendars
    // start the week; the day of the year 1..366; the ISO 8601 week 1..53
    // (week 1 holds the year's first Thursday) and the year that week belongs
    // to. Each is -1 for an invalid date.
    // Example: 01.01.2021 is a Friday (4) in week 53 of 2020.
    int getDayOfWeek() const;
    // The day of the year, 1..366; -1 for an invalid date.
    int getDayOfYear() const;
    // The ISO 8601 week, 1..53; -1 for an invalid date.
    int getIsoWeek() const;
    // The year the ISO week belongs to; -1 for an invalid date.
    int getIsoWeekYear() const;

    // Comparisons of getValue() of both sides.
    bool operator>(SimpleDate const& other) const;
    // getValue() >= other.getValue().
    bool operator>=(SimpleDate const& other) const;
    // getValue() <= other.getValue().
    bool operator<=(SimpleDate const& other) const;
    // getValue() < other.getValue().
    bool operator<(SimpleDate const& other) const;
    // getValue() == other.getValue(): all dates whose value is -1 are equal.
    bool operator==(SimpleDate const& other) const;
    // getValue() != other.getValue().
    bool operator!=(SimpleDate const& other) const;

    // "%d.%m.%Y".
    std::string getFormatted() const;
    // Replaces, in this order, "%d", "%m", "%Y", "%y", "%j", "%V", "%G",
    // "%a", "%A", "%b" and "%B" by the texts below; other text, unknown
    // directives too, stays. Numbers are zero-filled on the left from the
    // fields as they are, a minus sign kept in front. The directives that
    // need the calendar (%j, %V, %G, %a, %A) give "" for an invalid date,
    // the month names "" for a month outside 1..12. German names are
    // Windows-1252 ("M\xE4rz").
    // Example: 05.03.2024 with "%a %d. %b %y" gives "Di 05. M\xE4r 24".
    std::string getFormatted(std::string const& format) const;
    // Day, two digits.
    std::string getFormat_d() const;
    // Month, two digits.
    std::string getFormat_m() const;
    // Year, four digits.
    std::string getFormat_Y() const;
    // Year within its century, two digits.
    std::string getFormat_y() const;
    // Day of the year, three digits.
    std::string getFormat_j() const;
    // ISO week, two digits.
    std::string getFormat_V() const;
    // Year of the ISO week, four digits.
    std::string getFormat_G() const;
    // "Mo", "Di", "Mi", "Do", "Fr", "Sa", "So".
    std::string getFormat_a() const;
    // "Montag" .. "Sonntag".
    std::string getFormat_A() const;
    // "Jan", "Feb", "M\xE4r", "Apr", "Mai", "Jun", "Jul", "Aug", "Sep",
    // "Okt", "Nov", "Dez".
    std::string getFormat_b() const;
    // "Januar" .. "Dezember".
    std::string getFormat_B() const;

private:
    int day_;
    int month_;
    int year_;
};

#endif
