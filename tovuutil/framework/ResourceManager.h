#ifndef TOVUUTIL_FRAMEWORK_RESOURCEMANAGER_H
#define TOVUUTIL_FRAMEWORK_RESOURCEMANAGER_H

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include <tovuutil/export.h>

class Logger;

namespace tovu {
namespace detail {
struct CachedResource;
class ResourceCache;
} // namespace detail
} // namespace tovu

// Resource
//
// Base of every cached object; getName() gives its name.
class TOVU_API Resource {
public:
    Resource() = default;
    // Resources are copyable; the base holds no state.
    Resource(Resource const&) = default;
    // Resources are assignable; the base holds no state.
    Resource& operator=(Resource const&) = default;
    virtual ~Resource();
    // The resource's name, as shown by ResourceManager::logResources.
    virtual std::string getName() = 0;
};

// ResourceManager
//
// A generic cache of named resources. A concrete manager supplies load,
// unload, the canonical key (getFileName) and its one process-wide map;
// getResource loads on first request and hands out the cached object after.
//
// Threads: every operation locks the process-wide map of its manager class
// for its whole run (re-entered freely by the same thread, so load, unload
// and getFileName may call back into the cache). A Resource* from getResource
// stays valid until the resource is removed; acquireResource gives a share
// that keeps the object alive across a concurrent removal.
class TOVU_API ResourceManager {
public:
    // Canonical key to cached object; the map owns the objects.
    typedef std::map<std::string, Resource*> ResourceMap;

    ResourceManager();

    // A new resource for the canonical key, or null; the map takes it over.
    virtual Resource* load(std::string const& key) = 0;
    // Called on removal before the object is destroyed.
    virtual bool unload(std::string const& key) = 0;
    // The canonical key of a name; getResource and removeResource look up by it.
    virtual std::string getFileName(std::string const& name) = 0;
    // The manager class's one process-wide map, shared by all its instances.
    virtual ResourceMap& getResourceMap() = 0;
    virtual ~ResourceManager();

    // Whether the map holds the exact key.
    bool find(std::string const& key);
    // The cached object of the canonical key, loaded on first request; null
    // for an empty name or a failed load.
    Resource* getResource(std::string const& name);
    // The object only when cached under the name exactly as passed.
    Resource* findResource(std::string const& name);
    // Unloads, destroys and forgets; true when it was cached.
    bool removeResource(std::string const& name);
    // Every entry, numbered, with its name and address, at debug level; an
    // empty slot shows its key and "NULL". Nothing when debug is off.
    void logResources();

    // getResource, plus a share in the object (null when getResource gives null).
    std::shared_ptr<tovu::detail::CachedResource> acquireResource(std::string const& name);

protected:
    // Holds the map of this manager class against other threads.
    std::unique_lock<std::recursive_mutex> lockCache();
    // Destroys an object just taken out of the map, or drops the cache's share
    // in it when users still hold one.
    void releaseResource(Resource* resource);

    // The shared logger "tovuutil.ResourceManager".
    Logger* logger;

private:
    tovu::detail::ResourceCache& cache();

    std::atomic<tovu::detail::ResourceCache*> cache_{nullptr};
};

#endif
