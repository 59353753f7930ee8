#include "tovuutil/properties/PropertiesFileResourceManager.h"

#include "tovuutil/files/PathUtil.h"
#include "tovuutil/files/detail/HostFileSystem.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/properties/Properties.h"
#include "tovuutil/properties/SystemProperties.h"
#include "tovuutil/text/StringUtil.h"

namespace {
constexpr char kCannotLoad[] = "Properties Datei '%1' kann nicht geladen werden.";
} // namespace

PropertiesFileResourceManager::PropertiesFileResourceManager()
    : ownLogger_(Logger::getInstance("tovuutil.PropertiesFileResourceManager"))
{
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
        if (key.empty())
            key = getAbsolutePath(path);
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
        delete entry->second;
        if (debug)
            ownLogger_->debug("erase Properties.");
        map.erase(entry);
    }
    logResources();
}
