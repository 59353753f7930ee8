#include "tovuutil/platform/VersionInfo.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "tovuutil/platform/detail/VersionResource.h"
#include "tovuutil/text/StringUtil.h"

namespace {

// Tried in this order; the German Unicode table is preferred on purpose and
// the mixed-case "040904E4" is the key as hosts wrote it.
constexpr char const* kTables[] = {"040704b0", "040904E4", "040904b0", "040704e4", "000004b0"};

bool queryFirst(std::string const& block, char const* entry, std::string& value)
{
    for (char const* table : kTables)
        if (tovu::detail::queryVersionValue(block, std::string("\\StringFileInfo\\") + table + "\\" + entry, value))
            return true;
    return false;
}

// The parts of a version text between "," and "." separators.
std::vector<std::string> versionParts(std::string const& version, std::size_t maxParts, std::string* rest)
{
    std::vector<std::string> parts;
    std::string::size_type start = 0;
    while (parts.size() < maxParts) {
        std::string::size_type end = version.find_first_of(",.", start);
        parts.push_back(version.substr(start, end == std::string::npos ? std::string::npos : end - start));
        if (end == std::string::npos) {
            start = version.size() + 1;
            break;
        }
        start = end + 1;
    }
    if (rest != nullptr)
        *rest = start <= version.size() ? version.substr(start) : std::string();
    return parts;
}

} // namespace

void getSharedLibVersionInfo(std::string const& fileName, std::string& productVersion, std::string& fileVersion)
{
    std::string block;
    if (!tovu::detail::loadVersionBlock(fileName, block)) {
        productVersion = fileName + " nicht gefunden oder kein Versionsinfoblock";
        fileVersion = productVersion;
        return;
    }
    if (!queryFirst(block, "ProductVersion", productVersion))
        productVersion = "Keine Produktversion vorhanden";
    if (!queryFirst(block, "FileVersion", fileVersion))
        fileVersion = "Keine Fileversion vorhanden";
}

int splitVersionInfo(std::string& version, unsigned short* part1, unsigned short* part2, unsigned short* part3,
                     unsigned short* part4, std::string& rest)
{
    std::vector<std::string> parts = versionParts(version, 4, &rest);
    unsigned short* outputs[] = {part1, part2, part3, part4};
    for (std::size_t i = 0; i < 4; ++i)
        if (outputs[i] != nullptr)
            *outputs[i] = i < parts.size() ? static_cast<unsigned short>(string2Int(parts[i])) : 0;
    if (version.empty())
        return 0;
    return static_cast<int>(parts.size());
}

bool splitVersionInfo(std::string const& version, std::string& part1, std::string& part2, std::string& part3,
                      std::string& part4)
{
    std::string rest;
    std::vector<std::string> parts = versionParts(version, 3, &rest);
    std::string const blanks = " \t\r\n";
    // Four parts need three separators; the fourth takes everything after the third.
    bool const complete = std::count_if(version.begin(), version.end(), [](char c) { return c == ',' || c == '.'; }) >= 3;
    std::string* outputs[] = {&part1, &part2, &part3};
    for (std::size_t i = 0; i < 3; ++i)
        *outputs[i] = i < parts.size() ? trim(parts[i], blanks) : std::string();
    part4 = trim(rest, blanks);
    return complete;
}

extern "C" {

void getTovuSharedLibProductversion(char* buffer)
{
    if (buffer != nullptr)
        std::memcpy(buffer, "2007, 4, 2, 8255", sizeof("2007, 4, 2, 8255"));
}

void getTovuSharedLibFileversion(char* buffer)
{
    if (buffer != nullptr)
        std::memcpy(buffer, "2007, 11, 22, 0", sizeof("2007, 11, 22, 0"));
}
}
