#include "tovuutil/properties/PropertiesFileResourceManager.h"

#include "tovuutil/files/PathUtil.h"
#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/properties/Properties.h"
#include "tovuutil/properties/SystemProperties.h"
#include "tovuutil/properties/detail/SystemPropertiesVersion.h"
#include "tovuutil/text/StringUtil.h"

namespace {
constexpr char kCannotLoad[] = "Properties Datei '%1' kann nicht geladen werden.";
// Enough for the files a host keeps open; past it the table starts afresh.
constexpr std::size_t kMaxRememberedKeys = 256;
} // namespace

PropertiesFileResourceManager::PropertiesFileResourceManager()
    : ownLogger_(Logger::getInstance("tovuutil.PropertiesFileResourceManager")),
      systemPropertiesLogger_(Logger::getInstance("tovuutil.SystemPropertiesServiceImpl")),
      propertiesLogger_(Logger::getInstance("tovuutil.Properties")),
      factoryLogger_(Logger::getInstance("tovuutil.UtilServiceFactory"))
{
}

bool PropertiesFileResourceManager::keyingIsQuiet() const
{
    return !ownLogger_->isDebugEnabled() && !systemPropertiesLogger_->isDebugEnabled() &&
           !propertiesLogger_->isDebugEnabled() && !factoryLogger_->isDebugEnabled();
}

PropertiesFileResourceManager::~PropertiesFileResourceManager() { unloadAll(); }

Resource* PropertiesFileResourceManager::load(std::string const& key)
{
    std::string name = getFileName(key);
    auto* properties = new Properties();
    if (!properties->loadProperties(name) && ownLogger_->isErrorEnabled())
        ownLogger_->error(replacePattern(kCannotLoad, "%1", name));
    return properties;
}

bool PropertiesFileResourceManager::unload(std::string const& key)
{
    // The load message is reused here on purpose.
    if (findResource(key) != nullptr)
        return true;
    if (ownLogger_->isErrorEnabled())
        ownLogger_->error(replacePattern(kCannotLoad, "%1", key));
    return false;
}

std::string PropertiesFileResourceManager::getFileName(std::string const& name)
{
    auto const lock = lockCache();
    bool const quiet = keyingIsQuiet();
    unsigned long const version = tovu::detail::systemPropertiesVersion();
    if (quiet) {
        if (version != bareNameKeysVersion_) {
            bareNameKeys_.clear();
            bareNameKeysVersion_ = version;
        }
        auto known = bareNameKeys_.find(name);
        if (known != bareNameKeys_.end())
            return known->second;
    }
    bool debug = ownLogger_->isDebugEnabled();
    std::string const marker = debug ? "getFileName(" + name + ")" : std::string();
    if (debug)
        ownLogger_->beginMethod(marker);
    std::string path = transformPath(name);
    std::string key;
    if (path.find(tovu::detail::pathSeparator()) != std::string::npos) {
        key = getAbsolutePath(path);
    } else {
        key = getFullFilename(getSystemPropertyIniHome(), path);
        if (key.empty()) {
            key = getAbsolutePath(path); // depends on the working directory: never remembered
        } else if (quiet && version == tovu::detail::systemPropertiesVersion()) {
            if (bareNameKeys_.size() >= kMaxRememberedKeys)
                bareNameKeys_.clear();
            bareNameKeys_.emplace(name, key);
        }
    }
    if (debug) {
        ownLogger_->debug("getFileName result:" + key);
        ownLogger_->endMethod(marker);
    }
    return key;
}

ResourceManager::ResourceMap& PropertiesFileResourceManager::getResourceMap()
{
    // One map for the whole process, never destroyed.
    static ResourceMap* map = new ResourceMap;
    return *map;
}

void PropertiesFileResourceManager::unloadAll()
{
    auto const lock = lockCache();
    logResources();
    ResourceMap& map = getResourceMap();
    bool debug = ownLogger_->isDebugEnabled();
    while (!map.empty()) {
        ResourceMap::iterator entry = map.begin();
        std::string const key = entry->first;
        if (debug)
            ownLogger_->debug("Properties unloading: " + key);
        unload(key);
        entry = map.find(key);
        if (entry == map.end())
            continue;
        if (debug)
            ownLogger_->debug("delete Properties.");
        releaseResource(entry->second);
        if (debug)
            ownLogger_->debug("erase Properties.");
        map.erase(entry);
    }
    logResources();
}
