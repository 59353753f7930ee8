#include "tovuutil/properties/PropertiesServiceImpl.h"

#include "tovuutil/framework/Logger.h"

// Placeholder until the properties cache lands.

PropertiesServiceImpl::PropertiesServiceImpl() : logger_(Logger::getInstance("tovuutil.PropertiesServiceImpl")) {}
PropertiesServiceImpl::~PropertiesServiceImpl() = default;

std::string PropertiesServiceImpl::loadProperties(std::string const&) { return std::string(); }
bool PropertiesServiceImpl::unloadProperties(std::string const&) { return false; }
std::string PropertiesServiceImpl::getProperty(std::string const&, std::string const&) { return std::string(); }
std::string PropertiesServiceImpl::getProperty(std::string const&, std::string const&, std::string const& d)
{
    return d;
}
bool PropertiesServiceImpl::isAvailable(std::string const&, std::string const&) { return false; }
void PropertiesServiceImpl::setProperty(std::string const&, std::string const&, std::string const&) {}
bool PropertiesServiceImpl::saveProperties(std::string const&) { return false; }
std::vector<std::string> PropertiesServiceImpl::getKeysOfSection(std::string const&, std::string const&) { return {}; }
std::vector<std::string> PropertiesServiceImpl::getSectionNames(std::string const&) { return {}; }
void PropertiesServiceImpl::clearProperties(std::string const&) {}
std::vector<std::pair<std::string, std::string>> PropertiesServiceImpl::getAllProperties(std::string const&, bool)
{
    return {};
}
void PropertiesServiceImpl::setProperties(std::string const&, std::vector<std::pair<std::string, std::string>> const&) {}
bool PropertiesServiceImpl::removeProperty(std::string const&, std::string const&) { return false; }
