#ifndef TOVUUTIL_TEXT_FORMATVALIDATOR_H
#define TOVUUTIL_TEXT_FORMATVALIDATOR_H

#include <string>

#include <tovuutil/export.h>

// Numbers of form fields are written the German way: an optional sign (which
// may be followed by blanks), decimal digits, and a comma as the only decimal
// separator; a point is never accepted. Every function first trims " \t\r\n"
// from both ends of its input.

// --- Normalisers -------------------------------------------------------------

// Removes one leading "+" or "-" and trims again: formatRemoveSign(" - 5") == "5".
TOVU_API std::string formatRemoveSign(std::string const& s);
// Removes a leading "+" only: erasePlus(" + 3") == "3"; a "-" stays.
TOVU_API std::string erasePlus(std::string const& s);
// The number without its sign, "0" when nothing is left; leading zeros stay.
TOVU_API std::string formatNumericUnsigned(std::string const& s);
// As above, zero-filled on the left to n characters, never cut:
// formatNumericUnsigned("", 2) == "00".
TOVU_API std::string formatNumericUnsigned(std::string const& s, int n);
// "-" if the text begins with one, then the unsigned number; a "+" is dropped:
// formatNumeric(" +0042 ") == "0042".
TOVU_API std::string formatNumeric(std::string const& s);
// As above with the unsigned part zero-filled to n (the sign is not counted):
// formatNumeric("-5", 3) == "-005".
TOVU_API std::string formatNumeric(std::string const& s, int n);
// Leading zeros removed, one kept before a comma or alone:
// trimLeadingZero("-007,5") == "-7,5"; "000" gives "0"; "00,5" gives "0,5".
TOVU_API std::string trimLeadingZero(std::string const& s);
// A "0" put before a leading comma, the sign kept: formatFloat("-,5") == "-0,5".
// Digits are not validated.
TOVU_API std::string formatFloat(std::string const& s);

// --- Predicates ----------------------------------------------------------------

// Every character a digit; "" is accepted; no trimming.
TOVU_API bool isOnlyDigits(std::string const& s);
// A whole number with optional sign: " -12 " and "+ 7" yes; "-", "", "1,0" no.
TOVU_API bool isNumeric(std::string const& s);
// Digits with at most one comma after an optional sign. Deliberately lenient:
// a lone sign, a lone ",", "5," and ",5" are accepted; "1.5" is not.
TOVU_API bool isFloat(std::string const& s);
// isFloat with exactly two decimals: "12,50" and ",50" yes, "12,5" no.
TOVU_API bool isAmount(std::string const& s);

// N: a whole number.
TOVU_API bool isFormatN(std::string const& s);
// U: a whole number without minus ("+" allowed, "-0" refused).
TOVU_API bool isFormatU(std::string const& s);
// O: digits only, no sign at all.
TOVU_API bool isFormatO(std::string const& s);
// G: a positive whole number.
TOVU_API bool isFormatG(std::string const& s);
// M: a non-zero whole number of either sign.
TOVU_API bool isFormatM(std::string const& s);
// Y: "1" or "2".
TOVU_API bool isFormatY(std::string const& s);
// J: "1".
TOVU_API bool isFormatJ(std::string const& s);
// P: an amount.
TOVU_API bool isFormatP(std::string const& s);
// R: a positive amount.
TOVU_API bool isFormatR(std::string const& s);
// S: a non-zero amount of either sign.
TOVU_API bool isFormatS(std::string const& s);
// PROZENT: a non-negative amount; no upper bound ("150,00" is accepted).
TOVU_API bool isFormatPROZENT(std::string const& s);
// F: a whole number without minus, or a non-negative number with at most four
// decimals.
TOVU_API bool isFormatF(std::string const& s);
// V: isFloat with fewer than five characters behind the comma. Without a
// comma the whole trimmed text counts, so whole numbers are accepted only up
// to four characters, sign included ("1234" yes; "12345" and "-1234" no). This
// limit is deliberate: hosts rely on it.
TOVU_API bool isFormatV(std::string const& s);

#endif
