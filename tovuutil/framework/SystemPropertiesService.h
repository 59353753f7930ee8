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
    // Owned by the lifetime manager; hosts never delete a service.
    virtual ~SystemPropertiesService() = 0;
    // The value stored under key (a dotted name such as
    // "_TOVU_intern.TOVU_PROPERTY_INI_HOME"), or "" when there is none.
    virtual std::string getSystemProperty(std::string const& key) = 0;
    // The value stored under key; defaultValue when it is missing or empty.
    virtual std::string getSystemProperty(std::string const& key, std::string const& defaultValue) = 0;
    // When the key is available: value receives it and the answer is true.
    // Otherwise value stays as it was and the answer is false.
    virtual bool isGetSystemProperty(std::string const& key, std::string& value) = 0;
    // Adds the key or replaces its value; in memory only, never saved.
    virtual void setSystemProperty(std::string const& key, std::string const& value) = 0;
    // Whether a value is stored under key.
    virtual bool isSystemPropertyAvailable(std::string const& key) = 0;
    // Removes the key; true when it existed.
    virtual bool removeSystemProperty(std::string const& key) = 0;
    // The directory bare INI file names are looked for in; "" when unset.
    virtual std::string getIniHome() = 0;
    // The directory of "tovu.log"; "" when unset.
    virtual std::string getLogHome() = 0;
    // The directory for temporary files; "" when unset.
    virtual std::string getTempHome() = 0;
    // The directory for data files; "" when unset.
    virtual std::string getDataHome() = 0;
    // The installation directory; "" when unset.
    virtual std::string getTovuHome() = 0;
    // Sets the INI home: 0 when stored (without one trailing separator), 1
    // when the directory is missing or not writable (nothing is created), 2
    // for an empty argument. On failure nothing changes.
    virtual int setIniHome(std::string const& home) = 0;
    // Sets the log home with the codes of setIniHome; on success "tovu.log"
    // is written there from now on and the one in the former log home is
    // deleted.
    virtual int setLogHome(std::string const& home) = 0;
    // Sets the temporary directory with the codes of setIniHome.
    virtual int setTempHome(std::string const& home) = 0;
    // Sets the data directory with the codes of setIniHome.
    virtual int setDataHome(std::string const& home) = 0;
    // Sets the installation directory with the codes of setIniHome.
    virtual int setTovuHome(std::string const& home) = 0;
    // Writes every property to the log at DEBUG.
    virtual void log() = 0;
    // Every (key, value) pair, keys as full dotted names, in the table's order.
    virtual std::vector<std::pair<std::string, std::string>> getAllSystemProperties() = 0;
};

#endif
