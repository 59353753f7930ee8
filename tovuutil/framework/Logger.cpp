#include "tovuutil/framework/Logger.h"

#include "tovuutil/framework/ObjectLifetimeManager.h"

Logger::Logger(std::string const& name) : log4cxx::Log4cxx(name) {}

Logger::~Logger()
{
    if (isDebugEnabled())
        debug("Logger '" + getName() + "' entfernt.");
}

Logger* Logger::getInstance(std::string const& name)
{
    ObjectLifetimeManager* manager = ObjectLifetimeManager::instance();
    if (Logger* existing = manager->getLogger(name))
        return existing;
    Logger* logger = new Logger(name);
    manager->addLogger(name, logger);
    if (logger->isDebugEnabled())
        logger->debug("Logger '" + name + "' initialisiert.");
    return logger;
}
