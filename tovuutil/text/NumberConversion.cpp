#include "tovuutil/text/StringUtil.h"

#include <cfenv>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string_view>
#include <vector>

#include <boost/lexical_cast.hpp>

namespace {

using std::size_t;
using std::string;

// The conversion error of tovuAtof: a bad_lexical_cast whose message is the
// short one hosts know.
class BadCast : public boost::bad_lexical_cast {
public:
    char const* what() const noexcept override { return "bad cast"; }
};

bool isCSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

// atoi-style reading: leading white space, an optional sign, then as many
// digits as there are; beyond the range of T the nearest limit.
template <class T>
T leadingInteger(char const* p, char const* end)
{
    while (p < end && isCSpace(*p))
        ++p;
    bool negative = false;
    if (p < end && (*p == '+' || *p == '-'))
        negative = *p++ == '-';
    using U = std::uint64_t;
    U const limit = negative ? static_cast<U>(std::numeric_limits<T>::max()) + 1
                             : static_cast<U>(std::numeric_limits<T>::max());
    U value = 0;
    bool saturated = false;
    for (; p < end && *p >= '0' && *p <= '9'; ++p) {
        unsigned const digit = static_cast<unsigned>(*p - '0');
        if (saturated || value > (limit - digit) / 10) {
            saturated = true;
            continue;
        }
        value = value * 10 + digit;
    }
    if (saturated)
        value = limit;
    if (!negative)
        return static_cast<T>(value);
    if (value == 0)
        return 0;
    // -(value - 1) - 1 stays inside T even for the most negative value.
    return static_cast<T>(-static_cast<T>(value - 1) - 1);
}

template <class T>
T leadingInteger(string const& s)
{
    return leadingInteger<T>(s.data(), s.data() + s.size());
}

// A field value as the number validators read it: white space " \t\r\n"
// around it, at most one sign (white space may follow it), then digits with
// at most one comma. valid is what isFloat says; isNumeric is valid without a
// comma and with digits.
struct FieldNumber {
    bool valid = false;
    bool negative = false;
    bool comma = false;
    std::string_view wholeDigits;
    std::string_view fraction;
};

bool isFieldSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

FieldNumber readFieldNumber(string const& s)
{
    FieldNumber f;
    char const* p = s.data();
    char const* end = p + s.size();
    while (p < end && isFieldSpace(*p))
        ++p;
    while (end > p && isFieldSpace(end[-1]))
        --end;
    if (p == end)
        return f;
    if (*p == '+' || *p == '-') {
        f.negative = *p++ == '-';
        while (p < end && isFieldSpace(*p))
            ++p;
    }
    char const* const whole = p;
    while (p < end && isDigit(*p))
        ++p;
    f.wholeDigits = std::string_view(whole, static_cast<size_t>(p - whole));
    if (p < end && *p == ',') {
        f.comma = true;
        char const* const fraction = ++p;
        while (p < end && isDigit(*p))
            ++p;
        f.fraction = std::string_view(fraction, static_cast<size_t>(p - fraction));
    }
    f.valid = p == end;
    return f;
}

template <class T>
string integerText(T value)
{
    char buffer[24];
    std::to_chars_result const r = std::to_chars(buffer, buffer + sizeof buffer, value);
    return string(buffer, r.ptr);
}

// printf("%.*f") into a buffer of the exact size; the fallback of double2String.
string printfFixed(double value, int precision)
{
    int const n = std::snprintf(nullptr, 0, "%.*f", precision, value);
    if (n <= 0)
        return string();
    std::vector<char> buffer(static_cast<size_t>(n) + 1);
    std::snprintf(buffer.data(), buffer.size(), "%.*f", precision, value);
    return string(buffer.data(), static_cast<size_t>(n));
}

} // namespace

string int2String(int value)
{
    return integerText(value);
}

string long2String(long value)
{
    return integerText(value);
}

string int642String(std::int64_t value)
{
    return integerText(value);
}

