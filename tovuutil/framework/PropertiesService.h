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
    // Owned by the lifetime manager; hosts never delete a service.
    virtual ~PropertiesService() = 0;
    // Loads a file, or finds it in the cache, and answers its absolute name,
    // the resource name of every other operation; "" when nothing was
    // obtained. A bare name lies in the INI home, a name with a directory
    // part is taken relative to the working directory. The kind follows the
    // extension: .properties (read only), .xml (holds nothing), else INI.
    virtual std::string loadProperties(std::string const& file) = 0;
    // Drops the file from the cache, unsaved changes with it; false when it
    // was not cached.
    virtual bool unloadProperties(std::string const& resource) = 0;
    // The value of a dotted key ("SECTION.key"), or "". The value
    // "_##undefined##_" counts as absent.
    virtual std::string getProperty(std::string const& resource, std::string const& key) = 0;
    // The value of a dotted key; defaultValue when it is missing or empty.
    virtual std::string getProperty(std::string const& resource, std::string const& key,
                                    std::string const& defaultValue) = 0;
    // Whether the dotted key has a value.
    virtual bool isAvailable(std::string const& resource, std::string const& key) = 0;
    // Sets a dotted key, adding key and section when missing; in memory until
    // saveProperties.
    virtual void setProperty(std::string const& resource, std::string const& key, std::string const& value) = 0;
    // Writes the file back (INI files only, with CR LF line ends, replaced as
    // a whole); false for files of other kinds.
    virtual bool saveProperties(std::string const& resource) = 0;
    // The key names of a section in file order; empty when there is none.
    virtual std::vector<std::string> getKeysOfSection(std::string const& resource, std::string const& section) = 0;
    // The section names in file order.
    virtual std::vector<std::string> getSectionNames(std::string const& resource) = 0;
    // Sets every key to "", addressed by the key name alone (not prefixed by
    // its section), as hosts expect.
    virtual void clearProperties(std::string const& resource) = 0;
    // Every (key, value), section by section in file order; the key is the
    // name alone. The flag has no effect.
    virtual std::vector<std::pair<std::string, std::string>> getAllProperties(std::string const& resource,
                                                                             bool flag) = 0;
    // setProperty for each pair, in order.
    virtual void setProperties(std::string const& resource,
                               std::vector<std::pair<std::string, std::string>> const& properties) = 0;
    // Removes a dotted key in memory; false when it has no value.
    virtual bool removeProperty(std::string const& resource, std::string const& key) = 0;

    using Service::isAvailable;
};

#endif
