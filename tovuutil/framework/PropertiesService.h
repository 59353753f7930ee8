#ifndef TOVUUTIL_FRAMEWORK_PROPERTIESSERVICE_H
#define TOVUUTIL_FRAMEWORK_PROPERTIESSERVICE_H

#include <string>
#include <utility>
#include <vector>

#include <tovuutil/framework/Service.h>

// PropertiesService
//
// Service 1: properties files loaded and cached by name. The first argument of
// every operation but loadProperties is the resource name that loadProperties
// returned. The order of the virtual operations is part of the binary interface.
class TOVU_API PropertiesService : public Service {
public:
    virtual ~PropertiesService() = 0;
    virtual std::string loadProperties(std::string const& file) = 0;
    virtual bool unloadProperties(std::string const& resource) = 0;
    virtual std::string getProperty(std::string const& resource, std::string const& key) = 0;
    virtual std::string getProperty(std::string const& resource, std::string const& key,
                                    std::string const& defaultValue) = 0;
    virtual bool isAvailable(std::string const& resource, std::string const& key) = 0;
    virtual void setProperty(std::string const& resource, std::string const& key, std::string const& value) = 0;
    virtual bool saveProperties(std::string const& resource) = 0;
    virtual std::vector<std::string> getKeysOfSection(std::string const& resource, std::string const& section) = 0;
    virtual std::vector<std::string> getSectionNames(std::string const& resource) = 0;
    virtual void clearProperties(std::string const& resource) = 0;
    virtual std::vector<std::pair<std::string, std::string>> getAllProperties(std::string const& resource,
                                                                             bool flag) = 0;
    virtual void setProperties(std::string const& resource,
                               std::vector<std::pair<std::string, std::string>> const& properties) = 0;
    virtual bool removeProperty(std::string const& resource, std::string const& key) = 0;

    using Service::isAvailable;
};

#endif
