#include "tovuutil/properties/SystemProperties.h"

#include "tovuutil/framework/SystemPropertiesService.h"
#include "tovuutil/framework/UtilServiceFactory.h"

namespace {
constexpr int kNoService = 1;

SystemPropertiesService* service() { return static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0)); }
} // namespace

bool getSystemProperty(std::string const& key, std::string& value)
{
    SystemPropertiesService* s = service();
    return s ? s->isGetSystemProperty(key, value) : false;
}

std::string getSystemProperty(std::string const& key)
{
    SystemPropertiesService* s = service();
    return s ? s->getSystemProperty(key) : std::string();
}

void setSystemProperty(std::string const& key, std::string const& value)
{
    if (SystemPropertiesService* s = service())
        s->setSystemProperty(key, value);
}

std::string getSystemPropertyIniHome()
{
    SystemPropertiesService* s = service();
    return s ? s->getIniHome() : std::string();
}

std::string getSystemPropertyLogHome()
{
    SystemPropertiesService* s = service();
    return s ? s->getLogHome() : std::string();
}

std::string getSystemPropertyTempHome()
{
    SystemPropertiesService* s = service();
    return s ? s->getTempHome() : std::string();
}

std::string getSystemPropertyDataHome()
{
    SystemPropertiesService* s = service();
    return s ? s->getDataHome() : std::string();
}

std::string getSystemPropertyTovuHome()
{
    SystemPropertiesService* s = service();
    return s ? s->getTovuHome() : std::string();
}

int setSystemPropertyIniHome(std::string const& home)
{
    SystemPropertiesService* s = service();
    return s ? s->setIniHome(home) : kNoService;
}

int setSystemPropertyLogHome(std::string const& home)
{
    SystemPropertiesService* s = service();
    return s ? s->setLogHome(home) : kNoService;
}

int setSystemPropertyTempHome(std::string const& home)
{
    SystemPropertiesService* s = service();
    return s ? s->setTempHome(home) : kNoService;
}

int setSystemPropertyDataHome(std::string const& home)
{
    SystemPropertiesService* s = service();
    return s ? s->setDataHome(home) : kNoService;
}

int setSystemPropertyTovuHome(std::string const& home)
{
    SystemPropertiesService* s = service();
    return s ? s->setTovuHome(home) : kNoService;
}
