#include "tovuutil/properties/detail/BuiltInSystemProperties.h"

#include <cstdlib>
#include <string>

#include "tovuutil/files/PathUtil.h"
#include "tovuutil/framework/SystemPropertiesService.h"
#include "tovuutil/framework/UtilServiceFactory.h"
#include "tovuutil/platform/NetworkIdentity.h"
#include "tovuutil/platform/TovuSystemInformation.h"
#include "tovuutil/platform/detail/HostIdentity.h"
#include "tovuutil/properties/SystemProperties.h"

namespace tovu {
namespace detail {

namespace {

std::string environment(char const* name)
{
    char const* value = std::getenv(name);
    return value ? std::string(value) : std::string();
}

std::string firstNonEmpty(std::string const& a, std::string const& b, std::string const& c)
{
    return !a.empty() ? a : !b.empty() ? b : c;
}

} // namespace

void fillBuiltInSystemProperties()
{
    std::string const systemRoot = environment("SystemRoot");
    std::string const tovuHome = environment("TOVU_HOME");
    std::string const current = getCurrentDirectory();

    // The homes, through their setters: an unwritable directory stays unset.
    std::string const iniHome = firstNonEmpty(systemRoot, tovuHome, current);
    if (!iniHome.empty())
        setSystemPropertyIniHome(iniHome);
    // The first log home also configures "tovu.log" in the working directory.
    setSystemPropertyLogHome(current);
    setSystemPropertyTempHome(firstNonEmpty(environment("TEMP"), environment("TMP"), current));
    setSystemPropertyDataHome(current);
    std::string const installation = tovuHome.empty() ? current : tovuHome;
    setSystemPropertyTovuHome(installation);

    auto* service = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0));
    if (service == nullptr)
        return;
    service->setSystemProperty(PROPERTY_COMPUTER_NAME, getLocalComputerName());
    service->setSystemProperty(PROPERTY_COMPUTER_IP_ADDRESS, getLocalIPAddress());
    {
        MacRetriever retriever;
        service->setSystemProperty(PROPERTY_COMPUTER_MAC_ADDRESS, retriever.getMacAddress());
    }
    {
        TovuSystemInformation info;
        service->setSystemProperty(PROPERTY_PLATFORM, info.getOsName());
        service->setSystemProperty(TOVU_TOTAL_MEM, std::to_string(static_cast<unsigned long>(info.getTotalMemory())));
        service->setSystemProperty(TOVU_FREE_MEM, std::to_string(static_cast<unsigned long>(info.getFreeMemory())));
    }
    std::string const user = hostUserName();
    if (!user.empty())
        service->setSystemProperty(PROPERTY_USER_NAME, user);
    service->setSystemProperty(PROPERTY_SYSTEM_HOME, formatPath(systemRoot));
    service->setSystemProperty(PROPERTY_CURRENT_HOME, formatPath(current));

    service->setTovuHome(installation);
    service->log();
}

} // namespace detail
} // namespace tovu
