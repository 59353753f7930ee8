// tovu: the library's command-line host.
#include <tovuutil/tovuutil.h>

#include <cstring>

#include "Commands.h"
#include "StandardStreams.h"

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
    {"date", "calendar dates: today, add, differences, weekdays, ISO weeks", runDate},
    {"ini", "read and change INI files", runIni},
    {"props", "read and change properties files", runProps},
    {"lib", "load a shared library and look up a symbol", runLib},
    {"random", "random identifiers, unique across processes and machines", runRandom},
};

int help(std::ostream& stream, int status)
{
    stream << "usage: tovu [--log-dir DIR] COMMAND [ARGUMENTS...]\n"
              "       tovu help [COMMAND]\n"
              "       tovu --version\n\n"
              "commands:\n";
    for (auto const& command : kCommands) {
        stream << "  " << command.name;
        for (std::size_t i = std::strlen(command.name); i < 10; ++i)
            stream << ' ';
        stream << command.summary << '\n';
    }
    stream << "\nOptions may stand anywhere after COMMAND; \"--\" ends them, \"-\" names standard\n"
              "input. --log-dir DIR writes the library's tovu.log into DIR instead of the\n"
              "working directory. Text arguments typed as UTF-8 reach the library as\n"
              "Windows-1252; its answers are printed as UTF-8.\n";
    return status;
}

Command const* find(std::string const& name)
{
    for (auto const& command : kCommands)
        if (name == command.name)
            return &command;
    return nullptr;
}

int unknownCommand(std::string const& name)
{
    err() << "tovu: unknown command '" << name << "'; try 'tovu --help'\n";
    return kUsage;
}

int run(Args const& args)
{
    if (args.empty())
        return help(err(), kUsage);
    std::string const& name = args[0];
    if (name == "--help" || name == "-h")
        return help(out(), kOk);
    if (name == "--version") {
        out() << "tovu " << TOVUUTIL_VERSION << '\n';
        return kOk;
    }
    if (name == "help") {
        if (args.size() == 1)
            return help(out(), kOk);
        Command const* command = find(args[1]);
        return command == nullptr ? unknownCommand(args[1]) : command->run({"--help"});
    }
    if (Command const* command = find(name))
        return command->run(Args(args.begin() + 1, args.end()));
    if (name.size() > 1 && name[0] == '-') {
        err() << "tovu: unknown option '" << name << "'; try 'tovu --help'\n";
        return kUsage;
    }
    return unknownCommand(name);
}

} // namespace

int main(int argc, char** argv)
{
    bool const logDirTaken = finishStartup();
    out(); // from here on the library logs to standard error
    Args args(argv + 1, argv + argc);
    if (!args.empty() && args[0] == "--log-dir") {
        if (args.size() < 2) {
            err() << "tovu: --log-dir needs a directory; try 'tovu --help'\n";
            return finish(kUsage);
        }
        if (!logDirTaken)
            return finish(failure("--log-dir", "not available on this host"));
        args.erase(args.begin(), args.begin() + 2);
    }
    return finish(run(args));
}
