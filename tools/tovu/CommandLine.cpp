#include "CommandLine.h"

#include <cctype>

namespace tovu::cli {

namespace {

bool looksLikeOption(std::string const& arg)
{
    return arg.size() > 1 && arg[0] == '-' &&
           (arg[1] == '-' || std::isalpha(static_cast<unsigned char>(arg[1])) != 0);
}

} // namespace

std::optional<std::string> CommandLine::value(std::string const& name) const
{
    auto const found = options.find(name);
    if (found == options.end())
        return std::nullopt;
    return found->second;
}

std::optional<int> parseCommandLine(char const* command, char const* help, Args const& args,
                                    std::initializer_list<Option> options, CommandLine& line)
{
    bool optionsEnded = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string const& arg = args[i];
        if (optionsEnded || !looksLikeOption(arg)) {
            line.operands.push_back(arg);
            continue;
        }
        if (arg == "--") {
            optionsEnded = true;
            continue;
        }
        if (arg == "--help" || arg == "-h") {
            out() << help;
            return kOk;
        }
        Option const* known = nullptr;
        for (auto const& option : options)
            if (arg == option.name)
                known = &option;
        if (known == nullptr)
            return usageError(command, "unknown option '" + arg + "'");
        if (known->value == nullptr) {
            line.options[arg] = std::string();
        } else if (i + 1 == args.size()) {
            return usageError(command, arg + " needs a " + known->value);
        } else {
            line.options[arg] = args[++i];
        }
    }
    return std::nullopt;
}

} // namespace tovu::cli
