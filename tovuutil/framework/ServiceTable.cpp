#include "tovuutil/framework/detail/ServiceTable.h"

namespace tovu {
namespace detail {

// Service 0 is asked for constantly and deliberately logs nothing.
ServiceEntry const kServiceTable[kServiceCount] = {
    {0, TOVU_SYSTEM_PROPERTIES_SERVICE, nullptr, &createSystemPropertiesService},
    {1, TOVU_PROPERTIES_SERVICE, "PropertiesServiceImpl", &createPropertiesService},
    {2, TOVU_SHARED_LIB_SERVICE, "SharedLibServiceImpl", &createSharedLibService},
    {3, TOVU_GUI_SERVICE, "GUIServiceImpl", &createGUIService},
};

ServiceEntry const* findServiceEntry(int type)
{
    return type >= 0 && type < kServiceCount ? &kServiceTable[type] : nullptr;
}

} // namespace detail
} // namespace tovu
