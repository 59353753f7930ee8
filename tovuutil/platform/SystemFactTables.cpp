#include "tovuutil/platform/detail/SystemFacts.h"

#include <cstring>

namespace tovu {
namespace detail {

std::string architectureOfCode(int code)
{
    switch (code) {
    case 0: return "X86";
    case 1: return "MIPS";
    case 2: return "ALPHA";
    case 3: return "PPC";
    case 6: return "IS64";
    case 7: return "ALPHA64";
    case 9: return "X86_64";
    default: return "UNBEKANNT";
    }
}

std::string architectureOfMachine(std::string const& machine)
{
    // POSIX machine names onto the Windows architecture codes.
    struct Entry {
        char const* prefix;
        bool whole;
        int code;
    };
    static constexpr Entry kTable[] = {
        {"x86_64", true, 9}, {"amd64", true, 9},  {"i386", true, 0},   {"i486", true, 0},
        {"i586", true, 0},   {"i686", true, 0},   {"x86", true, 0},    {"mips64", false, -1},
        {"mips", false, 1},  {"alpha", true, 2},  {"ppc64", false, -1}, {"powerpc64", false, -1},
        {"ppc", true, 3},    {"powerpc", true, 3}, {"ia64", true, 6},
    };
    for (Entry const& entry : kTable) {
        std::size_t length = std::strlen(entry.prefix);
        bool matches = entry.whole ? machine == entry.prefix : machine.compare(0, length, entry.prefix) == 0;
        if (matches)
            return architectureOfCode(entry.code);
    }
    return architectureOfCode(-1);
}

} // namespace detail
} // namespace tovu
