// Number and truth-value conversions.

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <typeinfo>
#include <vector>

#include <boost/lexical_cast.hpp>
#include <gtest/gtest.h>

#include <tovuutil/text/StringUtil.h>

using std::string;

namespace {

string printfWithComma(double value, int precision)
{
    int const n = std::snprintf(nullptr, 0, "%.*f", precision, value);
    std::vector<char> buffer(static_cast<std::size_t>(n) + 1);
    std::snprintf(buffer.data(), buffer.size(), "%.*f", precision, value);
    string text(buffer.data(), static_cast<std::size_t>(n));
    for (char& c : text)
        if (c == '.')
            c = ',';
    return text;
}

// The message of the conversion error, or "" when nothing was thrown.
string atofError(char const* text)
{
    try {
        tovuAtof(text);
    } catch (boost::bad_lexical_cast const& e) {
        return e.what();
    }
    return "";
}

// Field-number reading written out step by step as the validators describe
// it (trim, one sign, trim again, digits and at most one comma).
string trimmed(string const& s)
{
    string::size_type const b = s.find_first_not_of(" \t\r\n");
    if (b == string::npos)
        return "";
    return s.substr(b, s.find_last_not_of(" \t\r\n") - b + 1);
}

string withoutSign(string const& s)
{
    string t = trimmed(s);
    if (!t.empty() && (t[0] == '+' || t[0] == '-'))
        t = trimmed(t.substr(1));
    return t;
}

bool isFloatText(string const& s)
{
    if (trimmed(s).empty())
        return false;
    string const u = withoutSign(s);
    return u.find_first_not_of("0123456789,") == string::npos && u.find(',') == u.rfind(',');
}

// string2Double as described, with tovuAtof doing the conversion. "throws"
// when that conversion raises.
string describedDouble(string const& s)
{
    if (!isFloatText(s))
        return printfWithComma(0.0, 30);
    string const t = trimmed(s);
    string u = withoutSign(t);
    if (!u.empty() && u[0] == ',')
        u = "0" + u;
    u = (t[0] == '-' ? "-" : "") + u;
    for (char& c : u)
        if (c == ',')
            c = '.';
    if (u.empty())
        return printfWithComma(0.0, 30);
    try {
        return printfWithComma(tovuAtof(u.c_str()), 30);
    } catch (boost::bad_lexical_cast const&) {
        return "throws";
    }
}

string actualDouble(string const& s)
{
    try {
        return printfWithComma(string2Double(s), 30);
    } catch (boost::bad_lexical_cast const&) {
        return "throws";
    }
}

} // namespace

TEST(IntegerToText, DecimalWithoutPadding)
{
    EXPECT_EQ("0", int2String(0));
    EXPECT_EQ("-42", int2String(-42));
    EXPECT_EQ("2147483647", int2String(std::numeric_limits<int>::max()));
    EXPECT_EQ("-2147483648", int2String(std::numeric_limits<int>::min()));
    EXPECT_EQ(std::to_string(std::numeric_limits<long>::min()), long2String(std::numeric_limits<long>::min()));
    EXPECT_EQ("-123456789", long2String(-123456789L));
    EXPECT_EQ("123456", long2String(123456L));
    EXPECT_EQ("-9223372036854775808", int642String(std::numeric_limits<std::int64_t>::min()));
    EXPECT_EQ("9223372036854775807", int642String(std::numeric_limits<std::int64_t>::max()));
    EXPECT_EQ("-1", int642String(-1));
}

TEST(DoubleToText, PrintfTextWithDecimalComma)
{
    EXPECT_EQ("3,14", double2String(3.14159, 2));
    EXPECT_EQ("1234,5", double2String(1234.5, 1));
    EXPECT_EQ("2", double2String(2.0, 0));
    EXPECT_EQ("-0,00", double2String(-0.001, 2));
    EXPECT_EQ("0,12", double2String(0.125, 2));                  // ties to even, as printf
    EXPECT_EQ("0,38", double2String(0.375, 2));
    EXPECT_EQ("2", double2String(2.5, 0));
    EXPECT_EQ("1,000000", double2String(1.0, -1));               // a negative precision is printf's default
    EXPECT_EQ("inf", double2String(INFINITY, 2));
    EXPECT_EQ("-inf", double2String(-INFINITY, 2));
    EXPECT_EQ("nan", double2String(std::nan(""), 2));

    string const big = double2String(1e308, 2);
    ASSERT_EQ(309u + 3u, big.size());
    EXPECT_EQ("100000000000000001097906", big.substr(0, 24));
    EXPECT_EQ(printfWithComma(1e308, 2), big);
    EXPECT_EQ(",00", big.substr(309));
    EXPECT_EQ(printfWithComma(DBL_MAX, 60), double2String(DBL_MAX, 60));
    EXPECT_EQ(printfWithComma(DBL_TRUE_MIN, 1100), double2String(DBL_TRUE_MIN, 1100));
}

