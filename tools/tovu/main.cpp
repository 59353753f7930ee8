// tovu: the library's command-line host.
#include <tovuutil/tovuutil.h>

#include <cstring>

#include "Commands.h"

namespace {

using namespace tovu::cli;

struct Command {
    char const* name;
    char const* summary;
    int (*run)(Args const&);
};

constexpr Command kCommands[] = {
    {"info", "the system properties, machine facts and versions of the library", runInfo},
    {"check", "validate form-field and date-field values", runCheck},
    {"encode", "Base16/32/64-encode standard input", runEncode},
    {"decode", "Base16/32/64-decode standard input", runDecode},
    {"basen", "convert numbers to and from base 10, 16, 34 or 36", runBasen},
    {"checksum", "the checksum of a text", runChecksum},
    {"time", "add, subtract and format times of day", runTime},
    {"ini", "read and change INI files", runIni},
    {"props", "read and change properties files", runProps},
    {"lib", "load a shared library and look up a symbol", runLib},
    {"random", "random identifiers, unique across processes and machines", runRandom},
};

int help(std::ostream& stream, int status)
{
    stream << "usage: tovu COMMAND [ARGUMENTS...]\n"
              "       tovu COMMAND --help\n"
              "       tovu --version\n\n"
              "commands:\n";
    for (auto const& command : kCommands) {
        stream << "  " << command.name;
        for (std::size_t i = std::strlen(command.name); i < 10; ++i)
            stream << ' ';
        stream << command.summary << '\n';
    }
    stream << "\nText arguments typed as UTF-8 reach the library as Windows-1252; its answers\n"
              "are printed as UTF-8.\n";
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    std::ostream& stdout_ = out(); // from here on the library logs to standard error
    if (argc < 2)
        return finish(help(err(), kUsage));
    std::string const name = argv[1];
    if (name == "--help" || name == "-h")
        return finish(help(stdout_, kOk));
    if (name == "--version") {
        stdout_ << "tovu " << TOVUUTIL_VERSION << '\n';
        return finish(kOk);
    }
    for (auto const& command : kCommands)
        if (name == command.name)
            return finish(command.run(Args(argv + 2, argv + argc)));
    err() << "tovu: unknown command '" << name << "'\n";
    return finish(help(err(), kUsage));
}
