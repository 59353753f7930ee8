#ifndef TOVUUTIL_PLATFORM_SHAREDLIBSERVICEIMPL_H
#define TOVUUTIL_PLATFORM_SHAREDLIBSERVICEIMPL_H

#include <tovuutil/framework/SharedLibService.h>

class Logger;

// SharedLibServiceImpl
//
// Service 2, created by the lifetime manager at start-up.
class TOVU_API SharedLibServiceImpl : public SharedLibService {
public:
    SharedLibServiceImpl();
    ~SharedLibServiceImpl() override;

    std::string loadSharedLib(std::string const& name) override;
    bool unloadSharedLib(std::string const& name) override;
    void* getSymbol(std::string const& library, std::string const& symbol) override;

private:
    Logger* logger_;
};

#endif
