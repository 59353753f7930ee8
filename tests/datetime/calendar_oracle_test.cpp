// The calendar of SimpleDate checked against the standard library's C++20
// calendar types, which only this test is compiled with.
#include <gtest/gtest.h>

#include <chrono>

#include <tovuutil/tovuutil.h>

namespace {

using namespace std::chrono;

constexpr sys_days kFirst = sys_days{year{1} / January / 1};
constexpr sys_days kLast = sys_days{year{9999} / December / 31};
constexpr sys_days kDayZero = sys_days{year{0} / December / 31};

SimpleDate dateOf(year_month_day ymd)
{
    return SimpleDate(static_cast<int>(static_cast<unsigned>(ymd.day())),
                      static_cast<int>(static_cast<unsigned>(ymd.month())), static_cast<int>(ymd.year()));
}

bool sameFields(SimpleDate const& a, SimpleDate const& b)
{
    return a.getDay() == b.getDay() && a.getMonth() == b.getMonth() && a.getYear() == b.getYear();
}

// Stops a sweep after a few reports instead of millions.
struct Failures {
    int count = 0;
    bool more() const { return count < 5; }
    void report(std::string const& what, SimpleDate const& d)
    {
        ++count;
        ADD_FAILURE() << what << " at " << d.getFormatted();
    }
};

// Week and week-based year by the ISO rule: the week of day ordinal `o`
// with ISO weekday `w` (1..7) is (o - w + 10) / 7, where week 0 is the last
// week of the year before and a week 53 that the year does not have is week
// 1 of the next.
int isoWeeksIn(year y)
{
    weekday const first{sys_days{y / January / 1}};
    return first == Thursday || (y.is_leap() && first == Wednesday) ? 53 : 52;
}

std::pair<int, int> isoWeekOf(sys_days d)
{
    year_month_day const ymd{d};
    int const ordinal = static_cast<int>((d - sys_days{ymd.year() / January / 1}).count()) + 1;
    int const week = (ordinal - static_cast<int>(weekday{d}.iso_encoding()) + 10) / 7;
    if (week < 1)
        return {isoWeeksIn(ymd.year() - years{1}), static_cast<int>(ymd.year()) - 1};
    if (week > isoWeeksIn(ymd.year()))
        return {1, static_cast<int>(ymd.year()) + 1};
    return {week, static_cast<int>(ymd.year())};
}

} // namespace

TEST(CalendarOracle, EveryDayFromYear1To9999)
{
    Failures f;
    for (sys_days d = kFirst; d <= kLast && f.more(); d += days{1}) {
        year_month_day const ymd{d};
        SimpleDate const date = dateOf(ymd);
        long const number = static_cast<long>((d - kDayZero).count());
        if (!date.isValid())
            f.report("not valid", date);
        if (date.getDayNumber() != number)
            f.report("day number " + std::to_string(date.getDayNumber()), date);
        if (!sameFields(SimpleDate::fromDayNumber(number), date))
            f.report("from day number", date);
        if (date.getDayOfWeek() != static_cast<int>(weekday{d}.iso_encoding()) - 1)
            f.report("weekday", date);
        if (date.getDayOfYear() != (d - sys_days{ymd.year() / January / 1}).count() + 1)
            f.report("day of year", date);
        auto const [week, weekYear] = isoWeekOf(d);
        if (date.getIsoWeek() != week || date.getIsoWeekYear() != weekYear)
            f.report("ISO week " + std::to_string(date.getIsoWeek()), date);
    }
    EXPECT_EQ(SimpleDate(31, 12, 9999).getDayNumber(), 3652059);
}

TEST(CalendarOracle, EveryDayMovedByDays)
{
    long const steps[] = {1, -1, 30, -365, 146097, -1000000, 3652058};
    Failures f;
    for (sys_days d = kFirst; d <= kLast && f.more(); d += days{1}) {
        SimpleDate const date = dateOf(year_month_day{d});
        for (long step : steps) {
            sys_days const target = d + days{step};
            SimpleDate moved = date;
            bool const inside = target >= kFirst && target <= kLast;
            if (moved.addDays(step) != inside || !sameFields(moved, inside ? dateOf(year_month_day{target}) : date))
                f.report("addDays(" + std::to_string(step) + ")", date);
        }
    }
}

