#ifndef TOVUUTIL_PROPERTIES_SYSTEMPROPERTIESSERVICEIMPL_H
#define TOVUUTIL_PROPERTIES_SYSTEMPROPERTIESSERVICEIMPL_H

#include <tovuutil/framework/SystemPropertiesService.h>

class Logger;

// SystemPropertiesServiceImpl
//
// Service 0, created by the lifetime manager at start-up.
class TOVU_API SystemPropertiesServiceImpl : public SystemPropertiesService {
public:
    SystemPropertiesServiceImpl();
    ~SystemPropertiesServiceImpl() override;

    std::string getSystemProperty(std::string const& key) override;
    std::string getSystemProperty(std::string const& key, std::string const& defaultValue) override;
    bool isGetSystemProperty(std::string const& key, std::string& value) override;
    void setSystemProperty(std::string const& key, std::string const& value) override;
    bool isSystemPropertyAvailable(std::string const& key) override;
    bool removeSystemProperty(std::string const& key) override;
    std::string getIniHome() override;
    std::string getLogHome() override;
    std::string getTempHome() override;
    std::string getDataHome() override;
    std::string getTovuHome() override;
    int setIniHome(std::string const& home) override;
    int setLogHome(std::string const& home) override;
    int setTempHome(std::string const& home) override;
    int setDataHome(std::string const& home) override;
    int setTovuHome(std::string const& home) override;
    void log() override;
    std::vector<std::pair<std::string, std::string>> getAllSystemProperties() override;

private:
    Logger* logger_;
};

#endif
