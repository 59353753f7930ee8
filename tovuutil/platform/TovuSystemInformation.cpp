#include "tovuutil/platform/TovuSystemInformation.h"

#include "tovuutil/framework/Logger.h"
#include "tovuutil/platform/detail/SystemFacts.h"

namespace {
constexpr char kUnknownName[] = "Unbekannt";
constexpr char kUnknownArchitecture[] = "UNBEKANNT";
} // namespace

TovuSystemInformation::TovuSystemInformation()
    : logger_(Logger::getInstance("tovuutil.system.TovuSystemInformation")),
      state_(STATE_OK),
      lastError_(0),
      osType_(OS_UNKNOWN),
      numProcessors_(0),
      freeSwap_(0),
      totalSwap_(0),
      freeMemory_(0),
      totalMemory_(0),
      architecture_(kUnknownArchitecture),
      osName_(kUnknownName)
{
    if (logger_->isDebugEnabled())
        logger_->beginConstruct("TovuSystemInformation()");
    retrieveOsInfo();
    retrieveSystemInfo();
    if (logger_->isDebugEnabled())
        logger_->endConstruct("TovuSystemInformation()");
}

TovuSystemInformation::TovuSystemInformation(TovuSystemInformation const& other) = default;
TovuSystemInformation& TovuSystemInformation::operator=(TovuSystemInformation const& other) = default;
TovuSystemInformation::~TovuSystemInformation() = default;

bool TovuSystemInformation::retrieveOsInfo()
{
    tovu::detail::OsFacts facts;
    int error = 0;
    if (!tovu::detail::hostOsFacts(facts, error)) {
        state_ = static_cast<State>(state_ | STATE_OSINFO_FAILED);
        lastError_ = error;
        if (logger_->isDebugEnabled())
            logger_->debug("retrieveOsInfo: Fehler " + std::to_string(error));
        return false;
    }
    osType_ = static_cast<OSType>(facts.osType);
    osName_ = facts.osName;
    osZusatz_ = facts.osZusatz;
    patchLevel_ = facts.patchLevel;
    osVersion_ = facts.osVersion;
    kernelVersion_ = facts.kernelVersion;
    buildNumber_ = facts.buildNumber;
    if (runningOnWine())
        osZusatz_ = osZusatz_.empty() ? std::string("WINE") : osZusatz_ + " (WINE)";
    return true;
}

bool TovuSystemInformation::retrieveSystemInfo()
{
    tovu::detail::MachineFacts facts;
    int error = 0;
    if (!tovu::detail::hostMachineFacts(facts, error)) {
        state_ = static_cast<State>(state_ | STATE_SYSTEMINFO_FAILED);
        lastError_ = error;
        if (logger_->isDebugEnabled())
            logger_->debug("retrieveSystemInfo: Fehler " + std::to_string(error));
        return false;
    }
    numProcessors_ = facts.numProcessors;
    architecture_ = facts.architecture;
    freeMemory_ = facts.freeMemory;
    totalMemory_ = facts.totalMemory;
    freeSwap_ = facts.freeSwap;
    totalSwap_ = facts.totalSwap;
    return true;
}

bool TovuSystemInformation::runningOnWine() { return tovu::detail::hostRunningOnWine(); }

bool TovuSystemInformation::splitVersionString(std::string const& version, std::string& major, std::string& minor,
                                               std::string& third)
{
    std::string::size_type first = version.find('.');
    if (first == std::string::npos)
        return true;
    major = version.substr(0, first);
    std::string::size_type second = version.find('.', first + 1);
    if (second == std::string::npos) {
        minor = version.substr(first + 1);
        third.clear();
        return true;
    }
    minor = version.substr(first + 1, second - first - 1);
    third = version.substr(second + 1);
    return true;
}

TovuSystemInformation::State TovuSystemInformation::getState() const { return state_; }
int TovuSystemInformation::getLastError() const { return lastError_; }
unsigned short TovuSystemInformation::getNumProcessors() const { return numProcessors_; }
std::string TovuSystemInformation::getArchitecture() const { return architecture_; }
std::int64_t TovuSystemInformation::getFreeMemory() const { return freeMemory_; }
std::int64_t TovuSystemInformation::getTotalMemory() const { return totalMemory_; }
std::int64_t TovuSystemInformation::getFreeSwap() const { return freeSwap_; }
std::int64_t TovuSystemInformation::getTotalSwap() const { return totalSwap_; }
std::string TovuSystemInformation::getOsName() const { return osName_; }
TovuSystemInformation::OSType TovuSystemInformation::getOsType() const { return osType_; }
std::string TovuSystemInformation::getOsZusatz() const { return osZusatz_; }
std::string TovuSystemInformation::getPatchLevel() const { return patchLevel_; }
std::string TovuSystemInformation::getOsVersion() const { return osVersion_; }
std::string TovuSystemInformation::getKernelVersion() const { return kernelVersion_; }
std::string TovuSystemInformation::getBuildNumber() const { return buildNumber_; }

std::string TovuSystemInformation::getOsTypeAsString() const
{
    switch (osType_) {
    case OS_WIN16: return "Windows 3.1";
    case OS_WIN32S: return "Win32s";
    case OS_WIN9X: return "Windows 95/98/ME";
    case OS_WINNT: return "Windows NT";
    case OS_POSIX: return "POSIX";
    default: return kUnknownName;
    }
}

unsigned long getFreeSystemMemory() { return static_cast<unsigned long>(TovuSystemInformation().getFreeMemory()); }
unsigned long getTotalSystemMemory() { return static_cast<unsigned long>(TovuSystemInformation().getTotalMemory()); }
unsigned long getTotalSwapSpace() { return static_cast<unsigned long>(TovuSystemInformation().getTotalSwap()); }
unsigned long getFreeSwapSpace() { return static_cast<unsigned long>(TovuSystemInformation().getFreeSwap()); }
unsigned short getNumberOfProcessors() { return TovuSystemInformation().getNumProcessors(); }
std::string getArchitecture() { return TovuSystemInformation().getArchitecture(); }
std::string getOperatingSystemName() { return TovuSystemInformation().getOsName(); }

void getOSInfo(std::string& osName, std::string& osZusatz, std::string& patchLevel, std::string& osVersion,
               std::string& kernelVersion, std::string& buildNumber)
{
    TovuSystemInformation info;
    osName = info.getOsName();
    osZusatz = info.getOsZusatz();
    patchLevel = info.getPatchLevel();
    osVersion = info.getOsVersion();
    kernelVersion = info.getKernelVersion();
    buildNumber = info.getBuildNumber();
}
