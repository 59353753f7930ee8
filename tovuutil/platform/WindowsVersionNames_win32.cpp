// The naming table of Windows version records. Standard C++ only, so that it
// can be checked on any build host.
#include "tovuutil/platform/detail/SystemFacts.h"

namespace tovu {
namespace detail {

namespace {

constexpr unsigned kPlatformWindows = 1;  // the 95/98/ME family
constexpr unsigned kPlatformNT = 2;
constexpr unsigned kWorkstation = 1;
constexpr unsigned kServer = 3;
constexpr unsigned kSuiteEnterprise = 0x2;
constexpr unsigned kSuiteDatacenter = 0x80;
constexpr unsigned kSuitePersonal = 0x200;
constexpr unsigned kSuiteBlade = 0x400;

// The second character of the service-pack text ("" when it is shorter).
char servicePackLetter(std::string const& servicePack) { return servicePack.size() > 1 ? servicePack[1] : '\0'; }

void nameWindowsFamily(WindowsVersion const& v, std::string& name, std::string& zusatz)
{
    char letter = servicePackLetter(v.servicePack);
    if (v.major == 4 && v.minor == 0) {
        name = "Microsoft Windows 95";
        if (letter == 'C' || letter == 'B')
            zusatz = "OSR2";
    } else if (v.major == 4 && v.minor == 10) {
        name = "Microsoft Windows 98";
        if (letter == 'A')
            zusatz = "Second Edition";
    } else if (v.major == 4 && v.minor == 90) {
        name = "Windows ME";  // without the vendor prefix, as designed
    }
}

void nameNTFamily(WindowsVersion const& v, std::string& name, std::string& zusatz)
{
    unsigned productType = v.extended ? v.productType : 0;
    unsigned suite = v.extended ? v.suiteMask : 0;
    if (v.major == 3) {
        name = "Microsoft Windows NT 3.51";
    } else if (v.major == 4) {
        // A domain controller (2) counts as a workstation here; only 3 is a server.
        name = productType == kServer ? "Microsoft Windows NT 4.0 Server" : "Microsoft Windows NT 4.0 Workstation";
        if (productType == kServer)
            zusatz = (suite & kSuiteEnterprise) ? "Enterprise Edition" : "Standard Edition";
    } else if (v.major == 5 && v.minor == 0) {
        name = "Microsoft Windows 2000";
        if (v.extended)
            zusatz = productType == kWorkstation       ? "Professional"
                     : (suite & kSuiteDatacenter) ? "Datacenter Edition"
                                                  : "Advanced Server";
    } else if (v.major == 5 && v.minor == 1) {
        name = "Microsoft Windows XP";
        if (v.extended)
            zusatz = (suite & kSuitePersonal) ? "Home Edition" : "Professional";
    } else if (v.major == 5 && v.minor == 2) {
        name = "Microsoft Windows Server 2003";
        if (suite & kSuiteEnterprise)
            zusatz = "Enterprise Edition";
        else if (suite & kSuiteDatacenter)
            zusatz = "Datacenter Edition";
        else if (suite & kSuiteBlade)
            zusatz = "Web Edition";
    } else if (v.major == 6 && v.minor == 0) {
        if (productType == kWorkstation) {
            name = "Microsoft Windows Vista";
            zusatz = (suite & kSuitePersonal) ? "Home/Home Premium Edition" : "Ultimate/Business Edition";
        } else {
            name = "Microsoft Windows Server 2008";
            if (suite & kSuiteEnterprise)
                zusatz = "Enterprise Edition";
            else if (suite & kSuiteDatacenter)
                zusatz = "Datacenter Edition";
        }
    }
}

} // namespace

void nameWindowsVersion(WindowsVersion const& version, std::string& osName, std::string& osZusatz)
{
    osName = "Unbekannt";
    osZusatz.clear();
    if (version.platform == kPlatformWindows)
        nameWindowsFamily(version, osName, osZusatz);
    else if (version.platform == kPlatformNT)
        nameNTFamily(version, osName, osZusatz);
}

} // namespace detail
} // namespace tovu
