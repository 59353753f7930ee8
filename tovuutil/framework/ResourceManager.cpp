#include "tovuutil/framework/ResourceManager.h"

#include "tovuutil/framework/Logger.h"
#include "tovuutil/text/StringUtil.h"

namespace {

std::string withKey(char const* message, std::string const& key) { return replacePattern(message, "%1", key); }

} // namespace

Resource::~Resource() = default;

ResourceManager::ResourceManager() : logger(Logger::getInstance("tovuutil.ResourceManager"))
{
    logger->beginConstruct("ResourceManager()");
    logger->endConstruct("ResourceManager()");
}

ResourceManager::~ResourceManager() = default;

bool ResourceManager::find(std::string const& key)
{
    bool const debug = logger->isDebugEnabled();
    if (debug)
        logger->beginMethod("find(" + key + ")");
    bool const found = getResourceMap().count(key) != 0;
    if (debug) {
        logger->debug(withKey(found ? "Ressource '%1' im ResourceManager gefunden."
                                    : "Ressource '%1' im ResourceManager nicht gefunden.",
                              key));
        logger->endMethod("find(" + key + ")");
    }
    return found;
}

Resource* ResourceManager::getResource(std::string const& name)
{
    bool const debug = logger->isDebugEnabled();
    if (debug)
        logger->beginMethod("getResource(" + name + ")");
    if (name.empty())
        return nullptr;
    std::string const key = getFileName(name);
    ResourceMap& map = getResourceMap();
    if (find(key)) {
        // Deliberately logged a second time beside find's own line.
        if (debug)
            logger->debug(withKey("Ressource '%1' im ResourceManager gefunden.", key));
    } else {
        Resource* resource = load(key);
        if (resource == nullptr) {
            if (logger->isErrorEnabled())
                logger->error(withKey("Ressource '%1' kann nicht geladen werden.", key));
            return nullptr;
        }
        map.emplace(key, resource);
    }
    logResources();
    Resource* result = map[key];
    if (debug)
        logger->endMethod("getResource(" + name + ")");
    return result;
}

Resource* ResourceManager::findResource(std::string const& name)
{
    bool const debug = logger->isDebugEnabled();
    if (debug)
        logger->beginMethod("findResource(" + name + ")");
    // Looked up under the name exactly as passed, not canonicalised: a
    // resource cached under another key is not found here on purpose.
    Resource* result = find(name) ? getResource(name) : nullptr;
    if (debug)
        logger->endMethod("findResource(" + name + ")");
    return result;
}

bool ResourceManager::removeResource(std::string const& name)
{
    bool const debug = logger->isDebugEnabled();
    if (debug)
        logger->beginMethod("removeResource(" + name + ")");
    bool found = false;
    if (!name.empty()) {
        std::string const key = getFileName(name);
        found = find(key);
        if (found) {
            unload(key);
            if (debug)
                logger->debug(withKey("Ressource '%1' wurde entladen.", key));
            ResourceMap& map = getResourceMap();
            auto entry = map.find(key);
            Resource* resource = entry == map.end() ? nullptr : entry->second;
            if (entry != map.end())
                map.erase(entry);
            delete resource;
            if (debug)
                logger->debug(withKey("Ressource '%1' aus dem ResourceManager entfernt.", key));
        } else if (debug) {
            logger->debug(withKey("Ressource '%1' im ResourceManager nicht gefunden.", key));
        }
        if (debug)
            logger->debug("success=" + bool2String(found));
        logResources();
    }
    if (debug)
        logger->endMethod("removeResource(" + name + ")");
    return found;
}

void ResourceManager::logResources()
{
    if (!logger->isDebugEnabled())
        return;
    ResourceMap& map = getResourceMap();
    logger->debug("------ Resource Manager --- (" + std::to_string(map.size()) + " Elements)-----");
    long i = 1;
    for (auto const& entry : map) {
        if (entry.second != nullptr)
            logger->debug(std::to_string(i) + ": " + entry.second->getName() + "  #" +
                          long2String(static_cast<long>(reinterpret_cast<std::intptr_t>(entry.second))));
        else
            logger->debug(std::to_string(i) + ": " + entry.first + " NULL  #NULL");
        ++i;
    }
    logger->debug("-----------------------------------------");
}