string double2String(double value, int precision)
{
    // The shortest exact fixed form equals printf's for finite values when
    // rounding to nearest (both round the exact binary value, ties to even).
    constexpr int kMaxFastPrecision = 40;
    if (std::isfinite(value) && precision >= 0 && precision <= kMaxFastPrecision
        && std::fegetround() == FE_TONEAREST) {
        char buffer[1 + 309 + 1 + kMaxFastPrecision + 1];
        std::to_chars_result const r =
            std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, precision);
        if (r.ec == std::errc()) {
            if (precision > 0)
                r.ptr[-precision - 1] = ',';
            return string(buffer, r.ptr);
        }
    }
    string text = printfFixed(value, precision);
    for (char& c : text)
        if (c == '.')
            c = ',';
    return text;
}

string bool2String(bool value)
{
    return value ? "true" : "false";
}

bool string2Bool(string s)
{
    string const t = tolower(trim(s, tovu::whitespace));
    return t == "true" || t == "ja" || t == "ok";
}

int string2Int(string const& s)
{
    return leadingInteger<int>(s);
}

long string2Long(string const& s)
{
    return leadingInteger<long>(s);
}

std::int64_t string2Int64(string const& s)
{
    FieldNumber const f = readFieldNumber(s);
    if (!f.valid)
        return 0;
    // For a whole number this is formatNumeric(s); with a comma it is
    // formatNumeric(left(s, ",")): the sign and the digits before the comma.
    std::int64_t const magnitudeLimit = std::numeric_limits<std::int64_t>::max();
    std::uint64_t const limit = static_cast<std::uint64_t>(magnitudeLimit) + (f.negative ? 1 : 0);
    std::uint64_t value = 0;
    for (char c : f.wholeDigits) {
        unsigned const digit = static_cast<unsigned>(c - '0');
        if (value > (limit - digit) / 10) {
            value = limit;
            break;
        }
        value = value * 10 + digit;
    }
    if (!f.negative)
        return static_cast<std::int64_t>(value);
    return value == 0 ? 0 : -static_cast<std::int64_t>(value - 1) - 1;
}

double string2Double(string const& s)
{
    FieldNumber const f = readFieldNumber(s);
    if (!f.valid)
        return 0.0;
    // formatFloat(s) with "," replaced by ".": sign, a "0" before a leading
    // comma, the digits. Field values are short: a stack buffer holds them.
    size_t const size = f.wholeDigits.size() + f.fraction.size() + 3;
    char small[64];
    string large;
    char* const text = size < sizeof small ? small : (large.resize(size), &large[0]);
    char* o = text;
    if (f.negative)
        *o++ = '-';
    if (f.comma && f.wholeDigits.empty())
        *o++ = '0';
    std::memcpy(o, f.wholeDigits.data(), f.wholeDigits.size());
    o += f.wholeDigits.size();
    if (f.comma) {
        *o++ = '.';
        std::memcpy(o, f.fraction.data(), f.fraction.size());
        o += f.fraction.size();
    }
    *o = '\0';
    if (o == text)
        return 0.0; // a lone "+"
    // Plain decimal text: from_chars gives the same correctly rounded value as
    // tovuAtof. Anything it refuses (a lone "-", overflow, underflow) goes
    // through tovuAtof itself, which decides and raises.
    double value = 0.0;
    std::from_chars_result const r = std::from_chars(text, o, value);
    if (r.ec == std::errc() && r.ptr == o)
        return value;
    return tovuAtof(text);
}

float string2Float(string const& s)
{
    double const d = string2Double(s);
    double const magnitude = std::fabs(d);
    if (!(magnitude > static_cast<double>(std::numeric_limits<float>::max())))
        return static_cast<float>(d);
    // Beyond the float range: what the IEEE conversion gives, without relying on it.
    if (magnitude >= 0x1.ffffffp127) {
        float const inf = std::numeric_limits<float>::infinity();
        return d > 0 ? inf : -inf;
    }
    return d > 0 ? std::numeric_limits<float>::max() : -std::numeric_limits<float>::max();
}

double tovuAtof(char const* text)
{
    if (text == nullptr)
        throw BadCast();
    while (isCSpace(*text))
        ++text;
    try {
        return boost::lexical_cast<double>(text, std::strlen(text));
    } catch (boost::bad_lexical_cast const&) {
        throw BadCast();
    }
}

namespace tovu {
namespace math {

std::int64_t round(double x)
{
    double const y = x + 0.5;
    if (!(y >= -0x1p63 && y < 0x1p63))
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(y);
}

} // namespace math
} // namespace tovu
