#ifndef TOVUUTIL_PROPERTIES_SYSTEMPROPERTIESSERVICEIMPL_H
#define TOVUUTIL_PROPERTIES_SYSTEMPROPERTIESSERVICEIMPL_H

#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include <tovuutil/framework/SystemPropertiesService.h>
#include <tovuutil/properties/Properties.h>

class Logger;

// SystemPropertiesServiceImpl
//
// Service 0, created by the lifetime manager at start-up and filled right
// after it by the load-time object (see SystemProperties.h for the built-in
// keys). The values live only in memory, in one Properties table; keys are
// dotted names ("_TOVU_intern.TOVU_PROPERTY_INI_HOME"). Missing keys read as
// "" and are no error.
//
// Threads: every operation is atomic; a home setter and the move of the log
// it causes are one step.
//
// Every operation writes DEBUG method markers "<name>(\"<key or directory>\")".
// Deliberate, hosts' log readers rely on them: all five home setters use the
// marker name "setIniHome", and getAllSystemProperties uses "getAllProperties".
class TOVU_API SystemPropertiesServiceImpl : public SystemPropertiesService {
public:
    SystemPropertiesServiceImpl();
    ~SystemPropertiesServiceImpl() override;

    // The stored value, or "".
    std::string getSystemProperty(std::string const& key) override;
    // The stored value; defaultValue when it is missing or empty.
    std::string getSystemProperty(std::string const& key, std::string const& defaultValue) override;
    // When isSystemPropertyAvailable(key): value = getSystemProperty(key) and
    // true (both through the virtual operations); else value stays and false.
    bool isGetSystemProperty(std::string const& key, std::string& value) override;
    // Adds or replaces.
    void setSystemProperty(std::string const& key, std::string const& value) override;
    bool isSystemPropertyAvailable(std::string const& key) override;
    // Whether the key existed.
    bool removeSystemProperty(std::string const& key) override;

    // The five homes; "" when unset (a home whose directory was not writable
    // at load stays unset).
    std::string getIniHome() override;
    std::string getLogHome() override;
    std::string getTempHome() override;
    std::string getDataHome() override;
    std::string getTovuHome() override;

    // The home setters: 2 for an empty argument, 1 when the directory is not
    // writable (missing, or no write access; nothing is created), 0 when the
    // path, without one trailing separator (formatPath), was stored. On
    // failure nothing changes. setLogHome also moves the log: "tovu.log" is
    // written in the new directory from now on, and the one in the former log
    // home is deleted.
    // Example: setTempHome("/var/tmp/") == 0, then getTempHome() == "/var/tmp".
    int setIniHome(std::string const& home) override;
    int setLogHome(std::string const& home) override;
    int setTempHome(std::string const& home) override;
    int setDataHome(std::string const& home) override;
    int setTovuHome(std::string const& home) override;

    // Writes every property to this service's logger at DEBUG (the table's dump).
    void log() override;
    // Every (key, value) in the table's order (by section, then key, in the
    // order of insertion); the key is the full dotted name.
    std::vector<std::pair<std::string, std::string>> getAllSystemProperties() override;

private:
    int setHome(char const* key, std::string const& home, bool movesLog);

    Logger* logger_;
    // Recursive: operations call each other through the virtual slots.
    std::recursive_mutex mutex_;
    Properties properties_;
};

#endif
