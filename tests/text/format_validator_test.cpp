#include <gtest/gtest.h>

#include <tovuutil/tovuutil.h>

TEST(FormatNormalisers, SignsZerosAndCommas)
{
    EXPECT_EQ(formatRemoveSign(" - 5 "), "5");
    EXPECT_EQ(formatRemoveSign("--5"), "-5"); // one sign only
    EXPECT_EQ(erasePlus(" + 3"), "3");
    EXPECT_EQ(erasePlus("-3"), "-3");
    EXPECT_EQ(formatNumericUnsigned(" -007 "), "007");
    EXPECT_EQ(formatNumericUnsigned("+"), "0");
    EXPECT_EQ(formatNumericUnsigned("", 2), "00");
    EXPECT_EQ(formatNumericUnsigned("12345", 3), "12345"); // never cut
    EXPECT_EQ(formatNumeric(" +0042 "), "0042");
    EXPECT_EQ(formatNumeric("-5", 3), "-005");
    EXPECT_EQ(formatNumeric("- 5"), "-5");
    EXPECT_EQ(trimLeadingZero("-007,5"), "-7,5");
    EXPECT_EQ(trimLeadingZero("000"), "0");
    EXPECT_EQ(trimLeadingZero("00,5"), "0,5");
    EXPECT_EQ(trimLeadingZero("0100"), "100");
    EXPECT_EQ(formatFloat("-,5"), "-0,5");
    EXPECT_EQ(formatFloat(" + ,5"), "0,5");
    EXPECT_EQ(formatFloat("abc"), "abc"); // digits are not validated
}

TEST(FormatPredicates, NumbersFloatsAmounts)
{
    EXPECT_TRUE(isOnlyDigits(""));
    EXPECT_FALSE(isOnlyDigits(" 1"));
    EXPECT_FALSE(isOnlyDigits("\xB2")); // superscript two is no digit

    EXPECT_TRUE(isNumeric(" -12 "));
    EXPECT_TRUE(isNumeric("+ 7"));
    for (char const* no : {"-", "", "1,0", "1.0", "1 2", "\xE4"})
        EXPECT_FALSE(isNumeric(no)) << no;

    for (char const* yes : {"1,5", "-,5", "-", "+", ",", "5,", ",5", " 12 "})
        EXPECT_TRUE(isFloat(yes)) << yes;
    for (char const* no : {"1.5", "1,5,0", "  ", "", "1e5"})
        EXPECT_FALSE(isFloat(no)) << no;

    EXPECT_TRUE(isAmount("12,50"));
    EXPECT_TRUE(isAmount(",50"));
    EXPECT_TRUE(isAmount(" -1,00 "));
    EXPECT_FALSE(isAmount("12,5"));
    EXPECT_FALSE(isAmount("1250"));
    EXPECT_FALSE(isAmount("1,500"));
}

TEST(FormatPredicates, WholeNumberCodes)
{
    EXPECT_TRUE(isFormatN("-3"));
    EXPECT_TRUE(isFormatU("+3"));
    EXPECT_FALSE(isFormatU("-0"));
    EXPECT_TRUE(isFormatO("03"));
    EXPECT_FALSE(isFormatO("+3"));
    EXPECT_FALSE(isFormatG("0"));
    EXPECT_TRUE(isFormatG("+3"));
    EXPECT_FALSE(isFormatG("-3"));
    EXPECT_TRUE(isFormatM("-3"));
    EXPECT_FALSE(isFormatM("0"));
    EXPECT_FALSE(isFormatM("-0"));
    EXPECT_TRUE(isFormatY("2"));
    EXPECT_TRUE(isFormatY(" 1 "));
    EXPECT_FALSE(isFormatY("3"));
    EXPECT_FALSE(isFormatY("02"));
    EXPECT_TRUE(isFormatJ("1"));
    EXPECT_FALSE(isFormatJ("2"));
}

TEST(FormatPredicates, AmountCodes)
{
    EXPECT_TRUE(isFormatP("-1,00"));
    EXPECT_FALSE(isFormatR("0,00"));
    EXPECT_TRUE(isFormatR("0,01"));
    EXPECT_TRUE(isFormatS("-1,00"));
    EXPECT_FALSE(isFormatS("-0,00"));
    EXPECT_TRUE(isFormatPROZENT("150,00"));
    EXPECT_TRUE(isFormatPROZENT("0,00"));
    EXPECT_FALSE(isFormatPROZENT("-1,00"));
    EXPECT_FALSE(isFormatPROZENT("100"));
}

TEST(FormatPredicates, DecimalCodesAndTheFourCharacterLimit)
{
    EXPECT_TRUE(isFormatF("12,3456"));
    EXPECT_FALSE(isFormatF("12,34567"));
    EXPECT_FALSE(isFormatF("-1,5"));
    EXPECT_TRUE(isFormatF("123456"));
    EXPECT_TRUE(isFormatF(",5"));
    EXPECT_FALSE(isFormatF("-")); // a lone sign is a float but no value: refused, not thrown

    EXPECT_TRUE(isFormatV("-1,5"));
    EXPECT_TRUE(isFormatV("1234"));
    EXPECT_FALSE(isFormatV("12345"));
    EXPECT_FALSE(isFormatV("-1234"));
    EXPECT_TRUE(isFormatV("123456,1234"));
    EXPECT_FALSE(isFormatV("1,12345"));
}
