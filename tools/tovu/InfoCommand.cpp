#include <tovuutil/tovuutil.h>

#include "Commands.h"

namespace {

char const* const kServiceNames[] = {"SystemPropertiesService", "PropertiesService", "SharedLibService", "GUIService"};

void printServices(std::ostream& out)
{
    out << "[services]\n";
    for (int type = 0; type < 4; ++type) {
        Service* service = UtilServiceFactory::getService(type);
        out << type << " = " << kServiceNames[type] << (service && service->isAvailable() ? "" : " (missing)")
            << '\n';
    }
}

void printSystemProperties(std::ostream& out)
{
    out << "[system properties]\n";
    auto* service = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0));
    if (service == nullptr)
        return;
    for (auto const& property : service->getAllSystemProperties())
        out << property.first << " = " << property.second << '\n';
}

void printMachine(std::ostream& out)
{
    TovuSystemInformation info;
    out << "[machine]\n";
    out << "operating system = " << info.getOsName() << '\n';
    out << "edition = " << info.getOsZusatz() << '\n';
    out << "patch level = " << info.getPatchLevel() << '\n';
    out << "version = " << info.getOsVersion() << '\n';
    out << "kernel version = " << info.getKernelVersion() << '\n';
    out << "build = " << info.getBuildNumber() << '\n';
    out << "system type = " << info.getOsTypeAsString() << '\n';
    out << "architecture = " << info.getArchitecture() << '\n';
    out << "processors = " << info.getNumProcessors() << '\n';
    out << "total memory = " << info.getTotalMemory() << '\n';
    out << "free memory = " << info.getFreeMemory() << '\n';
    out << "total swap = " << info.getTotalSwap() << '\n';
    out << "free swap = " << info.getFreeSwap() << '\n';
    out << "computer name = " << getLocalComputerName() << '\n';
    out << "ip address = " << getLocalIPAddress() << '\n';
    out << "mac address = " << getMacAddress() << '\n';
}

} // namespace

int runInfo(std::ostream& out)
{
    out << "[library]\n";
    out << "version = " << TOVUUTIL_VERSION << '\n';
    char buffer[32] = {0};
    getTovuSharedLibProductversion(buffer);
    out << "product version = " << buffer << '\n';
    getTovuSharedLibFileversion(buffer);
    out << "file version = " << buffer << '\n';
    out << "log directory = " << log4cxx::Log4cxx::getLogDirectory() << '\n';
    printServices(out);
    printSystemProperties(out);
    printMachine(out);
    return 0;
}
