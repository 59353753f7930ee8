#include "tovuutil/properties/SystemPropertiesServiceImpl.h"

#include "tovuutil/framework/Logger.h"

// Placeholder until the system properties table lands.

SystemPropertiesServiceImpl::SystemPropertiesServiceImpl()
    : logger_(Logger::getInstance("tovuutil.SystemPropertiesServiceImpl"))
{
}

SystemPropertiesServiceImpl::~SystemPropertiesServiceImpl() = default;

std::string SystemPropertiesServiceImpl::getSystemProperty(std::string const&) { return std::string(); }
std::string SystemPropertiesServiceImpl::getSystemProperty(std::string const&, std::string const& defaultValue)
{
    return defaultValue;
}
bool SystemPropertiesServiceImpl::isGetSystemProperty(std::string const&, std::string&) { return false; }
void SystemPropertiesServiceImpl::setSystemProperty(std::string const&, std::string const&) {}
bool SystemPropertiesServiceImpl::isSystemPropertyAvailable(std::string const&) { return false; }
bool SystemPropertiesServiceImpl::removeSystemProperty(std::string const&) { return false; }
std::string SystemPropertiesServiceImpl::getIniHome() { return std::string(); }
std::string SystemPropertiesServiceImpl::getLogHome() { return std::string(); }
std::string SystemPropertiesServiceImpl::getTempHome() { return std::string(); }
std::string SystemPropertiesServiceImpl::getDataHome() { return std::string(); }
std::string SystemPropertiesServiceImpl::getTovuHome() { return std::string(); }
int SystemPropertiesServiceImpl::setIniHome(std::string const&) { return 1; }
int SystemPropertiesServiceImpl::setLogHome(std::string const&) { return 1; }
int SystemPropertiesServiceImpl::setTempHome(std::string const&) { return 1; }
int SystemPropertiesServiceImpl::setDataHome(std::string const&) { return 1; }
int SystemPropertiesServiceImpl::setTovuHome(std::string const&) { return 1; }
void SystemPropertiesServiceImpl::log() {}
std::vector<std::pair<std::string, std::string>> SystemPropertiesServiceImpl::getAllSystemProperties() { return {}; }
