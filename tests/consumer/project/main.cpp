// Uses the installed library through its umbrella header only.
#include <tovuutil/tovuutil.h>

#include <cstdio>

int main()
{
    if (ObjectLifetimeManager::shutting_down() != 0)
        return 1;
    Service* service = UtilServiceFactory::getService(0);
    if (service == nullptr || !service->isAvailable())
        return 2;
    if (UtilServiceFactory::getService(7) != nullptr)
        return 3;
    std::printf("consumer %s ok\n", TOVUUTIL_VERSION);
    return 0;
}
