#include "tovuutil/platform/detail/DynamicLibrary.h"

#include <dlfcn.h>

namespace tovu {
namespace detail {

void* openLibrary(std::string const& fileName) { return dlopen(fileName.c_str(), RTLD_NOW | RTLD_LOCAL); }

bool closeLibrary(void* handle) { return handle != nullptr && dlclose(handle) == 0; }

void* findSymbol(void* handle, std::string const& symbol)
{
    // dlsym(NULL) would search the whole process; a missing library finds nothing.
    return handle == nullptr ? nullptr : dlsym(handle, symbol.c_str());
}

char const* librarySuffix() { return ".so"; }

} // namespace detail
} // namespace tovu
