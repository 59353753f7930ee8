#include <tovuutil/tovuutil.h>

#include <cstdio>

#include "CommandLine.h"
#include "Commands.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu basen to BASE NUMBER\n"
    "       tovu basen from BASE DIGITS\n\n"
    "Converts a whole number between decimal and base 10, 16, 34 or 36.\n"
    "  16  0-9 A-F; lower-case letters are read as upper case\n"
    "  34  1-9 A-Z without O; the digit \"1\" is worth 0, so 34 is \"21\"\n"
    "  36  0-9 A-Z, upper case only\n"
    "Numbers up to 9007199254740991 (2^53 - 1) convert exactly; larger ones are\n"
    "refused.\n\n"
    "examples: tovu basen to 34 34          prints 21\n"
    "          tovu basen from 16 ff        prints 255\n";

// 2^53 - 1: up to it every whole number and every sum of the reader's terms is
// exact in a double; the reader's rounding never carries a larger value below
// 2^53, so a read value below it is the exact one.
constexpr char kLargest[] = "9007199254740991";
constexpr double kLimit = 9007199254740992.0;

struct Base {
    char const* name;
    double (*read)(std::string const&);
    std::string (*write)(double);
};

constexpr Base kBases[] = {
    {"10", string2doubleBase10, double2StringBase10},
    {"16", string2doubleBaseHex, double2StringBaseHex},
    {"34", string2doubleBase34, double2StringBase34},
    {"36", string2doubleBase36, double2StringBase36},
};

bool isDecimal(std::string const& text)
{
    for (unsigned char c : text)
        if (c < '0' || c > '9')
            return false;
    return !text.empty();
}

// Compares decimal texts by value, so that no conversion can overflow.
bool isAboveLargest(std::string const& decimal)
{
    std::size_t const first = decimal.find_first_not_of('0');
    if (first == std::string::npos)
        return false;
    std::string const digits = decimal.substr(first);
    std::string const largest = kLargest;
    return digits.size() != largest.size() ? digits.size() > largest.size() : digits > largest;
}

int toBase(Base const& base, std::string const& number)
{
    if (!isDecimal(number))
        return failure("basen", "'" + number + "' is not a whole decimal number");
    if (isAboveLargest(number))
        return failure("basen", "'" + number + "' is larger than " + kLargest);
    std::string const digits = base.write(string2doubleBase10(number));
    if (digits.empty())
        return failure("basen", "'" + number + "' has no digits in base " + base.name);
    out() << digits << '\n';
    return kOk;
}

int fromBase(Base const& base, std::string const& typed)
{
    if (typed.empty())
        return failure("basen", "no digits given");
    std::string const digits = fromTerminal(typed);
    // The library counts a character outside the alphabet as -1 without a
    // word; read alone, such a character is the only negative answer.
    for (char c : digits)
        if (base.read(std::string(1, c)) < 0)
            return failure("basen", "'" + toTerminal(std::string(1, c)) + "' is not a digit in base " +
                                        base.name);
    double const value = base.read(digits);
    if (value >= kLimit)
        return failure("basen", "'" + typed + "' is larger than " + kLargest);
    char text[32];
    std::snprintf(text, sizeof text, "%.0f", value);
    out() << text << '\n';
    return kOk;
}

} // namespace

int runBasen(Args const& arguments)
{
    CommandLine line;
    if (auto const done = parseCommandLine("basen", kHelp, arguments, {}, line))
        return *done;
    Args const& args = line.operands;
    if (args.empty())
        return usageError("basen", "'to' or 'from' expected");
    if (args[0] != "to" && args[0] != "from")
        return usageError("basen", "unknown sub-command '" + args[0] + "'");
    if (args.size() != 3)
        return usageError("basen", args.size() < 3 ? "BASE and a value expected" : "unexpected argument '" + args[3] + "'");
    for (auto const& base : kBases)
        if (args[1] == base.name)
            return args[0] == "to" ? toBase(base, args[2]) : fromBase(base, args[2]);
    return usageError("basen", "base must be 10, 16, 34 or 36, not '" + args[1] + "'");
}

} // namespace tovu::cli
