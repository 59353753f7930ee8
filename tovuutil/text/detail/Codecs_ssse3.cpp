// Base16/32/64 kernels for SSSE3, 16 characters a step.
#if defined(__x86_64__) || defined(__i386__)

#include "tovuutil/text/detail/VectorCodecs.h"
#include "tovuutil/text/detail/X86Stores.h"

namespace tovu {
namespace detail {

namespace {

TOVU_TARGET_SSSE3 inline __m128i load(unsigned char const* p)
{
    return _mm_loadu_si128(reinterpret_cast<__m128i const*>(p));
}

TOVU_TARGET_SSSE3 inline void store(unsigned char* p, __m128i v)
{
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v);
}

// Character values by range: where c lies in [first, first + count), sets
// the lane of `hit` and yields c - first + value; zero elsewhere.
TOVU_TARGET_SSSE3 inline __m128i rangeValue(__m128i c, char first, char count, char value, __m128i& hit)
{
    __m128i const offset = _mm_sub_epi8(c, _mm_set1_epi8(first));
    __m128i const in = _mm_cmpeq_epi8(_mm_min_epu8(offset, _mm_set1_epi8(static_cast<char>(count - 1))), offset);
    hit = _mm_or_si128(hit, in);
    return _mm_and_si128(in, _mm_add_epi8(offset, _mm_set1_epi8(value)));
}

// Upper case as lower case; other characters stay out of "a"-"z".
TOVU_TARGET_SSSE3 inline __m128i foldCase(__m128i c) { return _mm_or_si128(c, _mm_set1_epi8(0x20)); }

TOVU_TARGET_SSSE3 inline bool allSet(__m128i mask) { return _mm_movemask_epi8(mask) == 0xFFFF; }

// ---- Base16

TOVU_TARGET_SSSE3 std::size_t base16Encode(unsigned char* out, unsigned char const* in, std::size_t bytes)
{
    __m128i const digits = _mm_setr_epi8('0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'A', 'B', 'C', 'D', 'E', 'F');
    __m128i const nibble = _mm_set1_epi8(0x0F);
    std::size_t i = 0;
    for (; i + 16 <= bytes; i += 16) {
        __m128i const v = load(in + i);
        __m128i const high = _mm_shuffle_epi8(digits, _mm_and_si128(_mm_srli_epi16(v, 4), nibble));
        __m128i const low = _mm_shuffle_epi8(digits, _mm_and_si128(v, nibble));
        store(out + 2 * i, _mm_unpacklo_epi8(high, low));
        store(out + 2 * i + 16, _mm_unpackhi_epi8(high, low));
    }
    return i;
}

// Digit values of 16 characters, each pair combined to a 16-bit v0 * 16 + v1;
// clears `valid` unless all are hex digits.
TOVU_TARGET_SSSE3 inline __m128i hexPairs(__m128i c, bool& valid)
{
    __m128i hit = _mm_setzero_si128();
    __m128i const value = _mm_or_si128(rangeValue(c, '0', 10, 0, hit), rangeValue(foldCase(c), 'a', 6, 10, hit));
    valid = valid && allSet(hit);
    return _mm_maddubs_epi16(value, _mm_set1_epi16(0x0110));
}

TOVU_TARGET_SSSE3 std::size_t base16Decode(unsigned char* out, unsigned char const* in, std::size_t bytes)
{
    std::size_t i = 0;
    for (; i + 16 <= bytes; i += 16) {
        bool valid = true;
        __m128i const a = hexPairs(load(in + 2 * i), valid);
        __m128i const b = hexPairs(load(in + 2 * i + 16), valid);
        if (!valid)
            break;
        store(out + i, _mm_packus_epi16(a, b));
    }
    return i;
}

// ---- Base32

// For each of a 5-byte group's eight characters a 16-bit lane holding the two
// bytes its bits start in (first byte high), from the group at `offset`.
TOVU_TARGET_SSSE3 inline __m128i base32Lanes(__m128i v, char o)
{
    return _mm_shuffle_epi8(v, _mm_setr_epi8(o + 1, o, o + 1, o, o + 2, o + 1, o + 2, o + 1, o + 3, o + 2, o + 4,
                                             o + 3, o + 4, o + 3, -1, o + 4));
}

// Each lane shifted right so that its character's five bits end at bit 0
// (a multiply-high by 2^(16 - shift)), then masked.
TOVU_TARGET_SSSE3 inline __m128i base32Indices(__m128i lanes)
{
    __m128i const shifted = _mm_mulhi_epu16(lanes, _mm_setr_epi16(32, 1024, 128, 4096, 512, 64, 2048, 256));
    return _mm_and_si128(shifted, _mm_set1_epi16(31));
}

// "A"-"Z" for 0-25, "2"-"7" for 26-31.
TOVU_TARGET_SSSE3 inline __m128i base32Chars(__m128i indices)
{
    __m128i const digits = _mm_and_si128(_mm_cmpgt_epi8(indices, _mm_set1_epi8(25)), _mm_set1_epi8('2' - 26 - 'A'));
    return _mm_add_epi8(_mm_add_epi8(indices, _mm_set1_epi8('A')), digits);
}

TOVU_TARGET_SSSE3 std::size_t base32Encode(unsigned char* out, unsigned char const* in, std::size_t blocks)
{
    std::size_t block = 0;
    for (; 5 * block + 16 <= 5 * blocks; block += 2) {
        __m128i const v = load(in + 5 * block);
        __m128i const indices =
            _mm_packus_epi16(base32Indices(base32Lanes(v, 0)), base32Indices(base32Lanes(v, 5)));
        store(out + 8 * block, base32Chars(indices));
    }
    return block;
}

// Two blocks' ten bytes at bytes 0-9, zeros above; clears `valid` unless all
// 16 characters are in the alphabet (a pad is not).
TOVU_TARGET_SSSE3 inline __m128i base32Bytes(__m128i c, bool& valid)
{
    __m128i hit = _mm_setzero_si128();
    __m128i const value = _mm_or_si128(rangeValue(foldCase(c), 'a', 26, 0, hit), rangeValue(c, '2', 6, 26, hit));
    valid = valid && allSet(hit);
    // 10-bit pairs, then 20-bit halves of each block, then its 40 bits.
    __m128i const pairs = _mm_maddubs_epi16(value, _mm_set1_epi16(0x0120));
    __m128i const halves = _mm_madd_epi16(pairs, _mm_set1_epi32(0x00010400));
    __m128i const blocks = _mm_or_si128(_mm_slli_epi64(halves, 20), _mm_srli_epi64(halves, 32));
    return _mm_shuffle_epi8(blocks, _mm_setr_epi8(4, 3, 2, 1, 0, 12, 11, 10, 9, 8, -1, -1, -1, -1, -1, -1));
}

TOVU_TARGET_SSSE3 std::size_t base32Decode(unsigned char* out, unsigned char const* in, std::size_t blocks)
{
    std::size_t block = 0;
    for (; block + 4 <= blocks; block += 4) {
        bool valid = true;
        __m128i const a = base32Bytes(load(in + 8 * block), valid);
        __m128i const b = base32Bytes(load(in + 8 * block + 16), valid);
        if (!valid)
            break;
        store10x2(out + 5 * block, a, b);
    }
    return block;
}

// ---- Base64

// Four characters for each of the three-byte blocks at bytes 0-11.
TOVU_TARGET_SSSE3 inline __m128i base64Chars(__m128i v)
{
    // Each block's bytes b1 b2 b0 b1 (so every 16-bit lane holds two
    // characters' bits), then the four 6-bit indices cut out by multiplies.
    v = _mm_shuffle_epi8(v, _mm_setr_epi8(1, 0, 2, 1, 4, 3, 5, 4, 7, 6, 8, 7, 10, 9, 11, 10));
    __m128i const ac = _mm_mulhi_epu16(_mm_and_si128(v, _mm_set1_epi32(0x0FC0FC00)), _mm_set1_epi32(0x04000040));
    __m128i const bd = _mm_mullo_epi16(_mm_and_si128(v, _mm_set1_epi32(0x003F03F0)), _mm_set1_epi32(0x01000010));
    __m128i const indices = _mm_or_si128(ac, bd);
    // Offset to add per index range: 0-25 "A", 26-51 "a", 52-61 "0", 62 "+", 63 "/".
    __m128i range = _mm_subs_epu8(indices, _mm_set1_epi8(51));
    range = _mm_or_si128(range, _mm_and_si128(_mm_cmpgt_epi8(_mm_set1_epi8(26), indices), _mm_set1_epi8(13)));
    __m128i const offsets = _mm_setr_epi8('a' - 26, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52,
                                          '0' - 52, '0' - 52, '0' - 52, '+' - 62, '/' - 63, 'A', 0, 0);
    return _mm_add_epi8(_mm_shuffle_epi8(offsets, range), indices);
}

TOVU_TARGET_SSSE3 std::size_t base64Encode(unsigned char* out, unsigned char const* in, std::size_t blocks)
{
    std::size_t block = 0;
    for (; 3 * block + 16 <= 3 * blocks; block += 4)
        store(out + 4 * block, base64Chars(load(in + 3 * block)));
    return block;
}

// The three bytes of each of four blocks at bytes 0-11; clears `valid` unless
// all 16 characters are in the alphabet (a pad is not).
TOVU_TARGET_SSSE3 inline __m128i base64Bytes(__m128i c, bool& valid)
{
    __m128i const high = _mm_and_si128(_mm_srli_epi32(c, 4), _mm_set1_epi8(0x0F));
    __m128i const low = _mm_and_si128(c, _mm_set1_epi8(0x0F));
    // A character is in the alphabet when the classes of its low and high
    // nibble share no bit.
    __m128i const lowClass = _mm_setr_epi8(0x15, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x13, 0x1A, 0x1B,
                                           0x1B, 0x1B, 0x1A);
    __m128i const highClass = _mm_setr_epi8(0x10, 0x10, 0x01, 0x02, 0x04, 0x08, 0x04, 0x08, 0x10, 0x10, 0x10, 0x10, 0x10,
                                            0x10, 0x10, 0x10);
    __m128i const clash = _mm_and_si128(_mm_shuffle_epi8(lowClass, low), _mm_shuffle_epi8(highClass, high));
    valid = valid && allSet(_mm_cmpeq_epi8(clash, _mm_setzero_si128()));
    // Value = character + offset of its high nibble ("/" shares "+"'s nibble).
    __m128i const offsets = _mm_setr_epi8(0, 16, 19, 4, -65, -65, -71, -71, 0, 0, 0, 0, 0, 0, 0, 0);
    __m128i const slash = _mm_cmpeq_epi8(c, _mm_set1_epi8('/'));
    __m128i const value = _mm_add_epi8(c, _mm_shuffle_epi8(offsets, _mm_add_epi8(slash, high)));
    // 12-bit pairs, then 24-bit blocks, then their bytes first byte first.
    __m128i const pairs = _mm_maddubs_epi16(value, _mm_set1_epi32(0x01400140));
    __m128i const words = _mm_madd_epi16(pairs, _mm_set1_epi32(0x00011000));
    return _mm_shuffle_epi8(words, _mm_setr_epi8(2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, -1, -1, -1, -1));
}

TOVU_TARGET_SSSE3 std::size_t base64Decode(unsigned char* out, unsigned char const* in, std::size_t blocks)
{
    std::size_t block = 0;
    for (; block + 4 <= blocks; block += 4) {
        bool valid = true;
        __m128i const bytes = base64Bytes(load(in + 4 * block), valid);
        if (!valid)
            break;
        store12(out + 3 * block, bytes);
    }
    return block;
}

} // namespace

VectorCodecs const kSsse3Codecs = {"ssse3",      base16Encode, base16Decode, base32Encode,
                                   base32Decode, base64Encode, base64Decode};

} // namespace detail
} // namespace tovu

#endif
