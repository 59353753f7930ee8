#ifndef TOVUUTIL_PROPERTIES_PROPERTIESSERVICEIMPL_H
#define TOVUUTIL_PROPERTIES_PROPERTIESSERVICEIMPL_H

#include <tovuutil/framework/PropertiesService.h>

class Logger;

// PropertiesServiceImpl
//
// Service 1, created by the lifetime manager at start-up.
class TOVU_API PropertiesServiceImpl : public PropertiesService {
public:
    PropertiesServiceImpl();
    ~PropertiesServiceImpl() override;

    std::string loadProperties(std::string const& file) override;
    bool unloadProperties(std::string const& resource) override;
    std::string getProperty(std::string const& resource, std::string const& key) override;
    std::string getProperty(std::string const& resource, std::string const& key,
                            std::string const& defaultValue) override;
    bool isAvailable(std::string const& resource, std::string const& key) override;
    void setProperty(std::string const& resource, std::string const& key, std::string const& value) override;
    bool saveProperties(std::string const& resource) override;
    std::vector<std::string> getKeysOfSection(std::string const& resource, std::string const& section) override;
    std::vector<std::string> getSectionNames(std::string const& resource) override;
    void clearProperties(std::string const& resource) override;
    std::vector<std::pair<std::string, std::string>> getAllProperties(std::string const& resource,
                                                                     bool flag) override;
    void setProperties(std::string const& resource,
                       std::vector<std::pair<std::string, std::string>> const& properties) override;
    bool removeProperty(std::string const& resource, std::string const& key) override;

private:
    Logger* logger_;
};

#endif
