#ifndef TOVU_TOOL_COMMANDLINE_H
#define TOVU_TOOL_COMMANDLINE_H

#include <initializer_list>
#include <map>
#include <optional>
#include <string>

#include "Terminal.h"

// The one way every command of `tovu` reads its arguments.
namespace tovu::cli {

// An option a command takes: a flag ("--json") or one with a value
// ("--year YEAR"; value names what it needs, for the error message).
struct Option {
    char const* name;
    char const* value = nullptr;
};

struct CommandLine {
    Args operands;
    std::map<std::string, std::string> options; // given ones; the last value counts, "" for flags

    bool has(std::string const& name) const { return options.count(name) != 0; }
    std::optional<std::string> value(std::string const& name) const;
};

// Splits args into options and operands. Options may stand anywhere before
// "--", which ends them. An argument is an option when it starts with "-"
// followed by a letter or a second "-"; so "-" (standard input) and negative
// numbers such as "-12" are operands. "--help" or "-h" prints help on standard
// output. Returns the status to exit with at once (kOk after help, kUsage for
// an unknown option or a missing value, reported on standard error), or
// nothing when the command goes on with line.
std::optional<int> parseCommandLine(char const* command, char const* help, Args const& args,
                                    std::initializer_list<Option> options, CommandLine& line);

} // namespace tovu::cli

#endif