TEST(CalendarOracle, ValidityOfEveryDayMonthAndYear)
{
    Failures f;
    for (int y = 0; y <= 10000 && f.more(); ++y)
        for (int m = 0; m <= 13; ++m)
            for (int d = -1; d <= 32; ++d) {
                year_month_day const ymd{year{y}, month{static_cast<unsigned>(m)}, day{static_cast<unsigned>(d)}};
                bool const valid = d >= 0 && y >= 1 && y <= 9999 && ymd.ok();
                SimpleDate const date(d, m, y);
                if (date.isValid() != valid)
                    f.report("isValid", date);
                if (date.isValid() && date.getFormat_B().empty())
                    f.report("month name", date);
            }
}

// Every month end and the days before it, moved by months and years; a day
// the target month lacks becomes its last day.
TEST(CalendarOracle, MonthEndsMovedByMonthsAndYears)
{
    long const monthSteps[] = {1, -1, 2, 11, -12, 13, -25, 1200, -119987};
    long const yearSteps[] = {1, -1, 3, 4, 100, -400, 9998};
    auto clamped = [](year_month_day ymd) {
        return ymd.ok() ? ymd : year_month_day{year_month_day_last{ymd.year(), month_day_last{ymd.month()}}};
    };
    Failures f;
    for (int y = 1; y <= 9999 && f.more(); ++y)
        for (unsigned m = 1; m <= 12; ++m)
            for (unsigned dd = 28; dd <= 31; ++dd) {
                year_month_day const ymd{year{y}, month{m}, day{dd}};
                if (!ymd.ok())
                    continue;
                SimpleDate const date = dateOf(ymd);
                auto check = [&](char const* what, long step, year_month_day moved, bool (SimpleDate::*move)(long)) {
                    year_month_day const target = clamped(moved);
                    bool const inside = target.year() >= year{1} && target.year() <= year{9999};
                    SimpleDate result = date;
                    if ((result.*move)(step) != inside || !sameFields(result, inside ? dateOf(target) : date))
                        f.report(what + std::to_string(step), date);
                };
                for (long step : monthSteps)
                    check("addMonths ", step, ymd + months{step}, &SimpleDate::addMonths);
                for (long step : yearSteps)
                    check("addYears ", step, ymd + years{step}, &SimpleDate::addYears);
            }
}

TEST(CalendarOracle, IsoWeekEdgeYears)
{
    EXPECT_EQ(isoWeeksIn(year{2020}), 53); // the oracle's rule itself
    EXPECT_EQ(isoWeeksIn(year{2021}), 52);

    struct Case {
        int d, m, y, week, weekYear;
    } const cases[] = {
        {31, 12, 2020, 53, 2020}, {1, 1, 2021, 53, 2020},  {3, 1, 2021, 53, 2020},  {4, 1, 2021, 1, 2021},
        {29, 12, 2014, 1, 2015},  {1, 1, 2016, 53, 2015},  {31, 12, 2024, 1, 2025}, {1, 1, 2010, 53, 2009},
        {28, 12, 2026, 53, 2026}, {1, 1, 2027, 53, 2026},  {2, 1, 2005, 53, 2004},  {1, 1, 1, 1, 1},
        {31, 12, 9999, 52, 9999},
    };
    for (Case const& c : cases) {
        SimpleDate const date(c.d, c.m, c.y);
        EXPECT_EQ(date.getIsoWeek(), c.week) << date.getFormatted();
        EXPECT_EQ(date.getIsoWeekYear(), c.weekYear) << date.getFormatted();
        EXPECT_EQ(std::make_pair(c.week, c.weekYear), isoWeekOf(sys_days{year{c.y} / c.m / c.d}));
    }
}