TEST(DoubleToText, ByteIdenticalToPrintf)
{
    std::mt19937_64 rng(99);
    std::uniform_real_distribution<double> amounts(-1e7, 1e7);
    for (int i = 0; i < 20000; ++i) {
        double const v = i % 2 ? amounts(rng) : std::round(amounts(rng) * 1000) / 1000 + 0.005;
        int const precision = static_cast<int>(rng() % 8);
        ASSERT_EQ(printfWithComma(v, precision), double2String(v, precision)) << v;
    }
    for (int i = 0; i < 20000; ++i) {
        // Any bit pattern: huge, tiny, subnormal, non-finite.
        std::uint64_t const bits = rng();
        double v;
        std::memcpy(&v, &bits, sizeof v);
        int const precision = static_cast<int>(rng() % 45);
        ASSERT_EQ(printfWithComma(v, precision), double2String(v, precision)) << bits;
    }
}

TEST(TruthValues, TextsAndTheirCase)
{
    EXPECT_EQ("true", bool2String(true));
    EXPECT_EQ("false", bool2String(false));
    EXPECT_TRUE(string2Bool(" JA\r\n"));
    EXPECT_TRUE(string2Bool("Ok"));
    EXPECT_TRUE(string2Bool("\tTRUE"));
    EXPECT_FALSE(string2Bool("yes"));
    EXPECT_FALSE(string2Bool("1"));
    EXPECT_FALSE(string2Bool(""));
    EXPECT_FALSE(string2Bool("\vja"));
}

TEST(TextToInteger, LeadingNumberLikeAtoi)
{
    EXPECT_EQ(42, string2Int("  42abc"));
    EXPECT_EQ(-7, string2Int("\t\n-7"));
    EXPECT_EQ(5, string2Int("+5"));
    EXPECT_EQ(0, string2Int("x1"));
    EXPECT_EQ(0, string2Int("- 1"));
    EXPECT_EQ(12, string2Int("12,9"));
    EXPECT_EQ(std::numeric_limits<int>::max(), string2Int("99999999999999999999"));
    EXPECT_EQ(std::numeric_limits<int>::min(), string2Int("-2147483649"));
    EXPECT_EQ(std::numeric_limits<int>::min(), string2Int("-2147483648"));
    EXPECT_EQ(std::numeric_limits<long>::min(), string2Long("-99999999999999999999999"));
}

TEST(TextToDouble, StrictConversionThroughLexicalCast)
{
    EXPECT_EQ(-1.25, tovuAtof(" -1.25"));
    EXPECT_EQ(1.5, tovuAtof("1.5"));
    EXPECT_EQ(0.5, tovuAtof(".5"));
    EXPECT_EQ(5.0, tovuAtof("5."));
    EXPECT_EQ(1e5, tovuAtof("\t\r\n 1e5"));
    EXPECT_EQ(1e-3, tovuAtof("1E-3"));

    EXPECT_EQ("bad cast", atofError("1,5"));
    EXPECT_EQ("bad cast", atofError("1.5 "));
    EXPECT_EQ("bad cast", atofError(""));
    EXPECT_EQ("bad cast", atofError("  "));
    EXPECT_EQ("bad cast", atofError("-"));
    EXPECT_EQ("bad cast", atofError("1e"));
    EXPECT_EQ("bad cast", atofError("abc"));
    EXPECT_EQ("bad cast", atofError("1e999"));
    EXPECT_EQ("bad cast", atofError(nullptr));
    EXPECT_EQ("", atofError("1"));
    // Catchable as the standard bases too, across the library boundary.
    EXPECT_THROW(tovuAtof("x"), std::bad_cast);
}

