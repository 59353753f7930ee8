#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include <tovuutil/tovuutil.h>

TEST(BaseN, FixedAlphabets)
{
    EXPECT_EQ(double2StringBase10(0), "0");
    EXPECT_EQ(double2StringBase34(0), "1");
    EXPECT_EQ(double2StringBase34(33), "Z");
    EXPECT_EQ(double2StringBase34(34), "21");
    EXPECT_EQ(double2StringBaseHex(255), "FF");
    EXPECT_EQ(double2StringBase36(1295), "ZZ");
    EXPECT_EQ(double2StringBase10(1234567890123.0), "1234567890123");

    EXPECT_EQ(string2doubleBase34("21"), 34);
    EXPECT_EQ(string2doubleBase36("ZZ"), 1295);
    EXPECT_EQ(string2doubleBaseHex("ff"), 255);
    EXPECT_EQ(string2doubleBaseHex("FF"), 255);
    EXPECT_EQ(string2doubleBase10(""), 0);
    // Only hex is read case-insensitively; unknown characters count -1.
    EXPECT_EQ(string2doubleBase36("zz"), -36 - 1);
    EXPECT_EQ(string2doubleBase10("1x"), 9);
    EXPECT_EQ(string2doubleBase34("0"), -1);
    // Reading stops at an embedded zero.
    EXPECT_EQ(string2doubleBase10(std::string("12\0" "9", 4)), 12);
}

TEST(BaseN, GeneralAlphabetsUseTheLastPosition)
{
    EXPECT_EQ(basen2double("ba", "abca"), 1 * 4 + 3);
    EXPECT_EQ(double2basen(5, "01"), "101");
    EXPECT_EQ(basen2double("\xE4\xF6", "\xE4\xF6\xFC"), 1);
}

TEST(BaseN, WholeNumbersUpTo2Pow53RoundTrip)
{
    std::mt19937_64 random(53);
    for (int i = 0; i < 2000; ++i) {
        double const v = static_cast<double>(random() >> (11 + random() % 53));
        EXPECT_EQ(string2doubleBase10(double2StringBase10(v)), v);
        EXPECT_EQ(string2doubleBaseHex(double2StringBaseHex(v)), v);
        EXPECT_EQ(string2doubleBase34(double2StringBase34(v)), v);
        EXPECT_EQ(string2doubleBase36(double2StringBase36(v)), v);
    }
    double const top = 9007199254740992.0; // 2^53
    EXPECT_EQ(double2StringBase10(top), "9007199254740992");
    EXPECT_EQ(string2doubleBase36(double2StringBase36(top)), top);
}

TEST(BaseN, CallerErrorsGiveEmptyTextAndFractionsEndInZeros)
{
    EXPECT_EQ(double2StringBase10(-1), "");
    EXPECT_EQ(double2StringBase10(std::nan("")), "");
    EXPECT_EQ(double2StringBase36(std::numeric_limits<double>::infinity()), "");
    EXPECT_EQ(double2basen(7, ""), "");
    EXPECT_EQ(double2basen(7, "x"), "");
    EXPECT_EQ(double2basen(0, "x"), "x");

    // 1.5: the digit 1, then the fraction divides down to nothing as zeros in front.
    std::string const fraction = double2StringBase10(1.5);
    ASSERT_GT(fraction.size(), 300u);
    EXPECT_EQ(fraction.back(), '1');
    EXPECT_EQ(fraction.find_first_not_of('0'), fraction.size() - 1);
    EXPECT_EQ(double2StringBase10(1e308).size(), 309u);
}

TEST(BaseN, CheckSumAddsDecimalDigitsOnly)
{
    EXPECT_EQ(checkSum("12-34"), 10);
    EXPECT_EQ(checkSum("abc"), 0);
    EXPECT_EQ(checkSum(""), 0);
    EXPECT_EQ(checkSum("9\xB9\xB2" "9"), 18); // superscript digits are not digits
}
