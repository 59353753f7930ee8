#ifndef TOVUUTIL_TEXT_BASEN_H
#define TOVUUTIL_TEXT_BASEN_H

#include <string>

#include <tovuutil/export.h>

// Whole non-negative numbers, held in a double, in the positional notation of
// an alphabet whose length is the base and where a character's value is its
// (last) position.

// basen2double()
//
// Sum of value * base^(position from the right), left to right, each power
// from pow(). Reading stops at the end or at an embedded zero character. A
// character outside the alphabet counts as -1 (no error). "" gives 0.
//
// Example: basen2double("1x", "0123456789") is 10 + (-1) = 9.
TOVU_API double basen2double(std::string const& s, std::string const& alphabet);

// double2basen()
//
// Digits by repeated fmod and division, without leading zero digits; 0 gives
// the character at position 0. A value with a fraction keeps dividing until the
// fraction underflows, so it gets a long run of position-0 characters in front.
// Caller errors give "": a negative value, NaN, infinity, an alphabet shorter
// than two characters (except for 0, which gives its first character).
TOVU_API std::string double2basen(double v, std::string const& alphabet);

// Fixed alphabets: "0123456789", "0123456789ABCDEF",
// "123456789ABCDEFGHIJKLMNPQRSTUVWXYZ" (base 34: no "0", no "O"; 0 is "1")
// and "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ". Only the hex reader upper-cases
// its input first ("ff" is 255); the others are case-sensitive.
TOVU_API double string2doubleBase10(std::string const& s);
TOVU_API double string2doubleBaseHex(std::string const& s);
TOVU_API double string2doubleBase34(std::string const& s);
TOVU_API double string2doubleBase36(std::string const& s);
TOVU_API std::string double2StringBase10(double v);
TOVU_API std::string double2StringBaseHex(double v);
TOVU_API std::string double2StringBase34(double v);
TOVU_API std::string double2StringBase36(double v);

// checkSum()
//
// The sum of the decimal digits of s; every other character is skipped.
// Example: checkSum("12-34") is 10.
TOVU_API int checkSum(std::string const& s);

#endif
