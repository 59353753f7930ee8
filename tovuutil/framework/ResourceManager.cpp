#include "tovuutil/framework/ResourceManager.h"

#include "tovuutil/framework/Logger.h"

// Minimal form for the services; the resource cache completes it.

Resource::~Resource() = default;

ResourceManager::ResourceManager() : logger(Logger::getInstance("tovuutil.ResourceManager")) {}

ResourceManager::~ResourceManager() = default;

bool ResourceManager::find(std::string const& key) { return getResourceMap().count(key) != 0; }

Resource* ResourceManager::getResource(std::string const& name)
{
    if (name.empty())
        return nullptr;
    std::string key = getFileName(name);
    ResourceMap& map = getResourceMap();
    ResourceMap::iterator entry = map.find(key);
    if (entry != map.end())
        return entry->second;
    Resource* resource = load(key);
    if (resource == nullptr)
        return nullptr;
    map[key] = resource;
    return resource;
}

Resource* ResourceManager::findResource(std::string const& name) { return find(name) ? getResource(name) : nullptr; }

bool ResourceManager::removeResource(std::string const& name)
{
    if (name.empty())
        return false;
    std::string key = getFileName(name);
    if (!find(key))
        return false;
    unload(key);
    ResourceMap& map = getResourceMap();
    ResourceMap::iterator entry = map.find(key);
    if (entry == map.end())
        return true;
    Resource* resource = entry->second;
    map.erase(entry);
    delete resource;
    return true;
}

void ResourceManager::logResources() {}
