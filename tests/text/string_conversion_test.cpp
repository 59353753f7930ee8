// Number and truth-value conversions.

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>
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
    EXPECT_FALSE(string2Bool("j a"));
    EXPECT_FALSE(string2Bool("\vja"));
}

TEST(TextToInteger, LeadingNumberLikeAtoi)
{
    EXPECT_EQ(42, string2Int("  42abc"));
    EXPECT_EQ(-7, string2Int("\t\n-7"));
    EXPECT_EQ(5, string2Int("+5"));
    EXPECT_EQ(0, string2Int("x1"));
    EXPECT_EQ(0, string2Int(""));
    EXPECT_EQ(0, string2Int("- 1"));
    EXPECT_EQ(12, string2Int("12,9"));
    EXPECT_EQ(std::numeric_limits<int>::max(), string2Int("99999999999999999999"));
    EXPECT_EQ(std::numeric_limits<int>::min(), string2Int("-2147483649"));
    EXPECT_EQ(std::numeric_limits<int>::min(), string2Int("-2147483648"));
    EXPECT_EQ(123456789L, string2Long(" 123456789 "));
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
