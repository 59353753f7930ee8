#include "tovuutil/platform/SharedLibServiceImpl.h"

#include "tovuutil/framework/Logger.h"

// Placeholder until shared-library loading lands: nothing loads.

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

std::string SharedLibServiceImpl::loadSharedLib(std::string const&) { return std::string(); }
bool SharedLibServiceImpl::unloadSharedLib(std::string const&) { return false; }
void* SharedLibServiceImpl::getSymbol(std::string const&, std::string const&) { return nullptr; }
