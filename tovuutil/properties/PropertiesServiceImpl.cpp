#include "tovuutil/properties/PropertiesServiceImpl.h"

#include "tovuutil/files/FileOperation.h"
#include "tovuutil/files/PathUtil.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/ServiceTable.h"
#include "tovuutil/framework/detail/CachedResource.h"
#include "tovuutil/framework/detail/MethodMarker.h"
#include "tovuutil/properties/Properties.h"
#include "tovuutil/properties/SystemProperties.h"
#include "tovuutil/text/StringUtil.h"

namespace {

constexpr char kDefaultIni[] = "tm.ini";
constexpr char kDefaultDii[] = "tdf.dii";

std::string quote(std::string const& text) { return "\"" + text + "\""; }

using tovu::detail::MethodMarker;

template <class List>
std::vector<std::string> toVector(List const& list)
{
    return std::vector<std::string>(list.begin(), list.end());
}

} // namespace

PropertiesServiceImpl::PropertiesServiceImpl() : logger_(Logger::getInstance("tovuutil.PropertiesServiceImpl"))
{
    if (logger_->isDebugEnabled()) {
        logger_->beginConstruct("PropertiesServiceImpl()");
        logger_->endConstruct("PropertiesServiceImpl()");
    }
}

PropertiesServiceImpl::~PropertiesServiceImpl()
{
    if (logger_->isDebugEnabled()) {
        logger_->beginDestruct("~PropertiesServiceImpl()");
        logger_->endDestruct("~PropertiesServiceImpl()");
    }
}

PropertiesServiceImpl::LockedFile PropertiesServiceImpl::file(std::string const& resource)
{
    return LockedFile(manager_.acquireResource(resource));
}

std::string PropertiesServiceImpl::loadProperties(std::string const& name)
{
    MethodMarker marker(logger_, [&] { return "loadProperties(" + quote(name) + ")"; });
    char const* defaultFile = endsWith(name, kDefaultIni) ? kDefaultIni : endsWith(name, kDefaultDii) ? kDefaultDii
                                                                                                       : nullptr;
    if (defaultFile != nullptr) {
        std::string fullName = getFullFilename(getSystemPropertyIniHome(), defaultFile);
        if (!fileExists(fullName))
            writeString2File(fullName, std::string());
    }
    LockedFile const resource = file(name);
    return resource.get() ? resource.get()->getName() : std::string();
}

bool PropertiesServiceImpl::unloadProperties(std::string const& resource)
{
    MethodMarker marker(logger_, [&] { return "unloadProperties(" + quote(resource) + ")"; });
    return manager_.removeResource(resource);
}

std::string PropertiesServiceImpl::getProperty(std::string const& resource, std::string const& key)
{
    MethodMarker marker(logger_, [&] { return "getProperty(" + quote(resource) + ", " + quote(key) + ")"; });
    LockedFile const locked = file(resource);
    Properties* properties = locked.get();
    return properties ? properties->getProperty(key) : std::string();
}

std::string PropertiesServiceImpl::getProperty(std::string const& resource, std::string const& key,
                                               std::string const& defaultValue)
{
    MethodMarker marker(logger_, [&] {
        return "getProperty(" + quote(resource) + ", " + quote(key) + ", " + quote(defaultValue) + ")";
    });
    std::string value = getProperty(resource, key);
    return value.empty() ? defaultValue : value;
}

bool PropertiesServiceImpl::isAvailable(std::string const& resource, std::string const& key)
{
    MethodMarker marker(logger_, [&] { return "isAvailable(" + quote(resource) + ", " + quote(key) + ")"; });
    LockedFile const locked = file(resource);
    Properties* properties = locked.get();
    return properties ? properties->isAvailable(key) : false;
}

void PropertiesServiceImpl::setProperty(std::string const& resource, std::string const& key, std::string const& value)
{
    MethodMarker marker(logger_, [&] {
        return "setProperty(" + quote(resource) + ", " + quote(key) + ", " + quote(value) + ")";
    });
    LockedFile const locked = file(resource);
    if (Properties* properties = locked.get())
        properties->setProperty(key, value);
}

bool PropertiesServiceImpl::saveProperties(std::string const& resource)
{
    MethodMarker marker(logger_, [&] { return "saveProperties(" + quote(resource) + ")"; });
    LockedFile const locked = file(resource);
    Properties* properties = locked.get();
    return properties ? properties->writeProperties() : false;
}

std::vector<std::string> PropertiesServiceImpl::getKeysOfSection(std::string const& resource,
                                                                 std::string const& section)
{
    MethodMarker marker(logger_, [&] { return "getKeysOfSection(" + quote(resource) + ", " + quote(section) + ")"; });
    LockedFile const locked = file(resource);
    Properties* properties = locked.get();
    return properties ? toVector(properties->getKeysOfSection(section)) : std::vector<std::string>();
}

std::vector<std::string> PropertiesServiceImpl::getSectionNames(std::string const& resource)
{
    MethodMarker marker(logger_, [&] { return "getSectionNames(" + quote(resource) + ")"; });
    LockedFile const locked = file(resource);
    Properties* properties = locked.get();
    return properties ? toVector(properties->getSectionNames()) : std::vector<std::string>();
}

void PropertiesServiceImpl::clearProperties(std::string const& resource)
{
    MethodMarker marker(logger_, [&] { return "clearProperties(" + quote(resource) + ")"; });
    for (std::string const& section : getSectionNames(resource))
        for (std::string const& key : getKeysOfSection(resource, section))
            setProperty(resource, key, std::string());
}

std::vector<std::pair<std::string, std::string>> PropertiesServiceImpl::getAllProperties(std::string const& resource,
                                                                                        bool flag)
{
    MethodMarker marker(logger_,
                        [&] { return "getAllProperties(" + quote(resource) + ", " + bool2String(flag) + ")"; });
    std::vector<std::pair<std::string, std::string>> all;
    for (std::string const& section : getSectionNames(resource))
        for (std::string const& key : getKeysOfSection(resource, section))
            all.emplace_back(key, getProperty(resource, key));
    return all;
}

void PropertiesServiceImpl::setProperties(std::string const& resource,
                                          std::vector<std::pair<std::string, std::string>> const& properties)
{
    MethodMarker marker(logger_, [&] { return "setProperties(" + quote(resource) + ", <vector>)"; });
    for (auto const& pair : properties)
        setProperty(resource, pair.first, pair.second);
}

bool PropertiesServiceImpl::removeProperty(std::string const& resource, std::string const& key)
{
    MethodMarker marker(logger_, [&] { return "removeProperty(" + quote(resource) + ", " + quote(key) + ")"; });
    LockedFile const locked = file(resource);
    Properties* properties = locked.get();
    return properties ? properties->removeProperty(key) : false;
}

tovu::detail::CreatedService tovu::detail::createPropertiesService() { return makeService<PropertiesServiceImpl>(); }
