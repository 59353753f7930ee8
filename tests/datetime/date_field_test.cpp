#include <gtest/gtest.h>

#include <cstdio>

#include <tovuutil/tovuutil.h>

namespace {

using Codes = std::list<int>;

std::string date(int day, int month, int year)
{
    char text[32];
    std::snprintf(text, sizeof text, "%02d.%02d.%04d", day, month, year);
    return text;
}

// Computed here independently of the library.
int daysIn(int month, int year)
{
    static int const lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    bool const leap = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
    return month == 2 && leap ? 29 : lengths[month - 1];
}

} // namespace

TEST(DateField, SingleDates)
{
    EXPECT_EQ(checkDateFormatT("29.02."), Codes{});
    EXPECT_EQ(checkDateFormatT("30.02."), Codes{7});
    EXPECT_EQ(checkDateFormatT("29.02"), Codes{1});
    EXPECT_EQ(checkDateFormatT("29-02."), Codes{2});
    EXPECT_EQ(checkDateFormatD("29.02.1900"), Codes{6});
    EXPECT_EQ(checkDateFormatD("29.02.2000"), Codes{});
    EXPECT_EQ(checkDateFormatD("29.02.1889"), (Codes{5, 6}));
    EXPECT_EQ(checkDateFormatD("31.04.2020"), Codes{8});
    EXPECT_EQ(checkDateFormatD("00.13.1800"), (Codes{4, 5, 9}));
    EXPECT_EQ(checkDateFormatD("32.13.2020"), (Codes{4, 9}));
    EXPECT_EQ(checkDateFormatD("1.1.2020"), Codes{1});
    EXPECT_EQ(checkDateFormatD("01-01-2020"), Codes{2});
    EXPECT_EQ(checkDateFormatD("01.01.99999"), Codes{1});
    EXPECT_EQ(checkDateFormatD("01.01.\xB2\xB3\xB2\xB3"), Codes{2}); // high bytes are no digits
    EXPECT_EQ(checkDateFormatT("29.02.", "2023"), Codes{6});
    EXPECT_EQ(checkDateFormatT("29.02.", "2024"), Codes{});
    EXPECT_EQ(checkDateFormatT("29.02", "2024"), Codes{1});
    EXPECT_EQ(checkDateFormatE("29.02.23"), Codes{});
    EXPECT_EQ(checkDateFormatE("31.06.23"), Codes{8});
    EXPECT_EQ(checkDateFormatL("13.99"), Codes{4});
    EXPECT_EQ(checkDateFormatL("12.99"), Codes{});
    EXPECT_EQ(checkDateFormatL("1.999"), Codes{2});
    EXPECT_EQ(checkDateFormatK("13"), 4);
    EXPECT_EQ(checkDateFormatK("1"), 1);
    EXPECT_EQ(checkDateFormatK("1a"), 2);
    EXPECT_EQ(checkDateFormatK("00"), 4);
    EXPECT_EQ(checkDateFormatK("12"), 0);
    EXPECT_EQ(checkDateFormatD(std::string(100000, '1')), Codes{1});
    EXPECT_EQ(checkDateFormatD(""), Codes{1});
}

TEST(DateField, EveryDayOfFourCenturies)
{
    for (int year = 1890; year <= 2300; ++year)
        for (int month = 1; month <= 12; ++month)
            for (int day = 1; day <= 31; ++day) {
                Codes const codes = checkDateFormatD(date(day, month, year));
                if (day <= daysIn(month, year)) {
                    ASSERT_EQ(codes, Codes{}) << date(day, month, year);
                    ASSERT_EQ(calcValue4FormatD(date(day, month, year)), year * 10000L + month * 100 + day);
                } else {
                    int const expected = month == 2 ? (daysIn(2, year) == 29 ? 7 : 6) : (day == 31 ? 8 : 9);
                    ASSERT_EQ(codes, Codes{expected}) << date(day, month, year);
                }
            }
}

TEST(DateField, Ranges)
{
    EXPECT_EQ(checkDateFormatB("01.05-30.04"), Codes{100});
    EXPECT_EQ(checkDateFormatB("32.01-01.13"), (Codes{19, 24}));
    EXPECT_EQ(checkDateFormatB("01.01-31.12"), Codes{});
    EXPECT_EQ(checkDateFormatB("01.01-31.12x"), Codes{1});
    EXPECT_EQ(checkDateFormatB("01.01.31.12"), Codes{2});
    EXPECT_EQ(checkDateFormatB("29.02-01.03", "2023"), Codes{16});
    EXPECT_EQ(checkDateFormatB("29.02-01.03", "2024"), Codes{});
    EXPECT_EQ(checkDateFormatB("01.03-01.02", "1880"), (Codes{15, 25, 100}));
    EXPECT_EQ(checkDateFormatZ("01.01.2020-31.12.2019"), Codes{100});
    EXPECT_EQ(checkDateFormatZ("31.04.2020-29.02.2021"), (Codes{18, 26}));
    EXPECT_EQ(checkDateFormatZ("01.01.2020/31.12.2020"), Codes{2});
}

TEST(DateField, ValuesAndVerdicts)
{
    EXPECT_EQ(calcValue4FormatD("24.12.2023"), 20231224);
    EXPECT_EQ(calcValue4FormatE("24.12.23"), 231224);
    EXPECT_EQ(calcValue4FormatT("x"), -1);
    EXPECT_EQ(calcValue4FormatT("24.12"), 1224);
    EXPECT_EQ(calcValue4FormatD("24.12.23"), -1);

    EXPECT_EQ(compareFormatD("01.01.2020", "02.01.2020"), '<');
    EXPECT_EQ(compareFormatD("01.01.2021", "02.01.2020"), '>');
    EXPECT_EQ(compareFormatD("01.01.2020", "01.01.2020"), '=');
    EXPECT_EQ(compareFormatD("31.02.2020", "01.01.2020"), ' ');
    EXPECT_EQ(compareFormatT("01.02.", "31.01."), '>');
    EXPECT_EQ(compareFormatT("01.02.", "x"), ' ');
    EXPECT_EQ(compareRangeFormatK("03", "11"), '<');
    EXPECT_EQ(compareRangeFormatK("11", "11"), '=');
    EXPECT_EQ(compareRangeFormatK("13", "11"), ' ');

    EXPECT_EQ(compareRangeFormatZ("01.01.2020-10.01.2020", "10.01.2020-20.01.2020"), 'c');
    EXPECT_EQ(compareRangeFormatZ("01.01.2020-10.01.2020", "01.01.2020-10.01.2020"), '=');
    EXPECT_EQ(compareRangeFormatZ("01.01.2020-09.01.2020", "10.01.2020-20.01.2020"), '<');
    EXPECT_EQ(compareRangeFormatZ("21.01.2020-22.01.2020", "10.01.2020-20.01.2020"), '>');
    EXPECT_EQ(compareRangeFormatZ("21.01.2020-01.01.2020", "10.01.2020-20.01.2020"), ' ');
    EXPECT_EQ(compareRangeFormatB("01.03-31.03", "01.04-30.04"), '<');
    EXPECT_EQ(compareRangeFormatB("15.03-15.04", "01.04-30.04"), 'c');
}
