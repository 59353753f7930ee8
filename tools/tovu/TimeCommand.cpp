#include <tovuutil/tovuutil.h>

#include "CommandLine.h"
#include "Commands.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu time add TIME DURATION [--format FORMAT]\n"
    "       tovu time sub TIME DURATION [--format FORMAT]\n"
    "       tovu time format TIME [FORMAT]\n\n"
    "Times of day and durations are written H:MM, H:MM:SS or H:MM:SS.mmm (hours\n"
    "0-23, minutes and seconds 0-59, one or two digits each, milliseconds three\n"
    "digits). The result is printed as HH:MM:SS, with .mmm when it has\n"
    "milliseconds, or in FORMAT.\n\n"
    "  add     adds DURATION; past midnight it goes on from 00:00:00 and the\n"
    "          result is followed by \" (+1 day)\"\n"
    "  sub     subtracts DURATION; it never goes back past midnight but gives the\n"
    "          distance, followed by \" (distance, past midnight)\": 00:30 sub 01:00\n"
    "          is 00:30:00 (distance, past midnight)\n"
    "  format  prints TIME (normalised to HH:MM:SS, or in FORMAT)\n\n"
    "FORMAT directives: %H hours, %I hours 01-12 (midnight 12), %M minutes,\n"
    "%S seconds, %X milliseconds, %p am for 1-12 o'clock else pm (noon is am,\n"
    "midnight pm), %R %H:%M, %T %H:%M:%S, %r %I:%M:%S %p. Other text stays.\n\n"
    "examples: tovu time add 23:59:30 00:01:00      prints 00:00:30 (+1 day)\n"
    "          tovu time format 9:05 \"%H.%M Uhr\"    prints 09.05 Uhr\n";

// Reads one or two digits (or exactly `width` when it is not 0) at `at`, up to
// `limit`; -1 when they are not there or too large.
int readNumber(std::string const& text, std::size_t& at, std::size_t width, int limit)
{
    std::size_t const start = at;
    int value = 0;
    while (at < text.size() && text[at] >= '0' && text[at] <= '9' && at - start < (width ? width : 2))
        value = value * 10 + (text[at++] - '0');
    std::size_t const length = at - start;
    if (length == 0 || (width != 0 && length != width) || value > limit)
        return -1;
    return value;
}

// H:MM, H:MM:SS or H:MM:SS.mmm; false for anything else.
bool parseTime(std::string const& text, SimpleTime& time)
{
    std::size_t at = 0;
    int const hours = readNumber(text, at, 0, 23);
    if (hours < 0 || at == text.size() || text[at++] != ':')
        return false;
    int const minutes = readNumber(text, at, 0, 59);
    int seconds = 0;
    int milliSeconds = 0;
    if (minutes >= 0 && at < text.size() && text[at] == ':') {
        seconds = readNumber(text, ++at, 0, 59);
        if (seconds >= 0 && at < text.size() && text[at] == '.')
            milliSeconds = readNumber(text, ++at, 3, 999);
    }
    if (minutes < 0 || seconds < 0 || milliSeconds < 0 || at != text.size())
        return false;
    time = SimpleTime(hours, minutes, seconds, milliSeconds);
    return true;
}

int notATime(std::string const& text)
{
    return failure("time", "'" + text + "' is not a time of day (H:MM, H:MM:SS or H:MM:SS.mmm)");
}

void print(SimpleTime const& time, std::string const* format, char const* carry)
{
    if (format != nullptr)
        out() << toTerminal(time.getFormatted(fromTerminal(*format)));
    else
        out() << time.getFormatted(time.getMilliSeconds() != 0 ? "%T.%X" : "%T");
    out() << carry << '\n';
}

} // namespace

int runTime(Args const& args)
{
    CommandLine line;
    if (auto const done = parseCommandLine("time", kHelp, args, {{"--format", "format"}}, line))
        return *done;
    Args& positional = line.operands;
    std::optional<std::string> format = line.value("--format");
    if (positional.empty())
        return usageError("time", "'add', 'sub' or 'format' expected");
    std::string const& command = positional[0];
    bool const formatCommand = command == "format";
    if (!formatCommand && command != "add" && command != "sub")
        return usageError("time", "unknown sub-command '" + command + "'");
    if (formatCommand && !format && positional.size() >= 3) {
        format = positional[2];
        positional.erase(positional.begin() + 2);
    }
    std::size_t const wanted = formatCommand ? 2 : 3;
    if (positional.size() < wanted)
        return usageError("time", formatCommand ? "TIME expected" : "TIME and DURATION expected");
    if (positional.size() > wanted)
        return usageError("time", "unexpected argument '" + positional[wanted] + "'");

    SimpleTime time(0, 0, 0, 0);
    if (!parseTime(positional[1], time))
        return notATime(positional[1]);
    char const* carry = "";
    if (!formatCommand) {
        SimpleTime duration(0, 0, 0, 0);
        if (!parseTime(positional[2], duration))
            return notATime(positional[2]);
        SimpleTime const start = time;
        if (command == "add") {
            // Both lie within a day: the library carries at most one.
            int const days = time.add(duration.getHours(), duration.getMinutes(), duration.getSeconds(),
                                      duration.getMilliSeconds());
            carry = days > 0 ? " (+1 day)" : "";
        } else {
            carry = duration > start ? " (distance, past midnight)" : "";
            time -= duration;
        }
    }
    print(time, format ? &*format : nullptr, carry);
    return kOk;
}

} // namespace tovu::cli
