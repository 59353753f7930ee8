// Base16/32/64 kernels for AVX2, 32 characters a step. Each 128-bit lane
// does what the SSSE3 kernels do with a whole register.
#if defined(__x86_64__) || defined(__i386__)

#include "tovuutil/text/detail/VectorCodecs.h"
#include "tovuutil/text/detail/X86Stores.h"

namespace tovu {
namespace detail {

namespace {

TOVU_TARGET_AVX2 inline __m256i load(unsigned char const* p)
{
    return _mm256_loadu_si256(reinterpret_cast<__m256i const*>(p));
}

TOVU_TARGET_AVX2 inline void store(unsigned char* p, __m256i v)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v);
}

// The same 16 bytes in both lanes.
TOVU_TARGET_AVX2 inline __m256i both(__m128i v) { return _mm256_broadcastsi128_si256(v); }

// The 16 bytes at p into the low lane and those at p + step into the high one.
TOVU_TARGET_AVX2 inline __m256i loadLanes(unsigned char const* p, std::size_t step)
{
    __m128i const low = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p));
    __m128i const high = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p + step));
    return _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
}

TOVU_TARGET_AVX2 inline __m256i rangeValue(__m256i c, char first, char count, char value, __m256i& hit)
{
    __m256i const offset = _mm256_sub_epi8(c, _mm256_set1_epi8(first));
    __m256i const in =
        _mm256_cmpeq_epi8(_mm256_min_epu8(offset, _mm256_set1_epi8(static_cast<char>(count - 1))), offset);
    hit = _mm256_or_si256(hit, in);
    return _mm256_and_si256(in, _mm256_add_epi8(offset, _mm256_set1_epi8(value)));
}

TOVU_TARGET_AVX2 inline __m256i foldCase(__m256i c) { return _mm256_or_si256(c, _mm256_set1_epi8(0x20)); }

TOVU_TARGET_AVX2 inline bool allSet(__m256i mask) { return _mm256_movemask_epi8(mask) == -1; }

// Quadwords 0 2 1 3: undoes the lane-wise order of packs and unpacks.
constexpr int kInterleave = 0xD8;

// ---- Base16

TOVU_TARGET_AVX2 std::size_t base16Encode(unsigned char* out, unsigned char const* in, std::size_t bytes)
{
    __m256i const digits =
        both(_mm_setr_epi8('0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'));
    __m256i const nibble = _mm256_set1_epi8(0x0F);
    std::size_t i = 0;
    for (; i + 32 <= bytes; i += 32) {
        __m256i const v = _mm256_permute4x64_epi64(load(in + i), kInterleave);
        __m256i const high = _mm256_shuffle_epi8(digits, _mm256_and_si256(_mm256_srli_epi16(v, 4), nibble));
        __m256i const low = _mm256_shuffle_epi8(digits, _mm256_and_si256(v, nibble));
        store(out + 2 * i, _mm256_unpacklo_epi8(high, low));
        store(out + 2 * i + 32, _mm256_unpackhi_epi8(high, low));
    }
    return i;
}

TOVU_TARGET_AVX2 inline __m256i hexPairs(__m256i c, bool& valid)
{
    __m256i hit = _mm256_setzero_si256();
    __m256i const value =
        _mm256_or_si256(rangeValue(c, '0', 10, 0, hit), rangeValue(foldCase(c), 'a', 6, 10, hit));
    valid = valid && allSet(hit);
    return _mm256_maddubs_epi16(value, _mm256_set1_epi16(0x0110));
}

TOVU_TARGET_AVX2 std::size_t base16Decode(unsigned char* out, unsigned char const* in, std::size_t bytes)
{
    std::size_t i = 0;
    for (; i + 32 <= bytes; i += 32) {
        bool valid = true;
        __m256i const a = hexPairs(load(in + 2 * i), valid);
        __m256i const b = hexPairs(load(in + 2 * i + 32), valid);
        if (!valid)
            break;
        store(out + i, _mm256_permute4x64_epi64(_mm256_packus_epi16(a, b), kInterleave));
    }
    return i;
}

// ---- Base32

// Lane layout as in the SSSE3 kernel, the low lane from the group at byte 0,
// the high one from the group at byte 5 of the same 16 bytes.
TOVU_TARGET_AVX2 inline __m256i base32Indices(__m128i v)
{
    __m256i const lanes = _mm256_shuffle_epi8(
        both(v), _mm256_setr_epi8(1, 0, 1, 0, 2, 1, 2, 1, 3, 2, 4, 3, 4, 3, -1, 4, 6, 5, 6, 5, 7, 6, 7, 6, 8, 7, 9, 8, 9,
                                  8, -1, 9));
    __m256i const shifted =
        _mm256_mulhi_epu16(lanes, both(_mm_setr_epi16(32, 1024, 128, 4096, 512, 64, 2048, 256)));
    return _mm256_and_si256(shifted, _mm256_set1_epi16(31));
}

TOVU_TARGET_AVX2 std::size_t base32Encode(unsigned char* out, unsigned char const* in, std::size_t blocks)
{
    std::size_t block = 0;
    for (; 5 * block + 26 <= 5 * blocks; block += 4) {
        unsigned char const* p = in + 5 * block;
        __m256i const a = base32Indices(_mm_loadu_si128(reinterpret_cast<__m128i const*>(p)));
        __m256i const b = base32Indices(_mm_loadu_si128(reinterpret_cast<__m128i const*>(p + 10)));
        __m256i const indices = _mm256_permute4x64_epi64(_mm256_packus_epi16(a, b), kInterleave);
        __m256i const digits =
            _mm256_and_si256(_mm256_cmpgt_epi8(indices, _mm256_set1_epi8(25)), _mm256_set1_epi8('2' - 26 - 'A'));
        store(out + 8 * block, _mm256_add_epi8(_mm256_add_epi8(indices, _mm256_set1_epi8('A')), digits));
    }
    return block;
}

