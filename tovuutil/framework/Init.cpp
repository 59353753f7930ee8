#include "tovuutil/framework/ObjectLifetimeManager.h"
#include "tovuutil/properties/detail/BuiltInSystemProperties.h"

Init::Init()
{
    // manager_ has become the instance and started up in its constructor.
    tovu::detail::fillBuiltInSystemProperties();
}

Init::~Init()
{
    // Shuts down whichever manager is current: this one, or one a client
    // created with instance() after an early fini(). Never starts a new one.
    if (ObjectLifetimeManager::shutting_down() == 0)
        ObjectLifetimeManager::fini();
}

namespace {
// The library's load-time object: starts everything when the library is
// loaded and shuts it down when it is unloaded or the process ends.
Init tovuInit;
} // namespace
