#include "KeyValueCommand.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "CommandLine.h"
#include "InputCopy.h"
#include "KeyValueChecks.h"

namespace tovu::cli {

namespace {

struct Action {
    char const* name;
    std::size_t operands; // FILE included
    bool optionalLast;    // the last operand may be left out
    bool changes;
    char const* usage;
};

constexpr Action kActions[] = {
    {"get", 2, false, false, "get FILE SECTION.KEY"},
    {"set", 3, false, true, "set FILE SECTION.KEY VALUE"},
    {"remove", 2, false, true, "remove FILE SECTION.KEY"},
    {"remove-section", 2, false, true, "remove-section FILE SECTION"},
    {"list", 2, true, false, "list FILE [SECTION]"},
    {"sections", 1, false, false, "sections FILE"},
};

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

// Whether the file now holds what the action was to leave in it.
bool holdsChange(KeyValueFile& file, std::string const& path, Action const& action, std::string const& name,
                 std::string const& value)
{
    std::string reason;
    if (!file.load(path, reason))
        return false;
    if (action.name == std::string("set"))
        return file.has(name) && file.get(name) == value;
    if (action.name == std::string("remove"))
        return !file.has(name);
    for (auto const& section : file.sections())
        if (section == name)
            return false;
    return true;
}

int change(char const* command, KeyValueFile& file, std::string const& path, Action const& action,
           std::string const& name, Args const& args)
{
    std::string const value = args.size() > 3 ? fromTerminal(args[3]) : std::string();
    if (action.name == std::string("set")) {
        if (file.isIni()) {
            std::string const why = whyNotStorable(name, value);
            if (!why.empty())
                return failure(command, path + ": not changed: " + why);
        }
        file.set(name, value);
    } else if (action.name == std::string("remove")) {
        if (!file.has(name))
            return failure(command, path + ": no value for '" + args[2] + "'");
        file.remove(name);
    } else {
        bool found = false;
        for (auto const& section : file.sections())
            found = found || section == name;
        if (!found)
            return failure(command, path + ": no section '" + args[2] + "'");
        file.removeSection(name);
    }
    std::string reason;
    if (!file.save(reason))
        return failure(command, path + ": " + reason);
    if (!holdsChange(file, path, action, name, value))
        return failure(command, path + ": not saved: the file does not hold the change (full disk, file size "
                                       "limit or no permission?)");
    return kOk;
}

int read(char const* command, KeyValueFile& file, Action const& action, Args const& args)
{
    std::string const name = args.size() > 2 ? fromTerminal(args[2]) : std::string();
    if (action.name == std::string("get")) {
        if (!file.has(name))
            return failure(command, args[1] + ": no value for '" + args[2] + "'");
        out() << toTerminal(file.get(name)) << '\n';
    } else if (action.name == std::string("sections")) {
        for (auto const& section : file.sections())
            out() << toTerminal(section) << '\n';
    } else if (args.size() > 2) {
        printEntries(file, name);
    } else {
        for (auto const& section : file.sections())
            printEntries(file, section);
    }
    return kOk;
}

} // namespace

int runKeyValueCommand(char const* command, char const* help, KeyValueFile& file, Args const& arguments,
                       bool sectionsRemovable)
{
    CommandLine line;
    if (auto const done = parseCommandLine(command, help, arguments, {}, line))
        return *done;
    Args const& args = line.operands;
    if (args.empty())
        return usageError(command, sectionsRemovable
                                       ? "which action: get, set, remove, remove-section, list or sections?"
                                       : "which action: get, set, remove, list or sections?");
    Action const* action = nullptr;
    for (auto const& candidate : kActions)
        if (args[0] == candidate.name && (sectionsRemovable || args[0] != "remove-section"))
            action = &candidate;
    if (action == nullptr)
        return usageError(command, "unknown action '" + args[0] + "'");
    std::size_t const given = args.size() - 1;
    if (given > action->operands || given + (action->optionalLast ? 1 : 0) < action->operands)
        return usageError(command, std::string("usage: ") + action->usage);
    std::string const name = given > 1 ? fromTerminal(args[2]) : std::string();
    bool const qualified = action->name == std::string("get") || action->name == std::string("set") ||
                           action->name == std::string("remove");
    if (qualified && !isQualified(name))
        return usageError(command, "'" + args[2] + "' is not of the form SECTION.KEY");

    std::string path = args[1];
    InputCopy input;
    std::string reason;
    if (path == "-") {
        if (action->changes)
            return usageError(command, "standard input cannot be changed; name a FILE");
        if (!input.make(path, reason))
            return failure(command, "-: " + reason);
    }
    std::string content;
    int error = 0;
    bool created = false;
    if (!readWhole(path, content, reason, error)) {
        // Setting a key in a file that is not there yet creates it.
        if (error != ENOENT || action->name != std::string("set"))
            return failure(command, args[1] + ": " + reason);
        std::FILE* made = std::fopen(path.c_str(), "wbx");
        if (made == nullptr)
            return failure(command, args[1] + ": " + std::strerror(errno));
        std::fclose(made);
        created = true;
    }
    int status = kOk;
    if (!file.load(path, reason)) {
        status = failure(command, args[1] + ": " + reason);
    } else if (file.isIni() && hasBareLineFeed(content)) {
        // The reader takes every line end for CR LF: after a bare line feed
        // the next line loses its first character.
        std::string const why = args[1] + ": lines end in a bare line feed, but the INI reader expects CR LF and "
                                          "drops the first character of each following line";
        if (action->changes)
            status = failure(command, why + "; not changed. Convert it first: sed -i 's/$/\\r/' FILE (or unix2dos)");
        else
            err() << "tovu: " << command << ": warning: " << toTerminal(why) << '\n';
    }
    if (status == kOk)
        status = action->changes ? change(command, file, path, *action, name, args) : read(command, file, *action, args);
    if (status != kOk && created)
        std::remove(path.c_str());
    return status;
}

} // namespace tovu::cli
