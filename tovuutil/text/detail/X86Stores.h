#ifndef TOVUUTIL_TEXT_DETAIL_X86STORES_H
#define TOVUUTIL_TEXT_DETAIL_X86STORES_H

// Exact-length stores for the x86 kernels: they write the bytes of the blocks
// done and nothing beyond, so the scalar code's output around them stays as
// it would be without them.
#include <immintrin.h>

#include <cstdint>
#include <cstring>

#define TOVU_TARGET_SSSE3 __attribute__((target("ssse3")))
#define TOVU_TARGET_AVX2 __attribute__((target("avx2")))

namespace tovu {
namespace detail {

// Bytes 0-11 of v.
TOVU_TARGET_SSSE3 inline void store12(unsigned char* out, __m128i v)
{
    _mm_storel_epi64(reinterpret_cast<__m128i*>(out), v);
    std::uint32_t const high = static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_srli_si128(v, 8)));
    std::memcpy(out + 8, &high, 4);
}

// Bytes 0-9 of a, then bytes 0-9 of b.
TOVU_TARGET_SSSE3 inline void store10x2(unsigned char* out, __m128i a, __m128i b)
{
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_or_si128(a, _mm_slli_si128(b, 10)));
    std::uint32_t const rest = static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_srli_si128(b, 6)));
    std::memcpy(out + 16, &rest, 4);
}

} // namespace detail
} // namespace tovu

#endif
