#ifndef TOVUUTIL_DATETIME_DATEFIELD_H
#define TOVUUTIL_DATETIME_DATEFIELD_H

#include <list>
#include <string>

#include <tovuutil/export.h>

// Date fields of forms, by format code (D stands for a digit 0-9, the other
// characters are literal):
//
//   T "DD.MM."        day and month with a closing dot, no year
//   D "DD.MM.YYYY"    full date
//   E "DD.MM.YY"      date with a two-digit year
//   L "MM.YY"         month and two-digit year
//   K "MM"            month only
//   B "DD.MM-DD.MM"   range of two day-and-month values
//   Z "DD.MM.YYYY-DD.MM.YYYY"   range of two full dates
//
// A checker returns everything wrong with a value; an empty list means the
// value is valid. The codes:
//
//   1    wrong length
//   2    wrong shape: a digit or separator not where the format puts it
//   3    day beyond a month length other than 28..31 (a fallback that the
//        month tables never reach)
//   4    month not in 1..12
//   5    year before 1890 (there is no upper limit)
//   6    day > 28: February of a common year
//   7    day > 29: February of a leap year, or of an unknown year
//   8    day > 30: April, June, September, November
//   9    day < 1, or day > 31 (also when the month is invalid)
//   10+c error c in the first date of a range (B, Z)
//   20+c error c in the second date of a range (B, Z)
//   100  the range ends before it starts
//
// Length is checked before shape, and a value with either error gets that one
// code alone. Otherwise the month comes before the day. Leap years follow the
// Gregorian rule. All functions accept texts of any length and content.

// checkDateFormatT()
//
// Day and month "DD.MM." with February at 29 days.
// Example: checkDateFormatT("29.02.") is empty; checkDateFormatT("30.02.") is {7}.
TOVU_API std::list<int> checkDateFormatT(std::string const& s);

// checkDateFormatT(s, year)
//
// "DD.MM." in the given year ("YYYY"): {1} or {2} for a wrong length or shape
// of `s`, otherwise checkDateFormatD(s + year).
// Example: checkDateFormatT("29.02.", "2023") is {6}.
TOVU_API std::list<int> checkDateFormatT(std::string const& s, std::string const& year);

// checkDateFormatD()
//
// A full date "DD.MM.YYYY". A year before 1890 adds 5, merged in ascending
// order with the day-and-month codes; February has 28 or 29 days by the year.
// Example: checkDateFormatD("00.13.1800") is {4, 5, 9};
//          checkDateFormatD("29.02.1900") is {6}.
TOVU_API std::list<int> checkDateFormatD(std::string const& s);

// checkDateFormatE()
//
// "DD.MM.YY"; the two-digit year is not checked and February has 29 days.
// Example: checkDateFormatE("31.06.23") is {8}.
TOVU_API std::list<int> checkDateFormatE(std::string const& s);

// checkDateFormatL()
//
// "MM.YY"; only the month is checked (4 outside 1..12).
// Example: checkDateFormatL("13.99") is {4}.
TOVU_API std::list<int> checkDateFormatL(std::string const& s);

// checkDateFormatK()
//
// "MM" as a single code, not a list: 1 if the length is not 2, 2 if a
// character is not a digit, 4 if the month is outside 1..12, else 0.
// Example: checkDateFormatK("13") == 4; checkDateFormatK("1") == 1.
TOVU_API int checkDateFormatK(std::string const& s);

// checkDateFormatB()
//
// "DD.MM-DD.MM": the codes of both halves checked as T (February at 29
// days), the first as 10 + c and the second as 20 + c, then 100 when the
// second day-and-month is before the first.
// Example: checkDateFormatB("01.05-30.04") is {100};
//          checkDateFormatB("32.01-01.13") is {19, 24}.
TOVU_API std::list<int> checkDateFormatB(std::string const& s);

// checkDateFormatB(s, year)
//
// "DD.MM-DD.MM" within the given year ("YYYY"): {1} or {2} for a wrong length
// or shape of `s`, otherwise checked as Z with the year added to both halves.
// Example: checkDateFormatB("29.02-01.03", "2023") is {16}.
TOVU_API std::list<int> checkDateFormatB(std::string const& s, std::string const& year);

// checkDateFormatZ()
//
// "DD.MM.YYYY-DD.MM.YYYY": both halves checked as D, the first as 10 + c and
// the second as 20 + c, then 100 when the second date is before the first.
// Example: checkDateFormatZ("01.01.2020-31.12.2019") is {100}.
TOVU_API std::list<int> checkDateFormatZ(std::string const& s);

// calcValue4FormatT(), calcValue4FormatD(), calcValue4FormatE()
//
// Sortable numbers for valid values, -1 when the leading characters do not
// have the shape (what follows them is ignored; the values are not checked):
//   T: day + 100 * month of the first five characters "DD.MM" (no closing
//      dot needed), so MMDD;
//   D: YYYYMMDD of the first ten characters "DD.MM.YYYY";
//   E: YYMMDD of the first eight characters "DD.MM.YY".
// Example: calcValue4FormatD("24.12.2023") == 20231224;
//          calcValue4FormatE("24.12.23") == 231224; calcValue4FormatT("x") == -1.
TOVU_API long calcValue4FormatT(std::string const& s);
TOVU_API long calcValue4FormatD(std::string const& s);
TOVU_API long calcValue4FormatE(std::string const& s);

// compareFormatD(), compareFormatT(), compareRangeFormatK()
//
// A one-character verdict: ' ' when the format's checker reports anything for
// `a` or for `b`; otherwise '<', '=' or '>' as `a` is before, the same as or
// after `b` (for K: the months).
// Example: compareFormatD("01.01.2020", "02.01.2020") == '<';
//          compareFormatD("31.02.2020", "01.01.2020") == ' '.
TOVU_API char compareFormatD(std::string const& a, std::string const& b);
TOVU_API char compareFormatT(std::string const& a, std::string const& b);
TOVU_API char compareRangeFormatK(std::string const& a, std::string const& b);

// compareRangeFormatB(), compareRangeFormatZ()
//
// A one-character verdict on two ranges: ' ' when the range checker reports
// anything for `a` or for `b`; '=' when the texts are identical; '<' when `a`
// ends before `b` starts; '>' when `a` starts after `b` ends; otherwise 'c'
// (the ranges overlap; sharing one day is an overlap).
// Example: compareRangeFormatZ("01.01.2020-10.01.2020",
//                              "10.01.2020-20.01.2020") == 'c'.
TOVU_API char compareRangeFormatB(std::string const& a, std::string const& b);
TOVU_API char compareRangeFormatZ(std::string const& a, std::string const& b);

#endif
