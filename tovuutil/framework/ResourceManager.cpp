#include "tovuutil/framework/ResourceManager.h"

#include <unordered_map>

#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/CachedResource.h"
#include "tovuutil/text/StringUtil.h"

// The lock and the shares of one process-wide map.
class tovu::detail::ResourceCache {
public:
    std::recursive_mutex mutex;
    std::unordered_map<Resource const*, std::shared_ptr<CachedResource>> shares;

    std::shared_ptr<CachedResource> shareOf(Resource* resource)
    {
        std::shared_ptr<CachedResource>& share = shares[resource];
        if (!share)
            share = std::make_shared<CachedResource>(resource);
        return share;
    }
};

namespace {

std::string withKey(char const* message, std::string const& key) { return replacePattern(message, "%1", key); }

// One cache per map, found by the map's address; never destroyed, like the maps.
tovu::detail::ResourceCache* cacheOfMap(ResourceManager::ResourceMap const* map)
{
    static std::mutex* mutex = new std::mutex;
    static auto* caches = new std::unordered_map<ResourceManager::ResourceMap const*, tovu::detail::ResourceCache*>;
    std::lock_guard<std::mutex> lock(*mutex);
    tovu::detail::ResourceCache*& cache = (*caches)[map];
    if (cache == nullptr)
        cache = new tovu::detail::ResourceCache;
    return cache;
}

} // namespace

Resource::~Resource() = default;

ResourceManager::ResourceManager() : logger(Logger::getInstance("tovuutil.ResourceManager"))
{
    logger->beginConstruct("ResourceManager()");
    logger->endConstruct("ResourceManager()");
}

ResourceManager::~ResourceManager() = default;

tovu::detail::ResourceCache& ResourceManager::cache()
{
    tovu::detail::ResourceCache* cache = cache_.load(std::memory_order_acquire);
    if (cache == nullptr) {
        cache = cacheOfMap(&getResourceMap());
        cache_.store(cache, std::memory_order_release);
    }
    return *cache;
}

std::unique_lock<std::recursive_mutex> ResourceManager::lockCache()
{
    return std::unique_lock<std::recursive_mutex>(cache().mutex);
}

void ResourceManager::releaseResource(Resource* resource)
{
    if (resource == nullptr)
        return;
    tovu::detail::ResourceCache& c = cache();
    std::lock_guard<std::recursive_mutex> lock(c.mutex);
    auto share = c.shares.find(resource);
    if (share == c.shares.end()) {
        delete resource; // put into the map by other means
        return;
    }
    // The object goes with the last share, here or in the hands of a user.
    c.shares.erase(share);
}

std::shared_ptr<tovu::detail::CachedResource> ResourceManager::acquireResource(std::string const& name)
{
    tovu::detail::ResourceCache& c = cache();
    std::lock_guard<std::recursive_mutex> lock(c.mutex);
    Resource* resource = getResource(name);
    return resource == nullptr ? nullptr : c.shareOf(resource);
}

bool ResourceManager::find(std::string const& key)
{
    auto const lock = lockCache();
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
    auto const lock = lockCache();
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
    auto const lock = lockCache();
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
    auto const lock = lockCache();
    bool const debug = logger->isDebugEnabled();
    if (debug)
        logger->beginMethod("removeResource(" + name + ")");
    bool found = false;
    if (!name.empty()) {
        std::string const key = getFileName(name);
        found = find(key);
        if (found) {
            {
                // Not while another thread works on the object (a library
                // whose symbol is being looked up, say).
                ResourceMap& map = getResourceMap();
                auto entry = map.find(key);
                std::shared_ptr<tovu::detail::CachedResource> share;
                if (entry != map.end() && entry->second != nullptr)
                    share = cache().shareOf(entry->second);
                std::unique_lock<std::mutex> inUse;
                if (share)
                    inUse = std::unique_lock<std::mutex>(share->lock);
                unload(key);
                if (share)
                    share->removed = true;
            }
            if (debug)
                logger->debug(withKey("Ressource '%1' wurde entladen.", key));
            ResourceMap& map = getResourceMap();
            auto entry = map.find(key);
            Resource* resource = entry == map.end() ? nullptr : entry->second;
            if (entry != map.end())
                map.erase(entry);
            releaseResource(resource);
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
    auto const lock = lockCache();
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
