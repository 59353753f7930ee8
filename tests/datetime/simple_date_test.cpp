#include <gtest/gtest.h>

#include <climits>
#include <cstdio>

#include <tovuutil/tovuutil.h>

namespace {

std::string text(int day, int month, int year)
{
    char buffer[48];
    std::snprintf(buffer, sizeof buffer, "%02d.%02d.%04d", day, month, year);
    return buffer;
}

std::string fields(SimpleDate const& d)
{
    return std::to_string(d.getDay()) + "." + std::to_string(d.getMonth()) + "." + std::to_string(d.getYear());
}

TovuDate at(std::string const& s)
{
    TovuDate d(SimpleDate(0, 0, 0), SimpleTime(0, 0, 0, 0));
    EXPECT_TRUE(d.initFormatD(s)) << s;
    return d;
}

} // namespace

TEST(SimpleDate, FieldTexts)
{
    SimpleDate d(1, 1, 2000);
    EXPECT_TRUE(d.initFormatD("24.12.2023"));
    EXPECT_EQ(fields(d), "24.12.2023");
    EXPECT_TRUE(d.initFormatD("31.02.2023")); // stored unchecked
    EXPECT_EQ(fields(d), "31.2.2023");
    EXPECT_FALSE(d.isValid());

    // The century rule: 00..49 in this century, 50..99 in the last.
    EXPECT_TRUE(d.initFormatE("24.12.49"));
    EXPECT_EQ(fields(d), "24.12.2049");
    EXPECT_TRUE(d.initFormatE("01.01.50"));
    EXPECT_EQ(fields(d), "1.1.1950");
    EXPECT_EQ(SimpleDate::expandYear(0), 2000);
    EXPECT_EQ(SimpleDate::expandYear(100), 100);

    EXPECT_TRUE(d.initFormatT("29.02.", 2024));
    EXPECT_TRUE(d.isValid());
    EXPECT_TRUE(d.initFormatT("29.02.", 2023));
    EXPECT_FALSE(d.isValid());

    // Wrong length or shape: false and 0.0.0.
    for (char const* bad : {"1.1.2020", "01-01-2020", "24.12.2023 ", "", "\xB2\xB3.01.2020"}) {
        d = SimpleDate(5, 5, 2005);
        EXPECT_FALSE(d.initFormatD(bad)) << bad;
        EXPECT_EQ(fields(d), "0.0.0") << bad;
    }
    EXPECT_FALSE(d.initFormatE("24.12.2023"));
    EXPECT_FALSE(d.initFormatT("24.12", 2023));
}

// isValid and getValue speak the language of the date-field checks; only the
// field check's lower year limit (code 5) is not a calendar rule.
TEST(SimpleDate, AgreesWithTheDateFieldCheck)
{
    for (int year : {1, 4, 100, 1600, 1889, 1890, 1900, 2000, 2023, 2024, 9999})
        for (int month = 0; month <= 13; ++month)
            for (int day = 0; day <= 32; ++day) {
                std::list<int> codes = checkDateFormatD(text(day, month, year));
                codes.remove(5);
                SimpleDate const date(day, month, year);
                EXPECT_EQ(date.isValid(), codes.empty()) << text(day, month, year);
                EXPECT_EQ(date.getValue(), calcValue4FormatD(text(day, month, year)));
            }
    EXPECT_FALSE(SimpleDate(1, 1, 0).isValid());
    EXPECT_FALSE(SimpleDate(1, 1, 10000).isValid());
    EXPECT_EQ(SimpleDate(1, 1, 10000).getValue(), -1);
    EXPECT_EQ(SimpleDate(-1, 1, 2000).getValue(), -1);
    EXPECT_EQ(SimpleDate::daysInMonth(2, 1900), 28);
    EXPECT_EQ(SimpleDate::daysInMonth(2, 2000), 29);
    EXPECT_EQ(SimpleDate::daysInMonth(13, 2000), 0);
}

