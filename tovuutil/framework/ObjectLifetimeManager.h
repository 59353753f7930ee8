#ifndef TOVUUTIL_FRAMEWORK_OBJECTLIFETIMEMANAGER_H
#define TOVUUTIL_FRAMEWORK_OBJECTLIFETIMEMANAGER_H

#include <atomic>
#include <list>
#include <map>
#include <string>

#include <tovuutil/framework/ManagedObject.h>

class Logger;

// Slots of the services created at start-up; index 0 stays empty.
enum Preallocated_Object {
    TOVU_PREALLOCATED_NONE = 0,
    TOVU_SYSTEM_PROPERTIES_SERVICE = 1,
    TOVU_PROPERTIES_SERVICE = 2,
    TOVU_SHARED_LIB_SERVICE = 3,
    TOVU_GUI_SERVICE = 4,
    TOVU_PREALLOCATED_OBJECTS = 5
};

// ObjectLifetimeManagerBase
//
// The states of a lifetime manager: 0 constructed, 1 starting up, 2 running,
// 3 shutting down, 4 shut down. States never go back.
class TOVU_API ObjectLifetimeManagerBase {
public:
    // Starts the manager; see ObjectLifetimeManager::startup for the codes.
    virtual int startup() = 0;
    // Shuts the manager down; see ObjectLifetimeManager::shutdown for the codes.
    virtual int shutdown() = 0;
    virtual ~ObjectLifetimeManagerBase();

protected:
    ObjectLifetimeManagerBase();
    // 1 while constructed or starting up (state below 2), else 0.
    int starting_up_i() const { return object_state_ < 2; }
    // 1 once shutting down or shut down (state above 2), else 0.
    int shutting_down_i() const { return object_state_ > 2; }

    // The state, 0 to 4 as listed above.
    int object_state_;
    // 1 when the manager was created by instance() and deletes itself at the
    // end of its shutdown; 0 otherwise (and once its destructor runs).
    int dynamically_allocated_;
};

// ObjectLifetimeManager
//
// The process-wide registry of long-lived objects: the four services, the
// loggers and the objects clients hand over. The library's load-time object
// embeds the first manager, which starts up in its own constructor. Shutdown
// deletes, in this order:
//   1. client objects (addObject), first added first;
//   2. the services: GUI, shared libraries, properties, system properties;
//   3. the loggers, first created first.
//
// Return codes: startup() 0 done (or not the instance), 1 already running or
// ended; shutdown() 0 done, 1 already shut down, -1 shutdown under way.
// A name given twice to addObject/addLogger keeps the first object in the map;
// both objects are owned and deleted at shutdown.
//
// Threads: the registries may be used from any number of threads at once.
// Start-up and shutdown run on one thread (the loader's). A call that comes
// in while shutdown runs is answered from what is left: getObject/getLogger
// find what has not been deleted yet, addObject/addLogger register for the
// rest of the shutdown (deleted with the others), getService gives a service
// until shutdown deletes it and null after. Pointers obtained before must not
// be used once shutdown has deleted their objects. After shutdown the next
// instance() (every Logger::getInstance and getService call makes one) starts
// a fresh manager with fresh services.
class TOVU_API ObjectLifetimeManager : public ObjectLifetimeManagerBase {
public:
    ObjectLifetimeManager();
    ObjectLifetimeManager(ObjectLifetimeManager const&) = delete;
    ObjectLifetimeManager& operator=(ObjectLifetimeManager const&) = delete;
    ~ObjectLifetimeManager() override;

    // The one manager; creates (and starts) a new one when none exists. A
    // manager created here deletes itself at the end of its shutdown.
    static ObjectLifetimeManager* instance();
    // instance()->startup(): creates the manager if needed and starts it.
    static void init();
    // instance()->shutdown(); without a manager, one is created first.
    static void fini();
    // 1 without a manager or before it runs, else 0.
    static int starting_up();
    // 1 without a manager or once it shuts down, else 0.
    static int shutting_down();

    // Creates the registries and the services; 0 when done, or at once (and
    // without services) on a manager that is not the instance; 1 when it has
    // already run, is shutting down or has shut down.
    int startup() override;
    // Deletes client objects, services and loggers in the order above (only
    // on the instance); 0 when done, 1 if already shut down, -1 while a
    // shutdown runs. A manager made by instance() deletes itself.
    int shutdown() override;

    // Takes ownership of the object and deletes it at shutdown. Before
    // start-up, when there is no registry yet, the object is deleted at once.
    void addObject(std::string const& name, ManagedTovuObject* object);
    // The object first added under the name, or null (also before start-up).
    ManagedTovuObject* getObject(std::string const& name);
    // Takes ownership of the logger as addObject does; deleted with the
    // loggers at shutdown, or at once before start-up.
    void addLogger(std::string const& name, Logger* logger);
    // The second argument is ignored.
    Logger* getLogger(std::string const& name, Logger* unused = nullptr);

    // The adapter (a ManagedObject<ServiceImpl>) of a preallocated service, or
    // null for index 0 or an index outside the array. Read it on the thread
    // that runs start-up and shutdown; other threads use getService.
    static void* getPreAllocatedObject(Preallocated_Object which);

    // Registry by name; with a name given twice, the first entry.
    typedef std::map<std::string, CleanupAdapter*> AdapterMap;
    // Every registered adapter in the order added, which owns the objects.
    typedef std::list<CleanupAdapter*> AdapterList;

private:
    friend class Logger;
    // The logger registered under the name, or the one make() returns, which
    // is registered in the same step (so there is one per name whatever the
    // threads); created tells which.
    static Logger* getOrAddLogger(std::string const& name, Logger* (*make)(std::string const&), bool& created);
    static void cleanupAll(AdapterList* list, AdapterMap* map);

    static std::atomic<ObjectLifetimeManager*> instance_;
    static AdapterMap* managedObjectMap_;
    static AdapterList* managedObjectList_;
    static AdapterMap* loggerObjectMap_;
    static AdapterList* loggerObjectList_;
    static void* preallocated_object[TOVU_PREALLOCATED_OBJECTS];
};

// Init
//
// The library's one load-time object: constructing it starts the manager and
// fills the built-in system properties; destroying it shuts the manager down.
class TOVU_API Init {
public:
    Init();
    ~Init();
    Init(Init const&) = delete;
    Init& operator=(Init const&) = delete;

private:
    ObjectLifetimeManager manager_;
};

#endif
