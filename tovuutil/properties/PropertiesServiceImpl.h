#ifndef TOVUUTIL_PROPERTIES_PROPERTIESSERVICEIMPL_H
#define TOVUUTIL_PROPERTIES_PROPERTIESSERVICEIMPL_H

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <tovuutil/framework/PropertiesService.h>
#include <tovuutil/properties/PropertiesFileResourceManager.h>

class Logger;
class Properties;

namespace tovu {
namespace detail {
template <class T>
class LockedResource;
} // namespace detail
} // namespace tovu

// PropertiesServiceImpl
//
// Service 1: properties files by name, loaded on first use and cached by
// absolute file name in the process-wide PropertiesFileResourceManager cache
// (a bare name lives in the INI home, a name with a directory part is taken
// relative to the working directory). Every per-file operation fetches, and if
// need be loads, the file first. A file that cannot be loaded is cached as an
// empty object: reads give "" (or the default), isAvailable false. Changes
// stay in memory until saveProperties. Nothing is thrown.
//
// Threads: each operation on a file is atomic against the others on that
// file (a read sees the value before or after a concurrent write, never part
// of it); operations that loop over a file (clearProperties, getAllProperties,
// setProperties) are a series of such steps. unloadProperties while another
// thread works on the file drops it from the cache at once; the other thread
// finishes on its own copy, which is freed after.
//
// Every operation writes DEBUG method markers with its arguments, e.g.
// getProperty("tm.ini", "A.b"); setProperties shows its list as `<vector>`.
//
// Example:
//   auto* s = static_cast<PropertiesService*>(UtilServiceFactory::getService(1));
//   std::string file = s->loadProperties("tm.ini");  // "<INI home>/tm.ini"
//   s->setProperty(file, "DRUCK.KOPIEN", "2");
//   s->saveProperties(file);
class TOVU_API PropertiesServiceImpl : public PropertiesService {
public:
    PropertiesServiceImpl();
    ~PropertiesServiceImpl() override;

    // The absolute name of the loaded file, or "" when nothing was obtained.
    // A name ending in "tm.ini" or "tdf.dii" first makes sure that default
    // file exists in the INI home (created empty when missing).
    std::string loadProperties(std::string const& file) override;
    // Drops the file from the cache; false when it was not cached.
    bool unloadProperties(std::string const& resource) override;
    // The value of a dotted key ("SECTION.key"), or "".
    std::string getProperty(std::string const& resource, std::string const& key) override;
    // The value; defaultValue when it is missing or empty.
    std::string getProperty(std::string const& resource, std::string const& key,
                            std::string const& defaultValue) override;
    bool isAvailable(std::string const& resource, std::string const& key) override;
    // In memory only; marks the file changed.
    void setProperty(std::string const& resource, std::string const& key, std::string const& value) override;
    // Writes the file back with its own name and type (INI files only).
    bool saveProperties(std::string const& resource) override;
    std::vector<std::string> getKeysOfSection(std::string const& resource, std::string const& section) override;
    std::vector<std::string> getSectionNames(std::string const& resource) override;
    // Sets every listed key to "", addressed by the key name alone (not
    // prefixed by its section), as hosts expect.
    void clearProperties(std::string const& resource) override;
    // Every (key, value), section by section in file order; the key is the
    // name alone, its value getProperty(resource, key). The flag has no effect.
    std::vector<std::pair<std::string, std::string>> getAllProperties(std::string const& resource,
                                                                     bool flag) override;
    // setProperty for each pair, in order.
    void setProperties(std::string const& resource,
                       std::vector<std::pair<std::string, std::string>> const& properties) override;
    // False when the key is not available.
    bool removeProperty(std::string const& resource, std::string const& key) override;

private:
    using LockedFile = tovu::detail::LockedResource<Properties>;
    // The cached file (loaded if need be) locked for one operation.
    LockedFile file(std::string const& resource);

    Logger* logger_;
    PropertiesFileResourceManager manager_;
};

#endif
