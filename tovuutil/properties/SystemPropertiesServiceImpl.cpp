#include "tovuutil/properties/SystemPropertiesServiceImpl.h"

#include <atomic>

#include "tovuutil/files/FileOperation.h"
#include "tovuutil/files/PathUtil.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/ServiceTable.h"
#include "tovuutil/framework/detail/MethodMarker.h"
#include "tovuutil/properties/SystemProperties.h"
#include "tovuutil/properties/detail/SystemPropertiesVersion.h"

namespace {

std::atomic<unsigned long> tableVersion{0};

void tableChanged() { tableVersion.fetch_add(1, std::memory_order_acq_rel); }

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
    tableChanged();
    if (logger_->isDebugEnabled()) {
        logger_->beginConstruct("SystemPropertiesServiceImpl()");
        logger_->endConstruct("SystemPropertiesServiceImpl()");
    }
}

SystemPropertiesServiceImpl::~SystemPropertiesServiceImpl()
{
    tableChanged();
    if (logger_->isDebugEnabled()) {
        logger_->beginDestruct("~SystemPropertiesServiceImpl()");
        logger_->endDestruct("~SystemPropertiesServiceImpl()");
    }
}

std::string SystemPropertiesServiceImpl::getSystemProperty(std::string const& key)
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    auto const marker = marked(logger_, "getSystemProperty", key);
    return properties_.getProperty(key);
}

std::string SystemPropertiesServiceImpl::getSystemProperty(std::string const& key, std::string const& defaultValue)
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    auto const marker = marked(logger_, "getSystemProperty", key);
    std::string value = properties_.getProperty(key);
    return value.empty() ? defaultValue : value;
}

bool SystemPropertiesServiceImpl::isGetSystemProperty(std::string const& key, std::string& value)
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    auto const marker = marked(logger_, "isGetSystemProperty", key);
    if (!isSystemPropertyAvailable(key))
        return false;
    value = getSystemProperty(key);
    return true;
}

void SystemPropertiesServiceImpl::setSystemProperty(std::string const& key, std::string const& value)
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    auto const marker = marked(logger_, "setSystemProperty", key);
    properties_.setProperty(key, value);
    tableChanged();
}

bool SystemPropertiesServiceImpl::isSystemPropertyAvailable(std::string const& key)
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    auto const marker = marked(logger_, "isSystemPropertyAvailable", key);
    return properties_.isAvailable(key);
}

bool SystemPropertiesServiceImpl::removeSystemProperty(std::string const& key)
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    auto const marker = marked(logger_, "removeSystemProperty", key);
    bool const removed = properties_.removeProperty(key);
    tableChanged();
    return removed;
}

std::string SystemPropertiesServiceImpl::getIniHome()
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    tovu::detail::MethodMarker const marker(logger_, "getIniHome()");
    return getSystemProperty(TOVU_PROPERTY_INI_HOME);
}

std::string SystemPropertiesServiceImpl::getLogHome()
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    tovu::detail::MethodMarker const marker(logger_, "getLogHome()");
    return getSystemProperty(TOVU_PROPERTY_LOG_HOME);
}

std::string SystemPropertiesServiceImpl::getTempHome()
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    tovu::detail::MethodMarker const marker(logger_, "getTempHome()");
    return getSystemProperty(TOVU_PROPERTY_TEMP_HOME);
}

std::string SystemPropertiesServiceImpl::getDataHome()
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    tovu::detail::MethodMarker const marker(logger_, "getDataHome()");
    return getSystemProperty(TOVU_PROPERTY_DATA_HOME);
}

std::string SystemPropertiesServiceImpl::getTovuHome()
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    tovu::detail::MethodMarker const marker(logger_, "getTovuHome()");
    return getSystemProperty(PROPERTY_TOVU_HOME);
}

int SystemPropertiesServiceImpl::setHome(char const* key, std::string const& home, bool movesLog)
{
    // Every setter shows as "setIniHome" in the log, on purpose.
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
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
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
    tovu::detail::MethodMarker const marker(logger_, "log()");
    properties_.log();
}

std::vector<std::pair<std::string, std::string>> SystemPropertiesServiceImpl::getAllSystemProperties()
{
    std::lock_guard<std::recursive_mutex> const lock(mutex_);
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

tovu::detail::CreatedService tovu::detail::createSystemPropertiesService() { return makeService<SystemPropertiesServiceImpl>(); }

unsigned long tovu::detail::systemPropertiesVersion() { return tableVersion.load(std::memory_order_acquire); }
