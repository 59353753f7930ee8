#ifndef TOVUUTIL_FRAMEWORK_SYSTEMPROPERTIESSERVICE_H
#define TOVUUTIL_FRAMEWORK_SYSTEMPROPERTIESSERVICE_H

#include <string>
#include <utility>
#include <vector>

#include <tovuutil/framework/Service.h>

// SystemPropertiesService
//
// Service 0: the table of named system settings and the five homes. The order
// of the virtual operations is part of the binary interface towards hosts.
class TOVU_API SystemPropertiesService : public Service {
public:
    virtual ~SystemPropertiesService() = 0;
    virtual std::string getSystemProperty(std::string const& key) = 0;
    virtual std::string getSystemProperty(std::string const& key, std::string const& defaultValue) = 0;
    virtual bool isGetSystemProperty(std::string const& key, std::string& value) = 0;
    virtual void setSystemProperty(std::string const& key, std::string const& value) = 0;
    virtual bool isSystemPropertyAvailable(std::string const& key) = 0;
    virtual bool removeSystemProperty(std::string const& key) = 0;
    virtual std::string getIniHome() = 0;
    virtual std::string getLogHome() = 0;
    virtual std::string getTempHome() = 0;
    virtual std::string getDataHome() = 0;
    virtual std::string getTovuHome() = 0;
    virtual int setIniHome(std::string const& home) = 0;
    virtual int setLogHome(std::string const& home) = 0;
    virtual int setTempHome(std::string const& home) = 0;
    virtual int setDataHome(std::string const& home) = 0;
    virtual int setTovuHome(std::string const& home) = 0;
    virtual void log() = 0;
    virtual std::vector<std::pair<std::string, std::string>> getAllSystemProperties() = 0;
};

#endif