TEST(SimpleDate, ArithmeticClampsAndStaysInTheCalendar)
{
    struct Case {
        SimpleDate from;
        bool (SimpleDate::*move)(long);
        long by;
        char const* to;
    } const cases[] = {
        {SimpleDate(31, 1, 2024), &SimpleDate::addMonths, 1, "29.2.2024"},
        {SimpleDate(31, 1, 2023), &SimpleDate::addMonths, 1, "28.2.2023"},
        {SimpleDate(29, 2, 2024), &SimpleDate::addYears, 1, "28.2.2025"},
        {SimpleDate(31, 3, 2024), &SimpleDate::addMonths, -13, "28.2.2023"},
        {SimpleDate(28, 2, 2024), &SimpleDate::addDays, 2, "1.3.2024"},
    };
    for (Case const& c : cases) {
        SimpleDate d = c.from;
        EXPECT_TRUE((d.*c.move)(c.by));
        EXPECT_EQ(fields(d), c.to);
    }

    // Leaving the years 1..9999, or starting from an invalid date, changes nothing.
    SimpleDate d(31, 12, 9999);
    EXPECT_FALSE(d.addDays(1));
    EXPECT_FALSE(d.addMonths(LONG_MAX));
    EXPECT_FALSE(d.addYears(LONG_MIN));
    EXPECT_FALSE(d.addDays(LONG_MIN));
    EXPECT_FALSE(d.addDays(LONG_MAX));
    EXPECT_FALSE(d.addYears(LONG_MAX));
    EXPECT_EQ(fields(d), "31.12.9999");
    d = SimpleDate(1, 1, 1);
    EXPECT_FALSE(d.addMonths(-1));
    EXPECT_EQ(fields(d), "1.1.1");
    d = SimpleDate(30, 2, 2024);
    EXPECT_FALSE(d.addDays(1));
    EXPECT_EQ(fields(d), "30.2.2024");

    EXPECT_EQ(SimpleDate(1, 1, 2024).daysUntil(SimpleDate(1, 3, 2024)), 60);
    EXPECT_EQ(SimpleDate(1, 3, 2023).daysUntil(SimpleDate(1, 1, 2023)), -59);
    EXPECT_EQ(SimpleDate(1, 1, 1).daysUntil(SimpleDate(31, 12, 9999)), 3652058);
    EXPECT_EQ(SimpleDate(1, 1, 2024).daysUntil(SimpleDate(0, 1, 2024)), 0);

    EXPECT_EQ(fields(SimpleDate::fromDayNumber(1)), "1.1.1");
    EXPECT_EQ(fields(SimpleDate::fromDayNumber(0)), "0.0.0");
    EXPECT_EQ(fields(SimpleDate::fromDayNumber(3652060)), "0.0.0");
    EXPECT_EQ(SimpleDate(31, 4, 2024).getDayNumber(), 0);
    EXPECT_EQ(SimpleDate(31, 4, 2024).getDayOfWeek(), -1);
    EXPECT_EQ(SimpleDate(31, 4, 2024).getIsoWeek(), -1);
}

TEST(SimpleDate, FormattingInGerman)
{
    // 05.03.2024 is a Tuesday, day 65, in week 10.
    SimpleDate const d(5, 3, 2024);
    EXPECT_EQ(d.getFormatted(), "05.03.2024");
    EXPECT_EQ(d.getFormatted("%a %A|%d.%m.%Y %y|%j|%V %G|%b %B|%Q %%"),
              "Di Dienstag|05.03.2024 24|065|10 2024|M\xE4r M\xE4rz|%Q %%");
    EXPECT_EQ(SimpleDate(1, 1, 2021).getFormatted("%G-W%V"), "2020-W53");
    EXPECT_EQ(SimpleDate(31, 12, 2024).getFormatted("%j"), "366");
    EXPECT_EQ(SimpleDate(7, 1, 5).getFormatted("%Y %y"), "0005 05");

    std::string weekdays, months;
    for (int day = 1; day <= 7; ++day) // 01.01.2024 is a Monday
        weekdays += SimpleDate(day, 1, 2024).getFormatted("%a %A,");
    EXPECT_EQ(weekdays, "Mo Montag,Di Dienstag,Mi Mittwoch,Do Donnerstag,Fr Freitag,Sa Samstag,So Sonntag,");
    for (int month = 1; month <= 12; ++month)
        months += SimpleDate(1, month, 2024).getFormatted("%b %B,");
    EXPECT_EQ(months, "Jan Januar,Feb Februar,M\xE4r M\xE4rz,Apr April,Mai Mai,Jun Juni,Jul Juli,"
                      "Aug August,Sep September,Okt Oktober,Nov November,Dez Dezember,");

    // An invalid date keeps its numbers; what needs the calendar is empty.
    EXPECT_EQ(SimpleDate(31, 2, 2023).getFormatted("%d.%m.%Y|%a|%A|%j|%V|%G|%b"), "31.02.2023||||||Feb");
    EXPECT_EQ(SimpleDate(0, 13, -5).getFormatted("%d.%m.%Y|%B"), "00.13.-0005|");
}

