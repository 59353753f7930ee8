#include "tovuutil/framework/Logger.h"

#include "tovuutil/framework/ObjectLifetimeManager.h"
#include "tovuutil/framework/detail/LoggingSetup.h"

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
    // Configured before the registry is locked, so the set-up never runs under it.
    tovu::detail::ensureLoggingConfigured();
    bool created = false;
    Logger* logger = ObjectLifetimeManager::getOrAddLogger(
        name, [](std::string const& n) { return new Logger(n); }, created);
    if (created && logger->isDebugEnabled())
        logger->debug("Logger '" + name + "' initialisiert.");
    return logger;
}