TEST(Rounding, HalfUpOnlyForNonNegativeValues)
{
    EXPECT_EQ(0, tovu::math::round(0.49999));
    EXPECT_EQ(2, tovu::math::round(1.5));
    EXPECT_EQ(3, tovu::math::round(2.5));
    EXPECT_EQ(-1, tovu::math::round(-1.5));
    EXPECT_EQ(-2, tovu::math::round(-2.5));
    EXPECT_EQ(0, tovu::math::round(-0.5));
    EXPECT_EQ(-2, tovu::math::round(-2.6));
    EXPECT_EQ(-3, tovu::math::round(-3.7));
    EXPECT_EQ(123457, tovu::math::round(123456.78));
    std::int64_t const lowest = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(lowest, tovu::math::round(1e19));
    EXPECT_EQ(lowest, tovu::math::round(-1e19));
    EXPECT_EQ(lowest, tovu::math::round(std::nan("")));
    EXPECT_EQ(lowest, tovu::math::round(-0x1p63));
    EXPECT_EQ(lowest, tovu::math::round(0x1p63));
    EXPECT_EQ(std::int64_t(1) << 62, tovu::math::round(0x1p62));
}

TEST(FieldTextToInt64, WholePartOfGermanNumbers)
{
    EXPECT_EQ(-42, string2Int64(" -42 "));
    EXPECT_EQ(7, string2Int64("+ 7"));
    EXPECT_EQ(12, string2Int64("12,9"));
    EXPECT_EQ(-12, string2Int64("-12,9"));
    EXPECT_EQ(0, string2Int64(" -,5"));
    EXPECT_EQ(0, string2Int64("-"));
    EXPECT_EQ(0, string2Int64("1.5"));
    EXPECT_EQ(0, string2Int64("12a"));
    EXPECT_EQ(0, string2Int64(""));
    EXPECT_EQ(42, string2Int64("0042"));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::max(), string2Int64("99999999999999999999"));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), string2Int64("-9223372036854775808"));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), string2Int64("-99999999999999999999,5"));
}

TEST(FieldTextToDouble, CommaSeparatedValues)
{
    EXPECT_EQ(1.5, string2Double("1,5"));
    EXPECT_EQ(-0.5, string2Double(" -,5"));
    EXPECT_EQ(0.0, string2Double("1.5"));
    EXPECT_EQ(0.0, string2Double("abc"));
    EXPECT_EQ(0.0, string2Double(""));
    EXPECT_EQ(0.0, string2Double("1,5,0"));
    EXPECT_EQ(0.0, string2Double("+"));
    EXPECT_EQ(0.0, string2Double(","));
    EXPECT_EQ(5.0, string2Double("5,"));
    EXPECT_EQ(-1.5, string2Double("- 1,5\r\n"));
    EXPECT_EQ(-123456.78, string2Double("-123456,78"));
    EXPECT_TRUE(std::signbit(string2Double("-0")));
    EXPECT_EQ(1.5f, string2Float("1,5"));
    EXPECT_EQ(std::numeric_limits<float>::infinity(), string2Float("1" + string(39, '0')));
    EXPECT_EQ(-std::numeric_limits<float>::infinity(), string2Float("-1" + string(39, '0')));

    // Where the conversion itself fails, its error reaches the caller.
    EXPECT_THROW(string2Double("-"), boost::bad_lexical_cast);
    EXPECT_THROW(string2Double(string(400, '9')), boost::bad_lexical_cast);
    EXPECT_THROW(string2Float(" - "), boost::bad_lexical_cast);
    EXPECT_EQ(0.0, string2Double("0," + string(400, '0') + "1"));
}

TEST(FieldTextToDouble, MatchesTheDescribedConversion)
{
    std::mt19937 rng(2024);
    char const alphabet[] = " +-,.0123456789\t";
    for (int i = 0; i < 30000; ++i) {
        string s;
        std::size_t const length = rng() % 9;
        for (std::size_t j = 0; j < length; ++j)
            s += alphabet[rng() % (sizeof alphabet - 1)];
        ASSERT_EQ(describedDouble(s), actualDouble(s)) << "[" << s << "]";
    }
    std::uniform_real_distribution<double> amounts(-1e9, 1e9);
    for (int i = 0; i < 20000; ++i) {
        string const s = double2String(amounts(rng), static_cast<int>(rng() % 12));
        ASSERT_EQ(describedDouble(s), actualDouble(s)) << s;
    }
}
