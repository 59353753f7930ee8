#include "tovuutil/framework/ObjectLifetimeManager.h"

#include <new>

#include "tovuutil/framework/Logger.h"
#include "tovuutil/platform/GUIServiceImpl.h"
#include "tovuutil/platform/SharedLibServiceImpl.h"
#include "tovuutil/properties/PropertiesServiceImpl.h"
#include "tovuutil/properties/SystemPropertiesServiceImpl.h"

// Plain pointers, zero before any initialiser runs: the manager may be asked
// for by other static objects whatever their order of construction.
ObjectLifetimeManager* ObjectLifetimeManager::instance_ = nullptr;
ObjectLifetimeManager::AdapterMap* ObjectLifetimeManager::managedObjectMap_ = nullptr;
ObjectLifetimeManager::AdapterList* ObjectLifetimeManager::managedObjectList_ = nullptr;
ObjectLifetimeManager::AdapterMap* ObjectLifetimeManager::loggerObjectMap_ = nullptr;
ObjectLifetimeManager::AdapterList* ObjectLifetimeManager::loggerObjectList_ = nullptr;
void* ObjectLifetimeManager::preallocated_object[TOVU_PREALLOCATED_OBJECTS] = {};

namespace {

enum State { kConstructed = 0, kStartingUp = 1, kRunning = 2, kShuttingDown = 3, kShutDown = 4 };

// Creates a service wrapped in its adapter; a failed allocation leaves the
// adapter holding null.
template <class Impl>
void* createService()
{
    return new ManagedObject<Impl>(new (std::nothrow) Impl());
}

template <class Impl>
void deleteService(void*& slot)
{
    delete static_cast<ManagedObject<Impl>*>(slot);
    slot = nullptr;
}

} // namespace

ObjectLifetimeManagerBase::ObjectLifetimeManagerBase() : object_state_(kConstructed), dynamically_allocated_(0) {}

ObjectLifetimeManagerBase::~ObjectLifetimeManagerBase() = default;

ObjectLifetimeManager::ObjectLifetimeManager()
{
    if (instance_ == nullptr)
        instance_ = this;
    init();
}

ObjectLifetimeManager::~ObjectLifetimeManager()
{
    // Being destroyed: never delete ourselves again. Any manager going away
    // shuts the process-wide one down, but a destructor never creates one.
    dynamically_allocated_ = 0;
    if (instance_ != nullptr)
        instance_->shutdown();
}

ObjectLifetimeManager* ObjectLifetimeManager::instance()
{
    if (instance_ == nullptr) {
        ObjectLifetimeManager* manager = new ObjectLifetimeManager();
        manager->dynamically_allocated_ = 1;
    }
    return instance_;
}

void ObjectLifetimeManager::init() { instance()->startup(); }

void ObjectLifetimeManager::fini() { instance()->shutdown(); }

int ObjectLifetimeManager::starting_up() { return instance_ == nullptr ? 1 : instance_->starting_up_i(); }

int ObjectLifetimeManager::shutting_down() { return instance_ == nullptr ? 1 : instance_->shutting_down_i(); }

int ObjectLifetimeManager::startup()
{
    if (object_state_ >= kRunning)
        return 1;
    object_state_ = kStartingUp;
    if (this != instance_)
        return 0;

    // A manager started after an earlier one has ended reuses its emptied containers.
    if (loggerObjectMap_ == nullptr)
        loggerObjectMap_ = new AdapterMap;
    if (loggerObjectList_ == nullptr)
        loggerObjectList_ = new AdapterList;
    if (managedObjectMap_ == nullptr)
        managedObjectMap_ = new AdapterMap;
    if (managedObjectList_ == nullptr)
        managedObjectList_ = new AdapterList;

    preallocated_object[TOVU_SYSTEM_PROPERTIES_SERVICE] = createService<SystemPropertiesServiceImpl>();
    preallocated_object[TOVU_PROPERTIES_SERVICE] = createService<PropertiesServiceImpl>();
    preallocated_object[TOVU_SHARED_LIB_SERVICE] = createService<SharedLibServiceImpl>();
    preallocated_object[TOVU_GUI_SERVICE] = createService<GUIServiceImpl>();

    object_state_ = kRunning;
    return 0;
}

void ObjectLifetimeManager::cleanupAll(AdapterList* list, AdapterMap* map)
{
    if (list != nullptr) {
        // Taken from the front one at a time, so an object whose destructor
        // registers another one is still handled.
        while (!list->empty()) {
            CleanupAdapter* adapter = list->front();
            list->pop_front();
            adapter->cleanup();
            delete adapter;
        }
    }
    if (map != nullptr)
        map->clear();
}

int ObjectLifetimeManager::shutdown()
{
    if (object_state_ > kRunning)
        return object_state_ == kShutDown ? 1 : -1;
    object_state_ = kShuttingDown;

    bool const wasInstance = (this == instance_);
    if (wasInstance) {
        // Client objects first: they may still use services and loggers.
        cleanupAll(managedObjectList_, managedObjectMap_);
        // Services in the reverse order of their creation; each may log.
        deleteService<GUIServiceImpl>(preallocated_object[TOVU_GUI_SERVICE]);
        deleteService<SharedLibServiceImpl>(preallocated_object[TOVU_SHARED_LIB_SERVICE]);
        deleteService<PropertiesServiceImpl>(preallocated_object[TOVU_PROPERTIES_SERVICE]);
        deleteService<SystemPropertiesServiceImpl>(preallocated_object[TOVU_SYSTEM_PROPERTIES_SERVICE]);
        // Loggers last: everything above may log until here.
        cleanupAll(loggerObjectList_, loggerObjectMap_);
    }
    object_state_ = kShutDown;

    if (dynamically_allocated_)
        delete this;
    if (wasInstance)
        instance_ = nullptr;
    return 0;
}

void ObjectLifetimeManager::addObject(std::string const& name, ManagedTovuObject* object)
{
    if (managedObjectList_ == nullptr || managedObjectMap_ == nullptr) {
        // Before start-up there is nowhere to keep it; do not leak it.
        delete object;
        return;
    }
    auto* adapter = new ManagedObject<ManagedTovuObject>(object);
    managedObjectList_->push_back(adapter);
    managedObjectMap_->emplace(name, adapter);
}

ManagedTovuObject* ObjectLifetimeManager::getObject(std::string const& name)
{
    if (managedObjectMap_ == nullptr)
        return nullptr;
    auto it = managedObjectMap_->find(name);
    return it == managedObjectMap_->end() ? nullptr
                                          : static_cast<ManagedObject<ManagedTovuObject>*>(it->second)->get();
}

void ObjectLifetimeManager::addLogger(std::string const& name, Logger* logger)
{
    if (loggerObjectList_ == nullptr || loggerObjectMap_ == nullptr) {
        delete logger;
        return;
    }
    auto* adapter = new ManagedObject<Logger>(logger);
    loggerObjectList_->push_back(adapter);
    loggerObjectMap_->emplace(name, adapter);
}

Logger* ObjectLifetimeManager::getLogger(std::string const& name, Logger*)
{
    if (loggerObjectMap_ == nullptr)
        return nullptr;
    auto it = loggerObjectMap_->find(name);
    return it == loggerObjectMap_->end() ? nullptr : static_cast<ManagedObject<Logger>*>(it->second)->get();
}

void* ObjectLifetimeManager::getPreAllocatedObject(Preallocated_Object which)
{
    if (which < 0 || which >= TOVU_PREALLOCATED_OBJECTS)
        return nullptr;
    return preallocated_object[which];
}
