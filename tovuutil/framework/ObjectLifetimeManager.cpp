#include "tovuutil/framework/ObjectLifetimeManager.h"

#include <mutex>
#include <shared_mutex>

#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/ServiceTable.h"

// Plain pointers, zero before any initialiser runs: the manager may be asked
// for by other static objects whatever their order of construction.
std::atomic<ObjectLifetimeManager*> ObjectLifetimeManager::instance_{nullptr};
ObjectLifetimeManager::AdapterMap* ObjectLifetimeManager::managedObjectMap_ = nullptr;
ObjectLifetimeManager::AdapterList* ObjectLifetimeManager::managedObjectList_ = nullptr;
ObjectLifetimeManager::AdapterMap* ObjectLifetimeManager::loggerObjectMap_ = nullptr;
ObjectLifetimeManager::AdapterList* ObjectLifetimeManager::loggerObjectList_ = nullptr;
void* ObjectLifetimeManager::preallocated_object[TOVU_PREALLOCATED_OBJECTS] = {};

namespace {

enum State { kConstructed = 0, kStartingUp = 1, kRunning = 2, kShuttingDown = 3, kShutDown = 4 };

// The instance once it runs, null while it starts or shuts down: the fast way
// through instance(). Otherwise callers wait on the creation lock, so a
// fresh manager is seen only after its services exist.
std::atomic<ObjectLifetimeManager*> runningInstance{nullptr};

// What getService hands out, beside the adapters that own the services.
std::atomic<Service*> runningServices[TOVU_PREALLOCATED_OBJECTS];

// Guards the four containers (never held while an object is deleted or a
// logger logs). Created on first use and never destroyed, like the manager's
// own containers.
std::shared_mutex& registryMutex()
{
    static std::shared_mutex* mutex = new std::shared_mutex;
    return *mutex;
}

// Makes creating a fresh manager a single step; recursive because the new
// manager's start-up asks for instance() again.
std::recursive_mutex& creationMutex()
{
    static std::recursive_mutex* mutex = new std::recursive_mutex;
    return *mutex;
}

} // namespace

Service* tovu::detail::runningService(Preallocated_Object slot)
{
    return runningServices[slot].load(std::memory_order_acquire);
}

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
    if (ObjectLifetimeManager* const current = instance_.load(std::memory_order_acquire))
        current->shutdown();
}

ObjectLifetimeManager* ObjectLifetimeManager::instance()
{
    if (ObjectLifetimeManager* running = runningInstance.load(std::memory_order_acquire))
        return running;
    std::lock_guard<std::recursive_mutex> lock(creationMutex());
    if (instance_ == nullptr) {
        ObjectLifetimeManager* manager = new ObjectLifetimeManager();
        manager->dynamically_allocated_ = 1;
    }
    return instance_;
}

void ObjectLifetimeManager::init() { instance()->startup(); }

void ObjectLifetimeManager::fini() { instance()->shutdown(); }

int ObjectLifetimeManager::starting_up()
{
    ObjectLifetimeManager* current = instance_.load(std::memory_order_acquire);
    return current == nullptr ? 1 : current->starting_up_i();
}

int ObjectLifetimeManager::shutting_down()
{
    ObjectLifetimeManager* current = instance_.load(std::memory_order_acquire);
    return current == nullptr ? 1 : current->shutting_down_i();
}

int ObjectLifetimeManager::startup()
{
    if (object_state_ >= kRunning)
        return 1;
    object_state_ = kStartingUp;
    if (this != instance_)
        return 0;

    {
        // A manager started after an earlier one has ended reuses its emptied containers.
        std::unique_lock<std::shared_mutex> lock(registryMutex());
        if (loggerObjectMap_ == nullptr)
            loggerObjectMap_ = new AdapterMap;
        if (loggerObjectList_ == nullptr)
            loggerObjectList_ = new AdapterList;
        if (managedObjectMap_ == nullptr)
            managedObjectMap_ = new AdapterMap;
        if (managedObjectList_ == nullptr)
            managedObjectList_ = new AdapterList;
    }

    for (tovu::detail::ServiceEntry const& entry : tovu::detail::kServiceTable) {
        tovu::detail::CreatedService created = entry.create();
        preallocated_object[entry.slot] = created.adapter;
        runningServices[entry.slot].store(created.service, std::memory_order_release);
    }

    object_state_ = kRunning;
    runningInstance.store(this, std::memory_order_release);
    return 0;
}

