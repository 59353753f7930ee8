#ifndef TOVUUTIL_TEXT_STRINGUTIL_H
#define TOVUUTIL_TEXT_STRINGUTIL_H

// String helpers and number conversions over single-byte (Windows-1252) text.
//
// All functions are free, stateless and reentrant; none logs. Characters are
// bytes and are compared byte by byte. Positions and counts are int, -1 means
// "not found". Every function takes its inputs by constant reference and
// returns a new string, except the four token extractors (which shorten the
// string passed to them) and splitString (which fills two output strings).
//
// The only exceptions that leave these functions are std::out_of_range (a
// negative count given to right(s, n) or removeLeft(s, n), and so to the
// integer token extractors) and boost::bad_lexical_cast (tovuAtof, and so
// string2Double, on text that is not a complete number).
//
// Numbers produced here use the German decimal comma; input accepts a comma
// (string2Double) or, in tovuAtof, a point.
//
// string2Int64 and string2Double read their text exactly as the field
// validators isNumeric/isFloat and the normalisers formatNumeric/formatFloat
// do (white space " \t\r\n" around it, one sign that white space may follow,
// digits, at most one comma), in a single pass.

#include <cstdint>
#include <string>

#include <boost/lexical_cast/bad_lexical_cast.hpp>

#include <tovuutil/export.h>

namespace tovu {
// The white-space set the library's own callers pass to the trim functions.
inline constexpr char whitespace[] = " \t\r\n";
} // namespace tovu

// ---------------------------------------------------------------------------
// Cutting and searching. Let len be the length of s, k the length of p.
// ---------------------------------------------------------------------------

// left(s, n)
//
// The first n characters of s. A negative n or an n of len or more gives all
// of s.
//   left("abc", 2) == "ab"; left("abc", 5) == "abc"; left("abc", -1) == "abc"
TOVU_API std::string left(std::string const& s, int n);

// right(s, n)
//
// The last n characters of s; all of s if n > len. A negative n is a caller
// error and raises std::out_of_range.
//   right("abc", 2) == "bc"; right("abc", 5) == "abc"
TOVU_API std::string right(std::string const& s, int n);

// removeLeft(s, n)
//
// s without its first n characters; empty if n >= len. A negative n is a
// caller error and raises std::out_of_range.
//   removeLeft("abc", 1) == "bc"; removeLeft("abc", 3) == ""
TOVU_API std::string removeLeft(std::string const& s, int n);

// removeRight(s, n)
//
// s without its last n characters; empty if n >= len; a negative n gives all
// of s (no exception, unlike removeLeft).
//   removeRight("abc", 1) == "ab"; removeRight("abc", -1) == "abc"
TOVU_API std::string removeRight(std::string const& s, int n);

// left(s, p)
//
// The text before the first occurrence of p; all of s if p does not occur;
// the empty string if p is empty.
//   left("a=b=c", "=") == "a"; left("abc", "x") == "abc"; left("abc", "") == ""
TOVU_API std::string left(std::string const& s, std::string const& p);

// right(s, p)
//
// The text that begins one character after the start of the last occurrence
// of p; all of s if p does not occur. For a one-character p that is exactly
// the text behind the separator; for a longer p all but the first character
// of the separator stay at the front. Deliberate: hosts rely on this
// asymmetry with removeRight. An empty p (found at len) gives "".
//   right("a=b=c", "=") == "c"; right("aXYb", "XY") == "Yb"
TOVU_API std::string right(std::string const& s, std::string const& p);

// removeLeft(s, p)
//
// s from the first occurrence of p on, the separator included; all of s if p
// does not occur.
//   removeLeft("aXYb", "XY") == "XYb"
TOVU_API std::string removeLeft(std::string const& s, std::string const& p);

// removeRight(s, p)
//
// The text before the last occurrence of p (separator excluded); all of s if
// p does not occur.
//   removeRight("aXYb", "XY") == "a"
TOVU_API std::string removeRight(std::string const& s, std::string const& p);

// findReverse(s, p)
//
// Start index of the last occurrence of p in s, or -1. An empty p gives len.
//   findReverse("abcabc", "bc") == 4; findReverse("abc", "x") == -1
TOVU_API int findReverse(std::string const& s, std::string const& p);

// getcharpos(c, s)
//
// Index of the LAST occurrence of c in s (despite the name), or -1.
//   getcharpos('a', "abca") == 3; getcharpos('a', "") == -1
TOVU_API int getcharpos(char c, std::string const& s);

// beginsWith(s, p), endsWith(s, p)
//
// Whether s begins (ends) with p. An empty p gives true; a p longer than s
// gives false.
TOVU_API bool beginsWith(std::string const& s, std::string const& p);
TOVU_API bool endsWith(std::string const& s, std::string const& p);

// ensureAtBegin(s, p), ensureAtEnd(s, p)
//
// s if it already begins (ends) with p, else p + s (s + p).
//   ensureAtEnd("dir", "/") == "dir/"; ensureAtEnd("dir/", "/") == "dir/"
TOVU_API std::string ensureAtBegin(std::string const& s, std::string const& p);
TOVU_API std::string ensureAtEnd(std::string const& s, std::string const& p);

