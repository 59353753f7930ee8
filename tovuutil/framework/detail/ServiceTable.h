#ifndef TOVUUTIL_FRAMEWORK_DETAIL_SERVICETABLE_H
#define TOVUUTIL_FRAMEWORK_DETAIL_SERVICETABLE_H

#include <new>

#include "tovuutil/framework/ManagedObject.h"
#include "tovuutil/framework/ObjectLifetimeManager.h"

class Service;

namespace tovu {
namespace detail {

// A service as made at start-up: the adapter that owns it (what
// getPreAllocatedObject hands to hosts) and the service itself.
struct CreatedService {
    CleanupAdapter* adapter;
    Service* service;
};

// One row per preallocated service; the lifetime manager creates them in table
// order and deletes them in reverse order, the factory hands them out.
struct ServiceEntry {
    int type;                   // the number UtilServiceFactory::getService takes
    Preallocated_Object slot;   // where the lifetime manager keeps it
    char const* name;           // for "Erzeuge Service: <name>"; null: not logged
    CreatedService (*create)();
};

constexpr int kServiceCount = 4;
extern ServiceEntry const kServiceTable[kServiceCount];

// The row of a factory type, or null for an unknown one.
ServiceEntry const* findServiceEntry(int type);

// The running service of a slot: null before start-up and from the moment
// shutdown deletes it.
Service* runningService(Preallocated_Object slot);

// Each is defined beside its implementation.
CreatedService createSystemPropertiesService();
CreatedService createPropertiesService();
CreatedService createSharedLibService();
CreatedService createGUIService();

// A failed allocation leaves the adapter holding null.
template <class Impl>
CreatedService makeService()
{
    Impl* impl = new (std::nothrow) Impl();
    return CreatedService{new ManagedObject<Impl>(impl), impl};
}

} // namespace detail
} // namespace tovu

#endif
