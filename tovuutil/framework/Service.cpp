#include "tovuutil/framework/GUIService.h"
#include "tovuutil/framework/PropertiesService.h"
#include "tovuutil/framework/SharedLibService.h"
#include "tovuutil/framework/SystemPropertiesService.h"

// Out-of-line destructors: they anchor the vtables in the library.
Service::~Service() = default;
SystemPropertiesService::~SystemPropertiesService() = default;
PropertiesService::~PropertiesService() = default;
SharedLibService::~SharedLibService() = default;
GUIService::~GUIService() = default;