TOVU_TARGET_AVX2 std::size_t base32Decode(unsigned char* out, unsigned char const* in, std::size_t blocks)
{
    std::size_t block = 0;
    for (; block + 4 <= blocks; block += 4) {
        __m256i const c = load(in + 8 * block);
        __m256i hit = _mm256_setzero_si256();
        __m256i const value =
            _mm256_or_si256(rangeValue(foldCase(c), 'a', 26, 0, hit), rangeValue(c, '2', 6, 26, hit));
        if (!allSet(hit))
            break;
        __m256i const pairs = _mm256_maddubs_epi16(value, _mm256_set1_epi16(0x0120));
        __m256i const halves = _mm256_madd_epi16(pairs, _mm256_set1_epi32(0x00010400));
        __m256i const words = _mm256_or_si256(_mm256_slli_epi64(halves, 20), _mm256_srli_epi64(halves, 32));
        __m256i const bytes = _mm256_shuffle_epi8(
            words, both(_mm_setr_epi8(4, 3, 2, 1, 0, 12, 11, 10, 9, 8, -1, -1, -1, -1, -1, -1)));
        store10x2(out + 5 * block, _mm256_castsi256_si128(bytes), _mm256_extracti128_si256(bytes, 1));
    }
    return block;
}

// ---- Base64

TOVU_TARGET_AVX2 std::size_t base64Encode(unsigned char* out, unsigned char const* in, std::size_t blocks)
{
    __m256i const order = both(_mm_setr_epi8(1, 0, 2, 1, 4, 3, 5, 4, 7, 6, 8, 7, 10, 9, 11, 10));
    __m256i const offsets = both(_mm_setr_epi8('a' - 26, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52,
                                               '0' - 52, '0' - 52, '0' - 52, '0' - 52, '+' - 62, '/' - 63, 'A', 0, 0));
    std::size_t block = 0;
    for (; 3 * block + 28 <= 3 * blocks; block += 8) {
        __m256i const v = _mm256_shuffle_epi8(loadLanes(in + 3 * block, 12), order);
        __m256i const ac =
            _mm256_mulhi_epu16(_mm256_and_si256(v, _mm256_set1_epi32(0x0FC0FC00)), _mm256_set1_epi32(0x04000040));
        __m256i const bd =
            _mm256_mullo_epi16(_mm256_and_si256(v, _mm256_set1_epi32(0x003F03F0)), _mm256_set1_epi32(0x01000010));
        __m256i const indices = _mm256_or_si256(ac, bd);
        __m256i range = _mm256_subs_epu8(indices, _mm256_set1_epi8(51));
        range = _mm256_or_si256(
            range, _mm256_and_si256(_mm256_cmpgt_epi8(_mm256_set1_epi8(26), indices), _mm256_set1_epi8(13)));
        store(out + 4 * block, _mm256_add_epi8(_mm256_shuffle_epi8(offsets, range), indices));
    }
    return block;
}

TOVU_TARGET_AVX2 std::size_t base64Decode(unsigned char* out, unsigned char const* in, std::size_t blocks)
{
    __m256i const lowClass = both(_mm_setr_epi8(0x15, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x13, 0x1A,
                                                0x1B, 0x1B, 0x1B, 0x1A));
    __m256i const highClass = both(_mm_setr_epi8(0x10, 0x10, 0x01, 0x02, 0x04, 0x08, 0x04, 0x08, 0x10, 0x10, 0x10, 0x10,
                                                 0x10, 0x10, 0x10, 0x10));
    __m256i const offsets = both(_mm_setr_epi8(0, 16, 19, 4, -65, -65, -71, -71, 0, 0, 0, 0, 0, 0, 0, 0));
    __m256i const order = both(_mm_setr_epi8(2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, -1, -1, -1, -1));
    __m256i const nibble = _mm256_set1_epi8(0x0F);
    std::size_t block = 0;
    for (; block + 8 <= blocks; block += 8) {
        __m256i const c = load(in + 4 * block);
        __m256i const high = _mm256_and_si256(_mm256_srli_epi32(c, 4), nibble);
        __m256i const clash = _mm256_and_si256(_mm256_shuffle_epi8(lowClass, _mm256_and_si256(c, nibble)),
                                               _mm256_shuffle_epi8(highClass, high));
        if (!_mm256_testz_si256(clash, clash))
            break;
        __m256i const slash = _mm256_cmpeq_epi8(c, _mm256_set1_epi8('/'));
        __m256i const value = _mm256_add_epi8(c, _mm256_shuffle_epi8(offsets, _mm256_add_epi8(slash, high)));
        __m256i const pairs = _mm256_maddubs_epi16(value, _mm256_set1_epi32(0x01400140));
        __m256i const words = _mm256_madd_epi16(pairs, _mm256_set1_epi32(0x00011000));
        // Twelve bytes per lane, then the 24 together.
        __m256i const bytes = _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(words, order),
                                                          _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 3, 7));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + 3 * block), _mm256_castsi256_si128(bytes));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out + 3 * block + 16), _mm256_extracti128_si256(bytes, 1));
    }
    return block;
}

} // namespace

VectorCodecs const kAvx2Codecs = {"avx2",       base16Encode, base16Decode, base32Encode,
                                  base32Decode, base64Encode, base64Decode};

} // namespace detail
} // namespace tovu

#endif
