#ifndef TOVUUTIL_FRAMEWORK_UTILSERVICEFACTORY_H
#define TOVUUTIL_FRAMEWORK_UTILSERVICEFACTORY_H

#include <tovuutil/framework/Service.h>

// UtilServiceFactory
//
// The one way to the services. getService(type) hands out the object that the
// lifetime manager created at start-up; the caller never deletes it and casts
// it to the interface of the type:
//   0 SystemPropertiesService, 1 PropertiesService, 2 SharedLibService,
//   3 GUIService; any other number gives null and an error line.
// Types 1 to 3 log "Erzeuge Service: <name>" at DEBUG; type 0 logs nothing.
// Any thread may call it. While the lifetime manager shuts down a service is
// handed out until its turn to be deleted comes, null after that; once
// shutdown is over the next call starts a fresh manager and gets its
// services (see ObjectLifetimeManager.h).
//
// Example:
//   auto* sys = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0));
class TOVU_API UtilServiceFactory {
public:
    // The service of type 0 to 3 (see above); null for any other number, or
    // when the lifetime manager holds no such object.
    static Service* getService(int type);
};

#endif