TEST(TovuDate, TextsAndValidity)
{
    EXPECT_EQ(at("24.12.2023 18:05:09").getFormatted("%d.%m.%Y %T.%X"), "24.12.2023 18:05:09.000");
    EXPECT_EQ(at("24.12.2023").getFormatted(), "24.12.2023 00:00:00");
    EXPECT_TRUE(at("29.02.2024 23:59:59").isValid());
    EXPECT_FALSE(at("29.02.2023 12:00:00").isValid());
    EXPECT_FALSE(at("01.01.2024 24:00:00").isValid());
    EXPECT_FALSE(at("01.01.2024 12:60:00").isValid());

    for (char const* bad : {"24.12.2023 18:05", "24.12.2023T18:05:09", "24.12.2023 18:05:09 ", "24.12.2023 1:05:09",
                            "24.12.2023 18.05.09", "2023-12-24 18:05:09", "24.12.23 18:05:09", ""}) {
        TovuDate d = at("01.01.2000 01:01:01");
        EXPECT_FALSE(d.initFormatD(bad)) << bad;
        EXPECT_EQ(d.getFormatted(), "00.00.0000 00:00:00") << bad;
        EXPECT_FALSE(d.isValid());
    }
}

TEST(TovuDate, ArithmeticCarriesDaysBothWays)
{
    TovuDate d = at("31.12.2023 23:30:00");
    EXPECT_TRUE(d.add(1, 0, 0, 0));
    EXPECT_EQ(d.getFormatted(), "01.01.2024 00:30:00");
    EXPECT_TRUE(d.subtract(1, 0, 0, 0)); // back over midnight, unlike SimpleTime::subtract
    EXPECT_EQ(d.getFormatted(), "31.12.2023 23:30:00");
    EXPECT_TRUE(d.add(0, 0, 0, 3 * 86400000 + 1));
    EXPECT_EQ(d.getFormatted("%d.%m.%Y %T.%X"), "03.01.2024 23:30:00.001");
    EXPECT_TRUE(d.subtract(0, 0, 0, INT_MAX)); // 24 days 20:31:23.647
    EXPECT_EQ(d.getFormatted("%d.%m.%Y %T.%X"), "10.12.2023 02:58:36.354");
    EXPECT_TRUE(d.add(0, 75, 0, 0)); // 75 minutes count as 0, as in SimpleTime
    EXPECT_EQ(d.getFormatted("%d.%m.%Y %T.%X"), "10.12.2023 02:58:36.354");

    TovuDate last = at("31.12.9999 23:59:59");
    EXPECT_FALSE(last.add(0, 0, 1, 0));
    EXPECT_EQ(last.getFormatted(), "31.12.9999 23:59:59");
    TovuDate first = at("01.01.0001 00:00:00");
    EXPECT_FALSE(first.subtract(0, 0, 0, 1));
    EXPECT_EQ(first.getFormatted(), "01.01.0001 00:00:00");
    TovuDate invalid = at("01.01.2024 25:00:00");
    EXPECT_FALSE(invalid.add(1, 0, 0, 0));
    EXPECT_EQ(invalid.getFormatted(), "01.01.2024 25:00:00");

    EXPECT_EQ(at("31.12.2023 23:00:00").milliSecondsUntil(at("01.01.2024 01:00:00")), 7200000);
    EXPECT_EQ(at("01.01.2024 01:00:00").milliSecondsUntil(at("31.12.2023 23:00:00")), -7200000);
    EXPECT_EQ(at("01.01.0001").milliSecondsUntil(at("31.12.9999 23:59:59")), 3652058LL * 86400000 + 86399000);
    EXPECT_EQ(at("01.01.2024").milliSecondsUntil(invalid), 0);
    EXPECT_EQ(at("01.01.0001").getValue(), 86400000);
}

TEST(TovuDate, ComparesDateBeforeTime)
{
    TovuDate const a = at("31.12.2023 23:59:59"), b = at("01.01.2024 00:00:00");
    EXPECT_TRUE(a < b && a <= b && b > a && b >= a && a != b && !(a == b));
    EXPECT_TRUE(at("01.01.2024 10:00:00") < at("01.01.2024 10:00:01"));
    EXPECT_TRUE(a.getDate() < b.getDate() && a.getDate() == SimpleDate(31, 12, 2023));
}

// Now from one clock reading: date and time agree with each other, and the
// temporary directory names carry that reading.
TEST(TovuDate, NowAndTemporaryDirectoryNames)
{
    TovuDate const before;
    std::string const name = createTempDirName(".");
    TovuDate const after;
    ASSERT_TRUE(before.isValid());
    EXPECT_TRUE(before <= after);
    EXPECT_TRUE(before.getDate() <= SimpleDate());

    ASSERT_GE(name.size(), 12u);
    std::string leaf = replacePattern(name.substr(name.size() - 12), "-", "/");
    unsigned char record[9] = {0};
    ASSERT_EQ(BaseDecode::Base64Decode(record, leaf.data(), 12), 9u);
    TovuDate const stamped(SimpleDate(record[5], record[4], record[0] | record[1] << 8),
                           SimpleTime(record[6], record[7], record[8], record[2] | record[3] << 8));
    EXPECT_TRUE(before <= stamped && stamped <= after) << stamped.getFormatted("%d.%m.%Y %T.%X");
}
