#include <gtest/gtest.h>

#include <climits>
#include <ctime>

#include <tovuutil/tovuutil.h>

namespace {
std::string text(SimpleTime const& t) { return t.getFormatted("%H:%M:%S.%X"); }
} // namespace

TEST(SimpleTime, AddCarriesDaysButSubtractDoesNotWrap)
{
    SimpleTime late(23, 30, 0, 0);
    EXPECT_EQ(late.add(1, 0, 0, 0), 1);
    EXPECT_EQ(text(late), "00:30:00.000");

    SimpleTime early(0, 30, 0, 0);
    EXPECT_EQ(early.subtract(1, 0, 0, 0), 0);
    EXPECT_EQ(text(early), "00:30:00.000"); // the absolute difference
    EXPECT_EQ(early.subtract(25, 0, 0, 0), 0); // 25 hours count as 0
    EXPECT_EQ(text(early), "00:30:00.000");

    SimpleTime t(12, 0, 0, 0);
    EXPECT_EQ(t.add(23, 59, 59, 1000 * 3600 * 24), 2); // milliseconds go in unchecked
    EXPECT_EQ(text(t), "11:59:59.000");
    SimpleTime u(1, 0, 0, 0);
    EXPECT_EQ(u.subtract(0, 0, 0, 3 * 86400000), -2);
    EXPECT_EQ(text(u), "23:00:00.000");
    SimpleTime v(1, 0, 0, 0);
    EXPECT_EQ(v.add(0, 0, 0, -7200000), 0); // a negative remainder sets midnight
    EXPECT_EQ(text(v), "00:00:00.000");
}

TEST(SimpleTime, OutOfRangeComponentsCountAsZero)
{
    EXPECT_EQ(SimpleTime(10, 75, 0, 0).getValue(), 36000000);
    EXPECT_EQ(SimpleTime(24, 1, 60, 1500).getValue(), 60000 + 1500);
    EXPECT_EQ(SimpleTime(0, 0, 1, -3).getValue(), 997);
    EXPECT_EQ(SimpleTime(1, 2, 3, 4).calcSecondsOfTime(), 3723);
    EXPECT_EQ(SimpleTime(1, 2, 3, 4).getTimeValueMilliSeconds(), 3723004);
}

TEST(SimpleTime, SettingFromCounts)
{
    SimpleTime t(1, 2, 3, 4);
    t.setTimeValueByMilliSeconds(86400000);
    EXPECT_EQ(text(t), "00:00:00.000");
    t.setTimeValueByMilliSeconds(86399999);
    EXPECT_EQ(text(t), "23:59:59.999");
    t.setTimeValueByMilliSeconds(-1);
    EXPECT_EQ(text(t), "00:00:00.000");
    t.setTimeValueBySeconds(3661);
    EXPECT_EQ(text(t), "01:01:01.000");
    // seconds * 1000 wraps in 32 bits: 4294968 s is 4294968000 ms, which wraps to 704.
    t.setTimeValueBySeconds(4294968);
    EXPECT_EQ(text(t), "00:00:00.000"); // milliseconds are always set to 0
    t.setTimeValueBySeconds(4294968 + 3600);
    EXPECT_EQ(text(t), "01:00:00.000");
    t.setTimeValueBySeconds(LONG_MAX);
    EXPECT_EQ(text(t), "00:00:00.000");
}

TEST(SimpleTime, ParsingComparingAndOperators)
{
    SimpleTime t(9, 9, 9, 9);
    t.initFormatT("2024-01-01 12:34:56");
    EXPECT_EQ(text(t), "12:34:56.000");
    t.initFormatT("7:05:09");
    EXPECT_EQ(text(t), "07:05:09.000");
    t.initFormatT("garbage");
    EXPECT_EQ(text(t), "00:00:00.000");

    SimpleTime a(10, 0, 0, 0), b(10, 0, 0, 1);
    EXPECT_TRUE(a < b);
    EXPECT_TRUE(a <= b);
    EXPECT_TRUE(b > a);
    EXPECT_TRUE(b >= a);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a == SimpleTime(10, 60, 0, 0)); // 60 minutes count as 0
    EXPECT_EQ(text(SimpleTime(23, 0, 0, 0) + SimpleTime(2, 0, 0, 0)), "01:00:00.000");
    EXPECT_EQ(text(SimpleTime(1, 0, 0, 0) - SimpleTime(2, 0, 0, 0)), "01:00:00.000");
    SimpleTime c(0, 0, 0, 0);
    c += SimpleTime(0, 1, 0, 0);
    c -= SimpleTime(0, 0, 30, 0);
    EXPECT_EQ(text(c), "00:00:30.000");
}

TEST(SimpleTime, Formatting)
{
    EXPECT_EQ(SimpleTime(9, 5, 0, 0).getFormatted("%H.%M Uhr"), "09.05 Uhr");
    EXPECT_EQ(SimpleTime(12, 0, 0, 0).getFormat_p(), "am");
    EXPECT_EQ(SimpleTime(0, 0, 0, 0).getFormat_p(), "pm");
    EXPECT_EQ(SimpleTime(0, 0, 0, 0).getFormat_I(), "12");
    EXPECT_EQ(SimpleTime(13, 0, 0, 0).getFormat_I(), "01");
    EXPECT_EQ(SimpleTime(12, 0, 0, 0).getFormat_I(), "12");
    EXPECT_EQ(SimpleTime(0, 0, 0, 7).getFormat_X(), "007");
    EXPECT_EQ(SimpleTime(0, 0, 0, -7).getFormat_X(), "-007");
    EXPECT_EQ(SimpleTime(14, 3, 9, 0).getFormat_r(), "02:03:09 pm");
    EXPECT_EQ(SimpleTime(14, 3, 9, 0).getFormatted(), "14:03:09");
    EXPECT_EQ(SimpleTime(14, 3, 9, 5).getFormatted("[%T|%R|%X|%Q|%%H]"), "[14:03:09|14:03|005|%Q|%14]");
}

TEST(SimpleTime, NowIsTheLocalTimeOfDay)
{
    std::time_t const before = std::time(nullptr);
    SimpleTime now;
    std::time_t const after = std::time(nullptr);
    std::tm b{}, a{};
#ifdef _WIN32
    localtime_s(&b, &before);
    localtime_s(&a, &after);
#else
    localtime_r(&before, &b);
    localtime_r(&after, &a);
#endif
    long const low = b.tm_hour * 3600L + b.tm_min * 60 + b.tm_sec;
    long const high = a.tm_hour * 3600L + a.tm_min * 60 + a.tm_sec;
    if (high >= low) { // not across midnight
        EXPECT_GE(now.calcSecondsOfTime(), low);
        EXPECT_LE(now.calcSecondsOfTime(), high);
    }
    EXPECT_GE(now.getMilliSeconds(), 0);
    EXPECT_LT(now.getMilliSeconds(), 1000);
}