// reverse(s)
//
// The characters of s in reverse order.
TOVU_API std::string reverse(std::string const& s);

// ---------------------------------------------------------------------------
// Token extraction: each returns the token and replaces s by the remainder.
// ---------------------------------------------------------------------------

// extractLeftToken(s, c)
//
// Token: the text before the first c (all of s if there is none).
// Remainder: the text behind the first c, or empty if c does not occur.
//   s = "k=v": returns "k", s becomes "v"; s = "kv": returns "kv", s == ""
TOVU_API std::string extractLeftToken(std::string& s, char c);

// extractLeftToken(s, n)
//
// Token: left(s, n). Remainder: removeLeft(s, n), cleared if it equals the
// token. Deliberate: the equality rule also fires for equal halves.
// A negative n raises std::out_of_range and leaves s unchanged.
//   s = "abab", n = 2: returns "ab", s becomes ""
TOVU_API std::string extractLeftToken(std::string& s, int n);

// extractRightToken(s, c)
//
// Token: the text behind the last c (all of s if there is none).
// Remainder: the text before the last c, cleared if it equals the token.
// Deliberate: the equality rule also fires for equal halves.
//   s = "a,b": returns "b", s becomes "a"; s = "a,a": returns "a", s == ""
TOVU_API std::string extractRightToken(std::string& s, char c);

// extractRightToken(s, n)
//
// Token: right(s, n). Remainder: removeRight(s, n), cleared if it equals the
// token. A negative n raises std::out_of_range and leaves s unchanged.
TOVU_API std::string extractRightToken(std::string& s, int n);

// splitString(sep, s, leftPart, rightPart)
//
// The separator comes first. With pos the first occurrence of sep in s:
// not found: leftPart = s, rightPart = "". Otherwise leftPart is the text
// before pos and rightPart the text behind the separator ("" if nothing
// follows). An empty sep gives "" and s. The output strings may alias s.
//   splitString("=", "k=v", l, r): l == "k", r == "v"
//   splitString("=", "=v", l, r):  l == "",  r == "v"
TOVU_API void splitString(std::string const& sep, std::string const& s,
                          std::string& leftPart, std::string& rightPart);

// ---------------------------------------------------------------------------
// Trimming, case, padding and cleaning.
// ---------------------------------------------------------------------------

// trimLeft(s, set), trimRight(s, set), trim(s, set)
//
// s without its leading (trailing, both) characters that occur in set;
// empty if every character does.
//   trim("  a b \r\n") == "a b"; trim(" \t") == ""; trim("xxaxx", "x") == "a"
TOVU_API std::string trimLeft(std::string const& s, std::string const& set = tovu::whitespace);
TOVU_API std::string trimRight(std::string const& s, std::string const& set = tovu::whitespace);
TOVU_API std::string trim(std::string const& s, std::string const& set = tovu::whitespace);

// tolower(s), toupper(s)
//
// Each byte mapped through the C runtime's tolower/toupper. The library sets
// no locale, so in the default locale only A-Z/a-z change and umlauts stay.
TOVU_API std::string tolower(std::string const& s);
TOVU_API std::string toupper(std::string const& s);

// formatRight(s, n, c), formatLeft(s, n, c)
//
// Padded to width n with copies of c, on the left (right-aligned) or on the
// right (left-aligned). Never truncates: if n <= len, s comes back whole.
// A negative n adds nothing.
//   formatRight("7", 3, '0') == "007"; formatLeft("7", 3, ' ') == "7  "
//   formatRight("1234", 3, '0') == "1234"
TOVU_API std::string formatRight(std::string const& s, int n, char c);
TOVU_API std::string formatLeft(std::string const& s, int n, char c);

// replacePattern(s, p, r)
//
// Every occurrence of p, left to right and non-overlapping, replaced by r.
// Text inserted from r is never searched again. An empty p returns s
// unchanged. Runs in one pass, linear in the length of s.
//   replacePattern("a.b.c", ".", ",") == "a,b,c"
//   replacePattern("aaa", "a", "aa") == "aaaaaa"
//   replacePattern("Die Datei '%1' fehlt.", "%1", "x") == "Die Datei 'x' fehlt."
TOVU_API std::string replacePattern(std::string const& s, std::string const& p, std::string const& r);

// removeSpecialPatterns(s, p)
//
// Removes occurrences of p one at a time, each time taking the first
// occurrence of the text as it stands, so that halves joined by a removal
// that form a new occurrence are removed too. Deliberate stop rule, kept
// because hosts rely on it: once an occurrence at the very start of the
// text is removed, removal ends. An empty p returns s unchanged.
// Runs in time linear in the length of s.
//   removeSpecialPatterns("a.b.c", ".") == "abc"
//   removeSpecialPatterns(".a.b", ".") == "a.b"     (start match ends it)
//   removeSpecialPatterns("xaabb", "ab") == "x"     (joined halves)
//   removeSpecialPatterns("aabb", "ab") == ""
TOVU_API std::string removeSpecialPatterns(std::string const& s, std::string const& p);

