#ifndef TOVUUTIL_PLATFORM_TOVUSYSTEMINFORMATION_H
#define TOVUUTIL_PLATFORM_TOVUSYSTEMINFORMATION_H

#include <cstdint>
#include <string>

#include <tovuutil/export.h>

class Logger;

// TovuSystemInformation
//
// Facts about the machine, gathered once by the constructor: the operating
// system (display name, edition, service-pack level, version and build), the
// processor architecture and count, and physical and swap memory in bytes.
// Nothing here throws; a host query that fails leaves its fields at their
// fallback values ("Unbekannt" for the names, "UNBEKANNT" for the
// architecture, 0 for numbers) and is recorded in getState()/getLastError().
//
// On Windows the names follow the host's version record ("Microsoft Windows
// XP", edition "Professional", ...) and the memory fields hold the host's
// 32-bit memory status. On a POSIX host the name is the distribution's pretty
// name (the kernel name when there is none), the edition its version text,
// the versions and build number come from the kernel release
// ("6.1.0-18-amd64" gives "6.1", "6.1", build "0", patch level "18-amd64"),
// and the memory fields hold the full 64-bit values.
//
// Example:
//   TovuSystemInformation info;
//   std::string arch = info.getArchitecture();   // "X86_64"
class TOVU_API TovuSystemInformation {
public:
    // Result of the gathering: the bits of the failed steps.
    enum State {
        STATE_OK = 0,
        STATE_OSINFO_FAILED = 1,
        STATE_SYSTEMINFO_FAILED = 2,
        STATE_BOTH_FAILED = 3
    };

    // Family of the operating system; 3 and 4 are the values a Windows host
    // sets. Texts: getOsTypeAsString.
    enum OSType {
        OS_UNKNOWN = 0,
        OS_WIN16 = 1,
        OS_WIN32S = 2,
        OS_WIN9X = 3,
        OS_WINNT = 4,
        OS_POSIX = 5
    };

    // Gathers the facts at once.
    TovuSystemInformation();
    // Copies the gathered facts; nothing is asked again.
    TovuSystemInformation(TovuSystemInformation const& other);
    // Copies the gathered facts; nothing is asked again.
    TovuSystemInformation& operator=(TovuSystemInformation const& other);
    virtual ~TovuSystemInformation();

    // Which gathering steps failed.
    State getState() const;
    // The host's error code (errno, or the Windows last-error value) of the
    // last failed step; 0 when none failed.
    int getLastError() const;
    // Number of processors; 0 when unknown.
    unsigned short getNumProcessors() const;
    // Processor architecture in capitals ("X86_64"); "UNBEKANNT" when unknown.
    std::string getArchitecture() const;
    // Free physical memory in bytes.
    std::int64_t getFreeMemory() const;
    // Total physical memory in bytes.
    std::int64_t getTotalMemory() const;
    // Free swap space in bytes.
    std::int64_t getFreeSwap() const;
    // Total swap space in bytes.
    std::int64_t getTotalSwap() const;
    // Display name of the operating system; "Unbekannt" when unknown.
    std::string getOsName() const;
    // Family of the operating system.
    OSType getOsType() const;
    // Edition (POSIX: the distribution's version text).
    std::string getOsZusatz() const;
    // Service-pack level (POSIX: the kernel release after its build number).
    std::string getPatchLevel() const;
    // Version of the operating system ("6.1").
    std::string getOsVersion() const;
    // Version of the kernel ("6.1").
    std::string getKernelVersion() const;
    // Build number ("0").
    std::string getBuildNumber() const;
    // "Unbekannt", "Windows 3.1", "Win32s", "Windows 95/98/ME", "Windows NT",
    // "POSIX" for the values 0 to 5; "Unbekannt" for anything else.
    std::string getOsTypeAsString() const;

    // The two gathering steps, run by the constructor; false when the host
    // query failed (the fields then keep their fallback values).
    bool retrieveOsInfo();
    // The second step: processors, architecture and memory; false as above.
    bool retrieveSystemInfo();

    // True when running under the Windows compatibility layer; always false on
    // a native POSIX host.
    static bool runningOnWine();

    // Splits at "." into up to three pieces: the text before the first ".",
    // the text up to the second ".", and the rest ("" when there is no second
    // "."). A string without "." leaves all three untouched. Always true.
    // Example: "5.1.2600" gives "5", "1", "2600"; "5.1" gives "5", "1", "";
    // "1.2.3.4" gives "1", "2", "3.4".
    bool splitVersionString(std::string const& version, std::string& major, std::string& minor,
                            std::string& third);

private:
    Logger* logger_;
    State state_;
    int lastError_;
    OSType osType_;
    unsigned short numProcessors_;
    std::int64_t freeSwap_;
    std::int64_t totalSwap_;
    std::int64_t freeMemory_;
    std::int64_t totalMemory_;
    std::string architecture_;
    std::string osName_;
    std::string osZusatz_;
    std::string patchLevel_;
    std::string osVersion_;
    std::string kernelVersion_;
    std::string buildNumber_;
};

// Each of these builds a TovuSystemInformation, reads one field and drops it.
// The memory functions return the field as unsigned long: on 32-bit Windows
// that is the host's 32-bit value, on a 64-bit POSIX host the full value.
TOVU_API unsigned long getFreeSystemMemory();
TOVU_API unsigned long getTotalSystemMemory();
TOVU_API unsigned long getTotalSwapSpace();
TOVU_API unsigned long getFreeSwapSpace();
TOVU_API unsigned short getNumberOfProcessors();
TOVU_API std::string getArchitecture();
TOVU_API std::string getOperatingSystemName();

// Fills, from one instance: name, edition (osZusatz), patch level, version,
// kernel version, build number.
TOVU_API void getOSInfo(std::string& osName, std::string& osZusatz, std::string& patchLevel,
                        std::string& osVersion, std::string& kernelVersion, std::string& buildNumber);

#endif
