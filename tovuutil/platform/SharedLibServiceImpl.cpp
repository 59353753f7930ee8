#include "tovuutil/platform/SharedLibServiceImpl.h"

#include "tovuutil/framework/Logger.h"

SharedLibServiceImpl::SharedLibServiceImpl() : logger_(Logger::getInstance("tovuutil.SharedLibServiceImpl"))
{
    logger_->beginConstruct("SharedLibServiceImpl()");
    logger_->endConstruct("SharedLibServiceImpl()");
}

SharedLibServiceImpl::~SharedLibServiceImpl()
{
    logger_->beginDestruct("~SharedLibServiceImpl()");
    logger_->endDestruct("~SharedLibServiceImpl()");
}

std::string SharedLibServiceImpl::loadSharedLib(std::string const& name)
{
    Resource* library = libraries_.getResource(name);
    return library ? library->getName() : std::string();
}

bool SharedLibServiceImpl::unloadSharedLib(std::string const& name) { return libraries_.removeResource(name); }

void* SharedLibServiceImpl::getSymbol(std::string const& library, std::string const& symbol)
{
    auto* loaded = static_cast<SharedLib*>(libraries_.getResource(library));
    return loaded ? loaded->getSymbol(symbol) : nullptr;
}
