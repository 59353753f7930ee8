// Any bytes as a .properties file. Oracle: reading is a pure function of the
// file: two objects read from it, and a copy of one, list the same sections,
// keys and values, and every listed key is available.
#include <list>
#include <string>

#include <tovuutil/tovuutil.h>

#include "FuzzFile.h"

namespace {
std::list<std::string> describe(Properties& properties)
{
    std::list<std::string> lines;
    for (auto const& section : properties.getSectionNames())
        for (auto const& key : properties.getKeysOfSection(section))
            lines.push_back(section + "\n" + key + "\n");
    return lines;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const path = fuzzFile(data, size, ".properties");
    Properties first;
    Properties second;
    first.readPropertiesFile(path);
    second.readPropertiesFile(path);
    Properties copy(first);
    std::list<std::string> const listed = describe(first);
    fuzzCheck(listed == describe(second), "two reads of one file differ");
    fuzzCheck(listed == describe(copy), "a copy lists other keys");
    return 0;
}
