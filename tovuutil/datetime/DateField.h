#ifndef TOVUUTIL_DATETIME_DATEFIELD_H
#define TOVUUTIL_DATETIME_DATEFIELD_H

#include <list>
#include <string>

#include <tovuutil/export.h>

// Date fields of forms, by format code:
//   T "DD.MM."   D "DD.MM.YYYY"   E "DD.MM.YY"   L "MM.YY"   K "MM"
//   B "DD.MM-DD.MM"   Z "DD.MM.YYYY-DD.MM.YYYY"
// A checker returns everything wrong with a value (empty: valid):
//   1 wrong length; 2 wrong shape; 3 day beyond an unusual month length;
//   4 month not in 1..12; 5 year before 1890; 6 day > 28 (February, common
//   year); 7 day > 29 (February, leap year or year unknown); 8 day > 30
//   (April, June, September, November); 9 day < 1 or > 31;
//   10 + c / 20 + c: error c in the first / second date of a range;
//   100: the range ends before it starts.
// Codes come month first, day second. Values of any length and content are
// accepted. Example: checkDateFormatD("00.13.1800") is {4, 5, 9}.

// DD.MM. with February at 29 days.
TOVU_API std::list<int> checkDateFormatT(std::string const& s);
// DD.MM. completed by a year ("YYYY") and checked as D.
TOVU_API std::list<int> checkDateFormatT(std::string const& s, std::string const& year);
// DD.MM.YYYY, February by the Gregorian rule; no upper year limit.
TOVU_API std::list<int> checkDateFormatD(std::string const& s);
// DD.MM.YY; the two-digit year is not checked, February at 29 days.
TOVU_API std::list<int> checkDateFormatE(std::string const& s);
// MM.YY; only the month is checked.
TOVU_API std::list<int> checkDateFormatL(std::string const& s);
// MM: 1 wrong length, 2 not digits, 4 month out of range, else 0.
TOVU_API int checkDateFormatK(std::string const& s);
// DD.MM-DD.MM: both halves as T, then 100 if the second is before the first.
TOVU_API std::list<int> checkDateFormatB(std::string const& s);
// DD.MM-DD.MM in a given year ("YYYY"), checked as Z.
TOVU_API std::list<int> checkDateFormatB(std::string const& s, std::string const& year);
// DD.MM.YYYY-DD.MM.YYYY: both halves as D, then 100 if the second is before the first.
TOVU_API std::list<int> checkDateFormatZ(std::string const& s);

// Sortable values, -1 when the shape is wrong:
// T: day + 100 * month of the first five characters ("DD.MM", no dot needed);
// D: YYYYMMDD of the first ten characters; E: YYMMDD of the first eight.
// Example: calcValue4FormatD("24.12.2023") == 20231224.
TOVU_API long calcValue4FormatT(std::string const& s);
TOVU_API long calcValue4FormatD(std::string const& s);
TOVU_API long calcValue4FormatE(std::string const& s);

// Verdicts: ' ' when either value is not valid, else '<', '=' or '>'.
TOVU_API char compareFormatD(std::string const& a, std::string const& b);
TOVU_API char compareFormatT(std::string const& a, std::string const& b);
TOVU_API char compareRangeFormatK(std::string const& a, std::string const& b);
// Ranges: ' ' when either is not valid; '=' for identical texts; '<' when a
// ends before b starts; '>' when a starts after b ends; 'c' when they overlap
// (sharing one day is an overlap).
TOVU_API char compareRangeFormatB(std::string const& a, std::string const& b);
TOVU_API char compareRangeFormatZ(std::string const& a, std::string const& b);

#endif
