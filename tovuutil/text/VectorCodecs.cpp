#include "tovuutil/text/detail/VectorCodecs.h"

// The kernels exist for x86 only; elsewhere, and when the build asks for the
// scalar code, no set is runnable.
#if (defined(__x86_64__) || defined(__i386__)) && !defined(TOVU_SCALAR_CODECS)
#define TOVU_X86_CODECS 1
#endif

namespace tovu {
namespace detail {

namespace {

struct Runnable {
    VectorCodecs const* sets[3] = {nullptr, nullptr, nullptr};

    Runnable()
    {
#ifdef TOVU_X86_CODECS
        // Also checks that the system saves the AVX registers.
        __builtin_cpu_init();
        int k = 0;
        if (__builtin_cpu_supports("avx2"))
            sets[k++] = &kAvx2Codecs;
        if (__builtin_cpu_supports("ssse3"))
            sets[k++] = &kSsse3Codecs;
#endif
    }
};

} // namespace

VectorCodecs const* const* runnableVectorCodecs()
{
    static Runnable const runnable;
    return runnable.sets;
}

VectorCodecs const* vectorCodecs()
{
    static VectorCodecs const* const best = runnableVectorCodecs()[0];
    return best;
}

} // namespace detail
} // namespace tovu
