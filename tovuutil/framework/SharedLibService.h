#ifndef TOVUUTIL_FRAMEWORK_SHAREDLIBSERVICE_H
#define TOVUUTIL_FRAMEWORK_SHAREDLIBSERVICE_H

#include <string>

#include <tovuutil/framework/Service.h>

// SharedLibService
//
// Service 2: shared libraries loaded under normalised names, and their symbols.
class TOVU_API SharedLibService : public Service {
public:
    // Owned by the lifetime manager; hosts never delete a service.
    virtual ~SharedLibService() = 0;
    // Loads a library and answers the normalised file name it was loaded as
    // (on POSIX hosts "x" and "x.dll" load "libx.so", "/a/x" loads
    // "/a/libx.so"; "x.so" and versioned names such as "libm.so.6" stay), or
    // "" when loading failed. Loaded libraries are cached
    // until unloaded or until shutdown; failed loads are never cached.
    virtual std::string loadSharedLib(std::string const& name) = 0;
    // Unloads a cached library; false when it was not cached.
    virtual bool unloadSharedLib(std::string const& name) = 0;
    // The address of symbol in library, loading the library if needed; null
    // when the library cannot be loaded or does not export the symbol.
    virtual void* getSymbol(std::string const& library, std::string const& symbol) = 0;
};

#endif
