#ifndef TOVUUTIL_PLATFORM_DETAIL_ENTROPYSOURCE_H
#define TOVUUTIL_PLATFORM_DETAIL_ENTROPYSOURCE_H

// Host leaves behind RandomSocket: standard types only, one definition per
// host (EntropySource_posix.cpp, EntropySource_win32.cpp). Neither throws.

#include <cstddef>
#include <cstdint>

namespace tovu {
namespace detail {

// Fills size bytes from the operating system's entropy source; false (and the
// buffer in an unspecified state) when the source does not answer in full.
bool hostEntropy(unsigned char* buffer, std::size_t size);

// The id of the calling process; it changes in the child of a fork.
std::uint64_t hostProcessId();

} // namespace detail
} // namespace tovu

#endif
