#include "tovuutil/framework/UtilServiceFactory.h"

#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/Constants.h"
#include "tovuutil/framework/detail/ServiceTable.h"

Service* UtilServiceFactory::getService(int type)
{
    Logger* logger = Logger::getInstance("tovuutil.UtilServiceFactory");
    tovu::detail::ServiceEntry const* entry = tovu::detail::findServiceEntry(type);
    if (entry == nullptr) {
        if (logger->isErrorEnabled())
            logger->error("Unbekanntes Service. Kann Service von diesem Typ nicht erzeugen: " + std::to_string(type));
        return nullptr;
    }
    if (entry->name != nullptr && logger->isDebugEnabled())
        logger->debug(std::string(tovu::text::kCreateService) + entry->name);
    return tovu::detail::runningService(entry->slot);
}
