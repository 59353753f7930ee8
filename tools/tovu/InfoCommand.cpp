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

} // namespace

int runInfo(std::ostream& out)
{
    out << "[library]\n";
    out << "version = " << TOVUUTIL_VERSION << '\n';
    out << "log directory = " << log4cxx::Log4cxx::getLogDirectory() << '\n';
    printServices(out);
    return 0;
}