// removeSpecialChars(s, c)
//
// removeSpecialPatterns(s, std::string(1, c)), stop rule included.
//   removeSpecialChars("xxy", 'x') == "xy"
TOVU_API std::string removeSpecialChars(std::string const& s, char c);

// getOnlyCharsAndDigits(s)
//
// Keeps, in order, only A-Z, a-z, 0-9 and the German letters
// \xC4 \xD6 \xDC \xE4 \xF6 \xFC \xDF (Windows-1252); drops everything else.
//   getOnlyCharsAndDigits("Stra\xDF" "e 12a, K\xF6ln!") == "Stra\xDF" "e12aK\xF6ln"
TOVU_API std::string getOnlyCharsAndDigits(std::string const& s);

// getOnlyCharsAndDigits7Bit(s)
//
// Keeps only A-Z, a-z and 0-9; every byte of 128 or above is dropped.
TOVU_API std::string getOnlyCharsAndDigits7Bit(std::string const& s);

// getFormattedString(size, format, ...)
//
// printf-style formatting limited to size characters. Returns the text if it
// is non-empty and fits into size characters; otherwise (empty result, too
// long, size <= 0 or a formatting failure) the empty string. Never returns
// partial text. Text behind an embedded NUL character is not returned.
//   getFormattedString(5, "%d", 12345) == "12345"
//   getFormattedString(3, "%d", 12345) == ""
TOVU_API std::string getFormattedString(int size, char const* format, ...)
#if defined(__GNUC__) && !defined(_WIN32)
    __attribute__((format(printf, 2, 3)))
#endif
    ;

// ---------------------------------------------------------------------------
// Number and truth-value conversions.
// ---------------------------------------------------------------------------

// int2String(v), long2String(v), int642String(v)
//
// Decimal text: a leading "-" for negatives, no padding, no grouping. The
// most negative values are rendered correctly.
TOVU_API std::string int2String(int value);
TOVU_API std::string long2String(long value);
TOVU_API std::string int642String(std::int64_t value);

// double2String(value, precision)
//
// The text of printf("%.*f", precision, value) with every "." replaced by
// ",": the full text for any double and precision (1e308 gives 309 digits).
// A precision of 0 gives no separator.
//   double2String(3.14159, 2) == "3,14"; double2String(1234.5, 1) == "1234,5"
//   double2String(2.0, 0) == "2"
TOVU_API std::string double2String(double value, int precision);

// bool2String(b)
//
// "true" or "false".
TOVU_API std::string bool2String(bool value);

// string2Bool(s)
//
// True if s, trimmed of " \t\r\n" and lower-cased, is "true", "ja" or "ok".
//   string2Bool(" JA\r\n") == true; string2Bool("yes") == false
TOVU_API bool string2Bool(std::string s);

// string2Int(s), string2Long(s)
//
// As atoi/atol: leading white space skipped, an optional sign, digits read as
// far as they go, 0 when there are none; no validation. A value beyond the
// range of the type gives its maximum or minimum.
//   string2Int("  42abc") == 42; string2Int("x") == 0
TOVU_API int string2Int(std::string const& s);
TOVU_API long string2Long(std::string const& s);

// string2Int64(s)
//
// If isNumeric(s): the value of formatNumeric(s). Else if isFloat(s): the
// whole part before the decimal comma, truncated (not rounded). Else 0.
// Values beyond the 64-bit range give its maximum or minimum.
//   string2Int64(" -42 ") == -42; string2Int64("12,9") == 12
TOVU_API std::int64_t string2Int64(std::string const& s);

// string2Double(s)
//
// 0.0 unless isFloat(s) or isNumeric(s). Otherwise formatFloat(s) with every
// "," replaced by "." is converted by tovuAtof (0.0 if that text is empty).
// A point is not accepted as separator. Raises boost::bad_lexical_cast where
// tovuAtof does, e.g. for a lone "-".
//   string2Double("1,5") == 1.5; string2Double(" -,5") == -0.5
//   string2Double("1.5") == 0.0
TOVU_API double string2Double(std::string const& s);

// string2Float(s)
//
// string2Double(s) narrowed to float (beyond the float range: +/-infinity).
TOVU_API float string2Float(std::string const& s);

// tovuAtof(text)
//
// Strict conversion of the whole text to a double: leading white space is
// skipped, the number uses "." as separator, and the whole rest must be a
// number as boost::lexical_cast<double> reads it (trailing characters, white
// space included, are refused). Otherwise raises boost::bad_lexical_cast
// whose what() is "bad cast". A null pointer counts as the empty text.
//   tovuAtof(" -1.25") == -1.25; tovuAtof("1,5") throws
TOVU_API double tovuAtof(char const* text);

namespace tovu {
namespace math {

// round(x)
//
// (x + 0.5) truncated toward zero. Deliberate, amounts depend on it: halves
// round up for non-negative x only; round(2.5) == 3, round(-2.5) == -2,
// round(-0.5) == 0, round(-2.6) == -2. When x + 0.5 lies outside the 64-bit
// range or is not a number, the result is the most negative 64-bit value,
// as the hardware conversion gives.
TOVU_API std::int64_t round(double x);

} // namespace math
} // namespace tovu

#endif
