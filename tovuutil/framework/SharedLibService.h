#ifndef TOVUUTIL_FRAMEWORK_SHAREDLIBSERVICE_H
#define TOVUUTIL_FRAMEWORK_SHAREDLIBSERVICE_H

#include <string>

#include <tovuutil/framework/Service.h>

// SharedLibService
//
// Service 2: shared libraries loaded under normalised names, and their symbols.
class TOVU_API SharedLibService : public Service {
public:
    virtual ~SharedLibService() = 0;
    virtual std::string loadSharedLib(std::string const& name) = 0;
    virtual bool unloadSharedLib(std::string const& name) = 0;
    virtual void* getSymbol(std::string const& library, std::string const& symbol) = 0;
};

#endif
