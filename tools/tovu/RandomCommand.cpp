#include <tovuutil/tovuutil.h>

#include "CommandLine.h"
#include "Commands.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu random [--length N] [--count K]\n\n"
    "Prints K identifiers of N characters, one per line. The characters are 1-9\n"
    "and A-Z without O, so that no 0 and no O can be misread. The generator is\n"
    "seeded from the operating system's entropy source: two runs, at the same\n"
    "moment or on two machines, give different identifiers. Of a million\n"
    "identifiers of 12 characters, two are the same with a probability of about\n"
    "2e-7. Not for passwords or keys.\n\n"
    "  --length N  characters per identifier, 1 to 1000 (default 12)\n"
    "  --count K   number of identifiers, 1 to 1000000 (default 1)\n\n"
    "examples: tovu random                      prints e.g. K7Q2ZP9A3MCW\n"
    "          tovu random --length 8 --count 3\n";

struct Limit {
    char const* option;
    std::size_t largest;
    std::size_t fallback;
};

constexpr Limit kLength = {"--length", 1000, 12};
constexpr Limit kCount = {"--count", 1000000, 1};

// The option's value, a whole decimal number from 1 to its largest; 0 (after
// the usage error) for anything else.
std::size_t valueOf(Limit const& limit, std::optional<std::string> const& text)
{
    if (!text)
        return limit.fallback;
    std::size_t value = 0;
    for (unsigned char c : *text) {
        value = c >= '0' && c <= '9' ? value * 10 + (c - '0') : limit.largest + 1;
        if (value > limit.largest)
            break;
    }
    if (value >= 1 && value <= limit.largest)
        return value;
    usageError("random", std::string(limit.option) + " must be a whole number from 1 to " +
                             std::to_string(limit.largest) + ", not '" + *text + "'");
    return 0;
}

} // namespace

int runRandom(Args const& args)
{
    CommandLine line;
    if (auto const done = parseCommandLine("random", kHelp, args,
                                           {{kLength.option, "number"}, {kCount.option, "number"}}, line))
        return *done;
    if (!line.operands.empty())
        return usageError("random", "unexpected argument '" + line.operands[0] + "'");
    std::size_t const characters = valueOf(kLength, line.value(kLength.option));
    if (characters == 0)
        return kUsage;
    std::size_t const identifiers = valueOf(kCount, line.value(kCount.option));
    if (identifiers == 0)
        return kUsage;
    for (std::size_t i = 0; i < identifiers; ++i)
        out() << tmRand(characters) << '\n';
    return kOk;
}

} // namespace tovu::cli
