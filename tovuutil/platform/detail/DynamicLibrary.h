#ifndef TOVUUTIL_PLATFORM_DETAIL_DYNAMICLIBRARY_H
#define TOVUUTIL_PLATFORM_DETAIL_DYNAMICLIBRARY_H

#include <string>

namespace tovu {
namespace detail {

// The host's handle of a mapped library, or null.
void* openLibrary(std::string const& fileName);
// True when the host released the library.
bool closeLibrary(void* handle);
// The symbol's address in a library, or null; a null handle finds nothing.
void* findSymbol(void* handle, std::string const& symbol);
// The host's library suffix, lower case: ".so" or ".dll".
char const* librarySuffix();

} // namespace detail
} // namespace tovu

#endif
