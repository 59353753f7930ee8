#include "tovuutil/platform/detail/DynamicLibrary.h"

#include <windows.h>

namespace tovu {
namespace detail {

void* openLibrary(std::string const& fileName) { return LoadLibraryA(fileName.c_str()); }

bool closeLibrary(void* handle) { return handle != nullptr && FreeLibrary(static_cast<HMODULE>(handle)) != 0; }

void* findSymbol(void* handle, std::string const& symbol)
{
    if (handle == nullptr)
        return nullptr;
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle), symbol.c_str()));
}

char const* librarySuffix() { return ".dll"; }

} // namespace detail
} // namespace tovu
