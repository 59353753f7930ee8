#include <tovuutil/tovuutil.h>

#include "CommandLine.h"
#include "Commands.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu date today [FORMAT]\n"
    "       tovu date add DATE N days|months|years\n"
    "       tovu date diff DATE DATE\n"
    "       tovu date weekday DATE\n"
    "       tovu date format DATE FORMAT\n"
    "       tovu date week DATE\n\n"
    "Dates are written DD.MM.YYYY, years 0001 to 9999 of the Gregorian calendar.\n"
    "A date is printed as DD.MM.YYYY, or in FORMAT.\n\n"
    "  today    today's local date\n"
    "  add      adds N (negative goes back) days, months or years; when the\n"
    "           month reached is too short the day becomes its last:\n"
    "           31.01.2024 add 1 months is 29.02.2024\n"
    "  diff     the days from the first DATE to the second, negative when the\n"
    "           second is earlier\n"
    "  weekday  the German name of the day of the week\n"
    "  format   prints DATE in FORMAT\n"
    "  week     the ISO 8601 week as YYYY-Www; its year can differ from the\n"
    "           date's: 01.01.2021 is in 2020-W53\n\n"
    "FORMAT directives: %d day, %m month, %Y year, %y year in its century, %j day\n"
    "of the year, %V ISO week, %G year of the ISO week, %a %A weekday (Mo, Montag),\n"
    "%b %B month (Jan, Januar). Other text stays.\n\n"
    "examples: tovu date add 31.01.2023 1 months     prints 28.02.2023\n"
    "          tovu date format 05.03.2024 \"%A, %d. %B %Y\"\n"
    "                                            prints Dienstag, 05. M\xC3\xA4rz 2024\n";

struct SubCommand {
    char const* name;
    std::size_t arguments; // after the sub-command's name
    char const* expected;  // what a shorter command line lacks
};

constexpr SubCommand kSubCommands[] = {
    {"today", 0, ""},
    {"add", 3, "DATE, N and days, months or years expected"},
    {"diff", 2, "two DATEs expected"},
    {"weekday", 1, "DATE expected"},
    {"format", 2, "DATE and FORMAT expected"},
    {"week", 1, "DATE expected"},
};

bool parseDate(std::string const& text, SimpleDate& date) { return date.initFormatD(text) && date.isValid(); }

int notADate(std::string const& text)
{
    return failure("date", "'" + text + "' is not a date (DD.MM.YYYY)");
}

// An optional sign and digits; more digits than fit are taken as a count
// beyond every calendar, which the addition then refuses.
bool parseCount(std::string const& text, long& count)
{
    std::size_t const start = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    if (text.size() == start || text.find_first_not_of("0123456789", start) != std::string::npos)
        return false;
    std::string const digits = text.substr(start);
    long const value = digits.size() > 9 ? 999999999L : std::stol(digits);
    count = text[0] == '-' ? -value : value;
    return true;
}

int add(Args const& args)
{
    SimpleDate date(0, 0, 0);
    if (!parseDate(args[1], date))
        return notADate(args[1]);
    long count = 0;
    if (!parseCount(args[2], count))
        return failure("date", "'" + args[2] + "' is not a whole number");
    std::string const& unit = args[3];
    bool inside = false;
    if (unit == "days" || unit == "day")
        inside = date.addDays(count);
    else if (unit == "months" || unit == "month")
        inside = date.addMonths(count);
    else if (unit == "years" || unit == "year")
        inside = date.addYears(count);
    else
        return usageError("date", "unknown unit '" + unit + "' (days, months or years)");
    if (!inside)
        return failure("date", "the result is outside the years 0001 to 9999");
    out() << date.getFormatted() << '\n';
    return kOk;
}

int run(std::string const& command, Args const& args)
{
    if (command == "add")
        return add(args);
    SimpleDate date(0, 0, 0);
    if (command == "today") {
        date.initNow();
        out() << toTerminal(args.size() > 1 ? date.getFormatted(fromTerminal(args[1])) : date.getFormatted()) << '\n';
        return kOk;
    }
    if (!parseDate(args[1], date))
        return notADate(args[1]);
    if (command == "diff") {
        SimpleDate other(0, 0, 0);
        if (!parseDate(args[2], other))
            return notADate(args[2]);
        out() << date.daysUntil(other) << '\n';
    } else if (command == "weekday") {
        out() << toTerminal(date.getFormat_A()) << '\n';
    } else if (command == "format") {
        out() << toTerminal(date.getFormatted(fromTerminal(args[2]))) << '\n';
    } else {
        out() << date.getFormatted("%G-W%V") << '\n';
    }
    return kOk;
}

} // namespace

int runDate(Args const& arguments)
{
    CommandLine line;
    if (auto const done = parseCommandLine("date", kHelp, arguments, {}, line))
        return *done;
    Args const& args = line.operands;
    if (args.empty())
        return usageError("date", "'today', 'add', 'diff', 'weekday', 'format' or 'week' expected");
    for (SubCommand const& sub : kSubCommands) {
        if (args[0] != sub.name)
            continue;
        // today takes an optional FORMAT.
        std::size_t const most = sub.arguments + (sub.arguments == 0 ? 1 : 0);
        if (args.size() - 1 < sub.arguments)
            return usageError("date", sub.expected);
        if (args.size() - 1 > most)
            return usageError("date", "unexpected argument '" + args[most + 1] + "'");
        return run(args[0], args);
    }
    return usageError("date", "unknown sub-command '" + args[0] + "'");
}

} // namespace tovu::cli
