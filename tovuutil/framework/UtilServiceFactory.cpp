#include "tovuutil/framework/UtilServiceFactory.h"

#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/ObjectLifetimeManager.h"
#include "tovuutil/framework/detail/Constants.h"
#include "tovuutil/platform/GUIServiceImpl.h"
#include "tovuutil/platform/SharedLibServiceImpl.h"
#include "tovuutil/properties/PropertiesServiceImpl.h"
#include "tovuutil/properties/SystemPropertiesServiceImpl.h"

namespace {

template <class Impl>
Service* preallocated(Preallocated_Object which)
{
    auto* adapter = static_cast<ManagedObject<Impl>*>(ObjectLifetimeManager::getPreAllocatedObject(which));
    return adapter ? adapter->get() : nullptr;
}

void logCreation(Logger* logger, char const* name)
{
    if (logger->isDebugEnabled())
        logger->debug(std::string(tovu::text::kCreateService) + name);
}

} // namespace

Service* UtilServiceFactory::getService(int type)
{
    Logger* logger = Logger::getInstance("tovuutil.UtilServiceFactory");
    switch (type) {
    case 0:
        // Asked for constantly; deliberately silent.
        return preallocated<SystemPropertiesServiceImpl>(TOVU_SYSTEM_PROPERTIES_SERVICE);
    case 1:
        logCreation(logger, "PropertiesServiceImpl");
        return preallocated<PropertiesServiceImpl>(TOVU_PROPERTIES_SERVICE);
    case 2:
        logCreation(logger, "SharedLibServiceImpl");
        return preallocated<SharedLibServiceImpl>(TOVU_SHARED_LIB_SERVICE);
    case 3:
        logCreation(logger, "GUIServiceImpl");
        return preallocated<GUIServiceImpl>(TOVU_GUI_SERVICE);
    default:
        if (logger->isErrorEnabled())
            logger->error("Unbekanntes Service. Kann Service von diesem Typ nicht erzeugen: " + std::to_string(type));
        return nullptr;
    }
}
