#include "KeyValueCommand.h"

#include <cstdio>

namespace tovu::cli {

namespace {

// A name needs a section and a key: "SECTION.KEY".
bool isQualified(std::string const& name)
{
    std::size_t const dot = name.find('.');
    return dot != std::string::npos && dot > 0 && dot + 1 < name.size();
}

void printEntries(KeyValueFile& file, std::string const& section)
{
    for (auto const& key : file.keys(section)) {
        std::string const name = section + "." + key;
        out() << toTerminal(name) << '=' << toTerminal(file.get(name)) << '\n';
    }
}

} // namespace

int runKeyValueCommand(char const* command, char const* help, KeyValueFile& file, Args const& args)
{
    if (helpRequested(args, help))
        return kOk;
    if (args.size() < 2)
        return usageError(command, "which action on which file: get, set, list or sections FILE?");
    std::string const& action = args[0];
    std::string const& path = args[1];
    std::size_t const wanted = action == "get" ? 3 : action == "set" ? 4 : action == "list" ? 3 : 2;
    if (action != "get" && action != "set" && action != "list" && action != "sections")
        return usageError(command, "unknown action '" + action + "'");
    if (args.size() > wanted || ((action == "get" || action == "set") && args.size() < wanted))
        return usageError(command, action == "get" ? "usage: get FILE SECTION.KEY"
                                   : action == "set" ? "usage: set FILE SECTION.KEY VALUE"
                                                     : "too many arguments");
    std::string const name = args.size() > 2 ? fromTerminal(args[2]) : std::string();
    if ((action == "get" || action == "set") && !isQualified(name))
        return usageError(command, "'" + args[2] + "' is not of the form SECTION.KEY");

    if (action == "set") {
        // Setting a key in a file that is not there yet creates it.
        if (std::FILE* created = std::fopen(path.c_str(), "ab"))
            std::fclose(created);
    }
    std::string reason;
    if (!file.load(path, reason))
        return failure(command, path + ": " + reason);

    if (action == "get") {
        if (!file.has(name))
            return failure(command, path + ": no value for '" + args[2] + "'");
        out() << toTerminal(file.get(name)) << '\n';
    } else if (action == "set") {
        file.set(name, fromTerminal(args[3]));
        if (!file.save(reason))
            return failure(command, path + ": " + reason);
    } else if (action == "sections") {
        for (auto const& section : file.sections())
            out() << toTerminal(section) << '\n';
    } else if (args.size() == 3) {
        printEntries(file, name);
    } else {
        for (auto const& section : file.sections())
            printEntries(file, section);
    }
    return kOk;
}

} // namespace tovu::cli
