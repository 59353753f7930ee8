#include "tovuutil/platform/detail/SystemFacts.h"

#include <cerrno>
#include <cstdint>
#include <fstream>
#include <limits>

#include <sys/sysinfo.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace tovu {
namespace detail {

namespace {

constexpr int kOsTypePosix = 5;

// The value of KEY=value in an os-release file, unquoted; "" when absent.
std::string osReleaseValue(std::string const& text, std::string const& key)
{
    std::string::size_type pos = 0;
    while (pos < text.size()) {
        std::string::size_type end = text.find('\n', pos);
        if (end == std::string::npos)
            end = text.size();
        if (text.compare(pos, key.size(), key) == 0 && pos + key.size() < end && text[pos + key.size()] == '=') {
            std::string raw = text.substr(pos + key.size() + 1, end - pos - key.size() - 1);
            if (raw.size() >= 2 && (raw.front() == '"' || raw.front() == '\'') && raw.back() == raw.front()) {
                char quote = raw.front();
                std::string value;
                for (std::string::size_type i = 1; i + 1 < raw.size(); ++i) {
                    if (quote == '"' && raw[i] == '\\' && i + 2 < raw.size())
                        ++i;
                    value += raw[i];
                }
                return value;
            }
            return raw;
        }
        pos = end + 1;
    }
    return std::string();
}

std::string readOsRelease()
{
    for (char const* path : {"/etc/os-release", "/usr/lib/os-release"}) {
        std::ifstream in(path, std::ios::binary);
        if (!in)
            continue;
        std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        return text;
    }
    return std::string();
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads a run of decimal digits at pos; "" when there is none.
std::string digitsAt(std::string const& text, std::string::size_type& pos)
{
    std::string::size_type start = pos;
    while (pos < text.size() && isDigit(text[pos]))
        ++pos;
    return text.substr(start, pos - start);
}

// "6.1.0-18-amd64" gives version "6.1", build "0" and patch level "18-amd64".
void splitKernelRelease(std::string const& release, OsFacts& facts)
{
    std::string::size_type pos = 0;
    std::string major = digitsAt(release, pos);
    std::string minor;
    std::string build;
    if (pos < release.size() && release[pos] == '.') {
        ++pos;
        minor = digitsAt(release, pos);
        if (pos < release.size() && release[pos] == '.' && pos + 1 < release.size() && isDigit(release[pos + 1])) {
            ++pos;
            build = digitsAt(release, pos);
        }
    }
    if (pos < release.size() && (release[pos] == '-' || release[pos] == '.' || release[pos] == '+' ||
                                 release[pos] == '_'))
        ++pos;
    facts.osVersion = (major.empty() ? std::string("0") : major) + "." + (minor.empty() ? std::string("0") : minor);
    facts.kernelVersion = facts.osVersion;
    facts.buildNumber = build.empty() ? std::string("0") : build;
    facts.patchLevel = release.substr(pos);
}

std::int64_t bytes(unsigned long count, unsigned int unit)
{
    // Unsigned arithmetic, saturated: no overflow whatever the kernel reports.
    std::uint64_t const limit = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    std::uint64_t u = unit == 0 ? 1u : unit;
    std::uint64_t n = count;
    if (n != 0 && u > limit / n)
        return std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(n * u);
}

} // namespace

bool hostOsFacts(OsFacts& facts, int& error)
{
    struct utsname names;
    if (uname(&names) != 0) {
        error = errno;
        return false;
    }
    facts.osType = kOsTypePosix;
    std::string osRelease = readOsRelease();
    facts.osName = osReleaseValue(osRelease, "PRETTY_NAME");
    if (facts.osName.empty())
        facts.osName = names.sysname;
    facts.osZusatz = osReleaseValue(osRelease, "VERSION");
    splitKernelRelease(names.release, facts);
    return true;
}

bool hostMachineFacts(MachineFacts& facts, int& error)
{
    long processors = sysconf(_SC_NPROCESSORS_ONLN);
    if (processors < 1)
        processors = sysconf(_SC_NPROCESSORS_CONF);
    if (processors < 1)
        processors = 1;
    facts.numProcessors = static_cast<unsigned short>(processors > 0xFFFF ? 0xFFFF : processors);

    struct utsname names;
    facts.architecture = architectureOfMachine(uname(&names) == 0 ? std::string(names.machine) : std::string());

    struct sysinfo memory;
    if (sysinfo(&memory) != 0) {
        error = errno;
        return false;
    }
    facts.totalMemory = bytes(memory.totalram, memory.mem_unit);
    facts.freeMemory = bytes(memory.freeram, memory.mem_unit);
    facts.totalSwap = bytes(memory.totalswap, memory.mem_unit);
    facts.freeSwap = bytes(memory.freeswap, memory.mem_unit);
    return true;
}

bool hostRunningOnWine() { return false; }

} // namespace detail
} // namespace tovu
