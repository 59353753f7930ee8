#include "tovuutil/platform/SharedLibServiceImpl.h"

#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/CachedResource.h"
#include "tovuutil/framework/detail/ServiceTable.h"

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
    tovu::detail::LockedResource<SharedLib> const library(libraries_.acquireResource(name));
    return library.get() ? library.get()->getName() : std::string();
}

bool SharedLibServiceImpl::unloadSharedLib(std::string const& name) { return libraries_.removeResource(name); }

void* SharedLibServiceImpl::getSymbol(std::string const& library, std::string const& symbol)
{
    // Held locked, so a concurrent unload waits until the look-up is done. A
    // library unloaded by another thread just before is loaded again (a few
    // times at most, should others keep unloading it).
    constexpr int kAttempts = 4;
    for (int attempt = 1;; ++attempt) {
        tovu::detail::LockedResource<SharedLib> const loaded(libraries_.acquireResource(library));
        if (loaded.get() == nullptr)
            return nullptr;
        if (!loaded.removed() || attempt == kAttempts)
            return loaded.get()->getSymbol(symbol);
    }
}

tovu::detail::CreatedService tovu::detail::createSharedLibService() { return makeService<SharedLibServiceImpl>(); }
