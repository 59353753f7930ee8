#ifndef TOVUUTIL_PLATFORM_DETAIL_SYSTEMFACTS_H
#define TOVUUTIL_PLATFORM_DETAIL_SYSTEMFACTS_H

// The host leaves behind TovuSystemInformation: standard types only, one
// definition per host (SystemFacts_posix.cpp, SystemFacts_win32.cpp).

#include <cstdint>
#include <string>

namespace tovu {
namespace detail {

// What the host reports about its operating system. osType uses the values of
// TovuSystemInformation::OSType.
struct OsFacts {
    int osType = 0;
    std::string osName;
    std::string osZusatz;
    std::string patchLevel;
    std::string osVersion;
    std::string kernelVersion;
    std::string buildNumber;
};

// Processors, architecture and memory in bytes.
struct MachineFacts {
    unsigned short numProcessors = 0;
    std::string architecture;
    std::int64_t freeMemory = 0;
    std::int64_t totalMemory = 0;
    std::int64_t freeSwap = 0;
    std::int64_t totalSwap = 0;
};

// Fill what the host tells; on failure return false with the host's error
// code in error (errno, or the last-error value on Windows). Never throw.
bool hostOsFacts(OsFacts& facts, int& error);
bool hostMachineFacts(MachineFacts& facts, int& error);

// True only when running under the Windows compatibility layer.
bool hostRunningOnWine();

// Name of a processor architecture code as the Windows host reports it
// (0 "X86", 9 "X86_64", ...; anything unknown "UNBEKANNT").
std::string architectureOfCode(int code);

// The same names for a POSIX machine name as uname reports it
// ("x86_64" -> "X86_64", "i686" -> "X86", anything unknown "UNBEKANNT").
std::string architectureOfMachine(std::string const& machine);

// The display name and edition of a Windows version record, by the naming
// table of the Windows leaf. platform is the record's platform id (1 for the
// 95/98/ME family, 2 for NT); productType and suiteMask count only when
// extended is true (the extended record could be read).
struct WindowsVersion {
    unsigned platform = 0;
    unsigned major = 0;
    unsigned minor = 0;
    std::string servicePack;
    bool extended = false;
    unsigned productType = 0;
    unsigned suiteMask = 0;
};
void nameWindowsVersion(WindowsVersion const& version, std::string& osName, std::string& osZusatz);

} // namespace detail
} // namespace tovu

#endif
