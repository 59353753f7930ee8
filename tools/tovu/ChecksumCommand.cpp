#include <tovuutil/tovuutil.h>

#include "CommandLine.h"
#include "Commands.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu checksum TEXT\n\n"
    "Prints the checksum of TEXT: the sum of its decimal digits; every other\n"
    "character is skipped.\n\n"
    "example: tovu checksum 12-34          prints 10\n";

} // namespace

int runChecksum(Args const& arguments)
{
    CommandLine line;
    if (auto const done = parseCommandLine("checksum", kHelp, arguments, {}, line))
        return *done;
    Args const& args = line.operands;
    if (args.empty())
        return usageError("checksum", "no text given");
    if (args.size() > 1)
        return usageError("checksum", "unexpected argument '" + args[1] + "' (quote a text with blanks)");
    out() << checkSum(fromTerminal(args[0])) << '\n';
    return kOk;
}

} // namespace tovu::cli
