#include "KeyValueChecks.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tovu::cli {

namespace {

// The longest "KEY=VALUE" the INI writer keeps; longer lines it leaves out.
constexpr std::size_t kLongestLine = 4998;

} // namespace

bool readWhole(std::string const& path, std::string& content, std::string& reason, int& error)
{
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file != nullptr) {
        char buffer[65536];
        std::size_t got;
        while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0)
            content.append(buffer, got);
        error = std::ferror(file) ? errno : 0;
        std::fclose(file);
    } else {
        error = errno;
    }
    if (error != 0)
        reason = std::strerror(error);
    return error == 0;
}

bool hasBareLineFeed(std::string const& content)
{
    for (std::size_t at = content.find('\n'); at != std::string::npos; at = content.find('\n', at + 1))
        if (at == 0 || content[at - 1] != '\r')
            return true;
    return false;
}

std::string whyNotStorable(std::string const& name, std::string const& value)
{
    std::string const key = name.substr(name.find('.') + 1);
    if ((name + value).find_first_of("#;") != std::string::npos)
        return "'#' and ';' start a comment in an INI file";
    if ((name + value).find_first_of("\r\n") != std::string::npos)
        return "line ends cannot be stored in an INI file";
    if (key.find('=') != std::string::npos)
        return "a key cannot hold '='";
    auto const edgeBlank = [](std::string const& text) {
        return !text.empty() && (std::strchr(" \t", text.front()) || std::strchr(" \t", text.back()));
    };
    if (edgeBlank(key) || edgeBlank(value))
        return "blanks at the start or end of a key or value are cut when the file is read";
    std::size_t const length = key.size() + 1 + value.size();
    if (length > kLongestLine)
        return "the line KEY=VALUE would be " + std::to_string(length) + " characters long; an INI line holds at most " +
               std::to_string(kLongestLine);
    return std::string();
}

} // namespace tovu::cli
