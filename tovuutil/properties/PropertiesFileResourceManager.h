#ifndef TOVUUTIL_PROPERTIES_PROPERTIESFILERESOURCEMANAGER_H
#define TOVUUTIL_PROPERTIES_PROPERTIESFILERESOURCEMANAGER_H

#include <string>
#include <unordered_map>

#include <tovuutil/framework/ResourceManager.h>

class Logger;

// PropertiesFileResourceManager
//
// The cache of loaded properties files (Properties objects) keyed by absolute
// file name. All managers of this class share one process-wide map, so every
// properties service sees the same objects. Its own messages go to
// "tovuutil.PropertiesFileResourceManager"; the inherited cache operations log
// under "tovuutil.ResourceManager".
//
// Canonical key (getFileName): the name with "\" and "/" turned into the
// host's separator; a name with a directory part is made absolute against the
// working directory, a bare file name lives in the INI home.
// Example (INI home "/opt/app/etc", working directory "/home/u"):
//   getFileName("tm.ini")      == "/opt/app/etc/tm.ini"
//   getFileName("conf\\a.ini") == "/home/u/conf/a.ini"
//
// Safe from several threads (see ResourceManager).
//
// Destroying a manager unloads every cached file of the shared map (unsaved
// changes are lost).
class TOVU_API PropertiesFileResourceManager : public ResourceManager {
public:
    PropertiesFileResourceManager();
    ~PropertiesFileResourceManager() override;

    // A new Properties loaded from the file; a file that cannot be loaded
    // gives an empty object all the same (and an error line), so it is cached.
    Resource* load(std::string const& key) override;
    // Checks that the file is cached; logs an error when it is not. Releases
    // nothing itself.
    bool unload(std::string const& key) override;
    // The canonical key described above.
    std::string getFileName(std::string const& name) override;
    // The one map shared by every manager of this class.
    ResourceMap& getResourceMap() override;

    // Dumps the cache, unloads and destroys every entry in key order, dumps again.
    void unloadAll();

private:
    // Whether DEBUG is off on every logger that working out a key writes to.
    bool keyingIsQuiet() const;

    Logger* ownLogger_;
    Logger* systemPropertiesLogger_;
    Logger* propertiesLogger_;
    Logger* factoryLogger_;
    // Keys of bare names, valid while the system properties (and with them
    // the INI home) keep the version they were worked out under. Used only
    // when working a key out would log nothing, so the log is the same.
    std::unordered_map<std::string, std::string> bareNameKeys_;
    unsigned long bareNameKeysVersion_ = 0;
};

#endif
