#include "tovuutil/properties/SystemPropertiesServiceImpl.h"

#include "tovuutil/files/FileOperation.h"
#include "tovuutil/files/PathUtil.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/MethodMarker.h"
#include "tovuutil/properties/SystemProperties.h"

namespace {

constexpr int kHomeSet = 0;
constexpr int kHomeNotWritable = 1;
constexpr int kHomeEmpty = 2;
constexpr int kWriteAccess = 2;

std::string quoted(char const* method, std::string const& argument)
{
    std::string text = method;
    text += "(\"";
    text += argument;
    text += "\")";
    return text;
}

// The marker of an operation with its quoted argument, built only when DEBUG is on.
tovu::detail::MethodMarker marked(Logger* logger, char const* method, std::string const& argument)
{
    return tovu::detail::MethodMarker(logger, [&] { return quoted(method, argument); });
}

} // namespace

SystemPropertiesServiceImpl::SystemPropertiesServiceImpl()
    : logger_(Logger::getInstance("tovuutil.SystemPropertiesServiceImpl"))
{
    if (logger_->isDebugEnabled()) {
        logger_->beginConstruct("SystemPropertiesServiceImpl()");
        logger_->endConstruct("SystemPropertiesServiceImpl()");
    }
}

SystemPropertiesServiceImpl::~SystemPropertiesServiceImpl()
{
    if (logger_->isDebugEnabled()) {
        logger_->beginDestruct("~SystemPropertiesServiceImpl()");
        logger_->endDestruct("~SystemPropertiesServiceImpl()");
    }
}

std::string SystemPropertiesServiceImpl::getSystemProperty(std::string const& key)
{
    auto const marker = marked(logger_, "getSystemProperty", key);
    return properties_.getProperty(key);
}

std::string SystemPropertiesServiceImpl::getSystemProperty(std::string const& key, std::string const& defaultValue)
{
    auto const marker = marked(logger_, "getSystemProperty", key);
    std::string value = properties_.getProperty(key);
    return value.empty() ? defaultValue : value;
}

bool SystemPropertiesServiceImpl::isGetSystemProperty(std::string const& key, std::string& value)
{
    auto const marker = marked(logger_, "isGetSystemProperty", key);
    if (!isSystemPropertyAvailable(key))
        return false;
    value = getSystemProperty(key);
    return true;
}

void SystemPropertiesServiceImpl::setSystemProperty(std::string const& key, std::string const& value)
{
    auto const marker = marked(logger_, "setSystemProperty", key);
    properties_.setProperty(key, value);
}

bool SystemPropertiesServiceImpl::isSystemPropertyAvailable(std::string const& key)
{
    auto const marker = marked(logger_, "isSystemPropertyAvailable", key);
    return properties_.isAvailable(key);
}

bool SystemPropertiesServiceImpl::removeSystemProperty(std::string const& key)
{
    auto const marker = marked(logger_, "removeSystemProperty", key);
    return properties_.removeProperty(key);
}

std::string SystemPropertiesServiceImpl::getIniHome()
{
    tovu::detail::MethodMarker const marker(logger_, "getIniHome()");
    return getSystemProperty(TOVU_PROPERTY_INI_HOME);
}

std::string SystemPropertiesServiceImpl::getLogHome()
{
    tovu::detail::MethodMarker const marker(logger_, "getLogHome()");
    return getSystemProperty(TOVU_PROPERTY_LOG_HOME);
}

std::string SystemPropertiesServiceImpl::getTempHome()
{
    tovu::detail::MethodMarker const marker(logger_, "getTempHome()");
    return getSystemProperty(TOVU_PROPERTY_TEMP_HOME);
}

std::string SystemPropertiesServiceImpl::getDataHome()
{
    tovu::detail::MethodMarker const marker(logger_, "getDataHome()");
    return getSystemProperty(TOVU_PROPERTY_DATA_HOME);
}

std::string SystemPropertiesServiceImpl::getTovuHome()
{
    tovu::detail::MethodMarker const marker(logger_, "getTovuHome()");
    return getSystemProperty(PROPERTY_TOVU_HOME);
}

int SystemPropertiesServiceImpl::setHome(char const* key, std::string const& home, bool movesLog)
{
    // Every setter shows as "setIniHome" in the log, on purpose.
    auto const marker = marked(logger_, "setIniHome", home);
    if (home.empty())
        return kHomeEmpty;
    if (fileAccess(home, kWriteAccess) == -1)
        return kHomeNotWritable;
    std::string formatted = formatPath(home);
    std::string oldLogHome;
    if (movesLog)
        oldLogHome = getLogHome();
    setSystemProperty(key, formatted);
    if (movesLog)
        log4cxx::Log4cxx::relocateLog(std::string(), oldLogHome, formatted);
    return kHomeSet;
}

int SystemPropertiesServiceImpl::setIniHome(std::string const& home) { return setHome(TOVU_PROPERTY_INI_HOME, home, false); }
int SystemPropertiesServiceImpl::setLogHome(std::string const& home) { return setHome(TOVU_PROPERTY_LOG_HOME, home, true); }
int SystemPropertiesServiceImpl::setTempHome(std::string const& home) { return setHome(TOVU_PROPERTY_TEMP_HOME, home, false); }
int SystemPropertiesServiceImpl::setDataHome(std::string const& home) { return setHome(TOVU_PROPERTY_DATA_HOME, home, false); }
int SystemPropertiesServiceImpl::setTovuHome(std::string const& home) { return setHome(PROPERTY_TOVU_HOME, home, false); }

void SystemPropertiesServiceImpl::log()
{
    tovu::detail::MethodMarker const marker(logger_, "log()");
    properties_.log();
}

std::vector<std::pair<std::string, std::string>> SystemPropertiesServiceImpl::getAllSystemProperties()
{
    tovu::detail::MethodMarker const marker(logger_, "getAllProperties()");
    std::vector<std::pair<std::string, std::string>> all;
    for (std::string const& section : properties_.getSectionNames()) {
        for (std::string const& key : properties_.getKeysOfSection(section)) {
            std::string name = key.empty() ? section : section + "." + key;
            all.emplace_back(name, properties_.getProperty(name));
        }
    }
    return all;
}
