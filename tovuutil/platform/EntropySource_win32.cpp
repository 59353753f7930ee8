#include "tovuutil/platform/detail/EntropySource.h"

#include <windows.h>
#include <bcrypt.h>

namespace tovu {
namespace detail {

bool hostEntropy(unsigned char* buffer, std::size_t size)
{
    // The system's preferred generator needs no algorithm handle (Vista and later).
    while (size > 0) {
        ULONG const chunk = size > 0x10000000u ? 0x10000000u : static_cast<ULONG>(size);
        if (!BCRYPT_SUCCESS(BCryptGenRandom(nullptr, buffer, chunk, BCRYPT_USE_SYSTEM_PREFERRED_RNG)))
            return false;
        buffer += chunk;
        size -= chunk;
    }
    return true;
}

std::uint64_t hostProcessId() { return static_cast<std::uint64_t>(GetCurrentProcessId()); }

} // namespace detail
} // namespace tovu