void ObjectLifetimeManager::cleanupAll(AdapterList* list, AdapterMap* map)
{
    if (list == nullptr || map == nullptr)
        return;
    // Taken from the front one at a time, so an object whose destructor
    // registers another one is still handled. Its map entry goes first, so no
    // other thread finds an object being deleted; the deletion itself runs
    // unlocked, as destructors log.
    for (;;) {
        CleanupAdapter* adapter = nullptr;
        {
            std::unique_lock<std::shared_mutex> lock(registryMutex());
            if (list->empty()) {
                map->clear();
                return;
            }
            adapter = list->front();
            list->pop_front();
            for (auto it = map->begin(); it != map->end();)
                it = it->second == adapter ? map->erase(it) : std::next(it);
        }
        adapter->cleanup();
        delete adapter;
    }
}

int ObjectLifetimeManager::shutdown()
{
    if (object_state_ > kRunning)
        return object_state_ == kShutDown ? 1 : -1;
    object_state_ = kShuttingDown;

    bool const wasInstance = (this == instance_);
    if (wasInstance) {
        runningInstance.store(nullptr, std::memory_order_release);
        // Client objects first: they may still use services and loggers.
        cleanupAll(managedObjectList_, managedObjectMap_);
        // Services in the reverse order of their creation; each may log.
        for (int i = tovu::detail::kServiceCount - 1; i >= 0; --i) {
            Preallocated_Object const slot = tovu::detail::kServiceTable[i].slot;
            runningServices[slot].store(nullptr, std::memory_order_release);
            delete static_cast<CleanupAdapter*>(preallocated_object[slot]);
            preallocated_object[slot] = nullptr;
        }
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
    std::unique_lock<std::shared_mutex> lock(registryMutex());
    if (managedObjectList_ == nullptr || managedObjectMap_ == nullptr) {
        lock.unlock();
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
    std::shared_lock<std::shared_mutex> lock(registryMutex());
    if (managedObjectMap_ == nullptr)
        return nullptr;
    auto it = managedObjectMap_->find(name);
    return it == managedObjectMap_->end() ? nullptr
                                          : static_cast<ManagedObject<ManagedTovuObject>*>(it->second)->get();
}

void ObjectLifetimeManager::addLogger(std::string const& name, Logger* logger)
{
    std::unique_lock<std::shared_mutex> lock(registryMutex());
    if (loggerObjectList_ == nullptr || loggerObjectMap_ == nullptr) {
        lock.unlock();
        delete logger;
        return;
    }
    auto* adapter = new ManagedObject<Logger>(logger);
    loggerObjectList_->push_back(adapter);
    loggerObjectMap_->emplace(name, adapter);
}

Logger* ObjectLifetimeManager::getLogger(std::string const& name, Logger*)
{
    std::shared_lock<std::shared_mutex> lock(registryMutex());
    if (loggerObjectMap_ == nullptr)
        return nullptr;
    auto it = loggerObjectMap_->find(name);
    return it == loggerObjectMap_->end() ? nullptr : static_cast<ManagedObject<Logger>*>(it->second)->get();
}

Logger* ObjectLifetimeManager::getOrAddLogger(std::string const& name, Logger* (*make)(std::string const&),
                                              bool& created)
{
    created = false;
    std::unique_lock<std::shared_mutex> lock(registryMutex());
    if (loggerObjectMap_ != nullptr) {
        auto it = loggerObjectMap_->find(name);
        if (it != loggerObjectMap_->end())
            return static_cast<ManagedObject<Logger>*>(it->second)->get();
    }
    // Made under the lock so no second one is ever made and dropped; its
    // constructor only asks log4cpp for the category.
    Logger* logger = make(name);
    created = true;
    if (loggerObjectList_ != nullptr && loggerObjectMap_ != nullptr) {
        auto* adapter = new ManagedObject<Logger>(logger);
        loggerObjectList_->push_back(adapter);
        loggerObjectMap_->emplace(name, adapter);
    }
    // Before start-up there is nowhere to keep it: it lives on unregistered.
    return logger;
}

void* ObjectLifetimeManager::getPreAllocatedObject(Preallocated_Object which)
{
    if (which < 0 || which >= TOVU_PREALLOCATED_OBJECTS)
        return nullptr;
    return preallocated_object[which];
}
