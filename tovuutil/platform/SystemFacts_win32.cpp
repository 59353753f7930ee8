#include "tovuutil/platform/detail/SystemFacts.h"

#include <string>

#include <windows.h>

namespace tovu {
namespace detail {

namespace {
constexpr int kOsTypeWin9x = 3;
constexpr int kOsTypeNT = 4;
} // namespace

bool hostOsFacts(OsFacts& facts, int& error)
{
    OSVERSIONINFOEXA record;
    ZeroMemory(&record, sizeof record);
    record.dwOSVersionInfoSize = sizeof(OSVERSIONINFOEXA);  // 156
    bool extended = GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&record)) != 0;
    if (!extended) {
        ZeroMemory(&record, sizeof record);
        record.dwOSVersionInfoSize = sizeof(OSVERSIONINFOA);  // 148
        if (!GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&record))) {
            error = static_cast<int>(GetLastError());
            return false;
        }
    }
    facts.osVersion = std::to_string(record.dwMajorVersion) + "." + std::to_string(record.dwMinorVersion);
    facts.kernelVersion = facts.osVersion;
    facts.buildNumber = std::to_string(record.dwBuildNumber);
    record.szCSDVersion[sizeof record.szCSDVersion - 1] = '\0';
    facts.patchLevel = record.szCSDVersion;
    if (record.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS)
        facts.osType = kOsTypeWin9x;
    else if (record.dwPlatformId == VER_PLATFORM_WIN32_NT)
        facts.osType = kOsTypeNT;

    WindowsVersion version;
    version.platform = record.dwPlatformId;
    version.major = record.dwMajorVersion;
    version.minor = record.dwMinorVersion;
    version.servicePack = facts.patchLevel;
    version.extended = extended;
    version.productType = extended ? record.wProductType : 0;
    version.suiteMask = extended ? record.wSuiteMask : 0;
    nameWindowsVersion(version, facts.osName, facts.osZusatz);

    if (facts.patchLevel == "Service Pack 6") {
        HKEY key;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Hotfix\\Q246009", 0,
                          KEY_QUERY_VALUE, &key) == ERROR_SUCCESS) {
            facts.patchLevel = "Service Pack 6a";
            RegCloseKey(key);
        }
    }
    return true;
}

bool hostMachineFacts(MachineFacts& facts, int& error)
{
    (void)error;
    MEMORYSTATUS memory;
    ZeroMemory(&memory, sizeof memory);
    memory.dwLength = sizeof memory;
    GlobalMemoryStatus(&memory);
    // The 32-bit status with the high half zero.
    facts.totalMemory = static_cast<std::int64_t>(static_cast<std::uint32_t>(memory.dwTotalPhys));
    facts.freeMemory = static_cast<std::int64_t>(static_cast<std::uint32_t>(memory.dwAvailPhys));
    facts.totalSwap = static_cast<std::int64_t>(static_cast<std::uint32_t>(memory.dwTotalPageFile));
    facts.freeSwap = static_cast<std::int64_t>(static_cast<std::uint32_t>(memory.dwAvailPageFile));

    SYSTEM_INFO system;
    ZeroMemory(&system, sizeof system);
    GetSystemInfo(&system);
    facts.numProcessors = static_cast<unsigned short>(system.dwNumberOfProcessors);
    facts.architecture = architectureOfCode(system.wProcessorArchitecture);
    return true;
}

bool hostRunningOnWine()
{
    HMODULE ntdll = LoadLibraryA("ntdll");
    if (ntdll == nullptr)
        return false;
    bool found = GetProcAddress(ntdll, "wine_unix_to_nt_file_name") != nullptr;
    FreeLibrary(ntdll);
    return found;
}

} // namespace detail
} // namespace tovu
