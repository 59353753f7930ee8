#ifndef TOVUUTIL_PLATFORM_SHAREDLIBSERVICEIMPL_H
#define TOVUUTIL_PLATFORM_SHAREDLIBSERVICEIMPL_H

#include <tovuutil/framework/SharedLibService.h>
#include <tovuutil/platform/SharedLib.h>

class Logger;

// SharedLibServiceImpl
//
// Service 2, created by the lifetime manager at start-up: shared libraries
// loaded under their normalised file names and cached until unloaded or until
// shutdown, which unloads every one of them. Safe from several threads: an
// unload waits for a symbol look-up in the same library to end, and a
// look-up that comes just after an unload loads the library again. A symbol
// stays valid only while its library is loaded, as ever.
class TOVU_API SharedLibServiceImpl : public SharedLibService {
public:
    SharedLibServiceImpl();
    ~SharedLibServiceImpl() override;

    // The normalised file name actually loaded, or "" when loading failed.
    std::string loadSharedLib(std::string const& name) override;
    // True when the library was cached (it is unloaded and forgotten).
    bool unloadSharedLib(std::string const& name) override;
    // The symbol of a library, loading the library if needed; null on failure.
    void* getSymbol(std::string const& library, std::string const& symbol) override;

private:
    Logger* logger_;
    SharedLibResourceManager libraries_;
};

#endif
