#include <cstring>

#include "tovuutil/text/detail/CodecTables.h"
#include "tovuutil/text/detail/VectorCodecs.h"

namespace {

using tovu::detail::kForeign;

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567";

constexpr std::uint8_t value(int c)
{
    if (c >= 'A' && c <= 'Z')
        return static_cast<std::uint8_t>(c - 'A');
    if (c >= 'a' && c <= 'z')
        return static_cast<std::uint8_t>(c - 'a');
    if (c >= '2' && c <= '7')
        return static_cast<std::uint8_t>(c - '2' + 26);
    if (c == '=')
        return 32;
    return kForeign;
}

// Each character's share of a block's five bytes, laid out in memory order
// (first byte lowest), already cut to 8 bits per byte, so a block is eight
// look-ups ORed together. A foreign value (255) is not masked to five bits:
// its bits fall exactly as in the byte-wise formulas
//   v0 << 3 | v1 >> 2,   v1 << 6 | v2 << 1 | v3 >> 4,   v3 << 4 | v4 >> 1,
//   v4 << 7 | v5 << 2 | v6 >> 3,   v6 << 5 | v7.
struct DecodeTables {
    std::uint64_t share[8][256];
};

constexpr std::uint64_t at(int byte, unsigned bits) { return std::uint64_t(bits & 0xFF) << (8 * byte); }

constexpr DecodeTables makeDecodeTables()
{
    DecodeTables t{};
    for (int c = 0; c < 256; ++c) {
        unsigned const v = value(c);
        t.share[0][c] = at(0, v << 3);
        t.share[1][c] = at(0, v >> 2) | at(1, v << 6);
        t.share[2][c] = at(1, v << 1);
        t.share[3][c] = at(1, v >> 4) | at(2, v << 4);
        t.share[4][c] = at(2, v >> 1) | at(3, v << 7);
        t.share[5][c] = at(3, v << 2);
        t.share[6][c] = at(3, v >> 3) | at(4, v << 5);
        t.share[7][c] = at(4, v);
    }
    return t;
}

constexpr DecodeTables kDecode = makeDecodeTables();

// Two characters for every 10 bits of input: four look-ups per block.
constexpr auto kEncode = tovu::detail::makePairTable<5>(kAlphabet);

// Characters of a block's last group for 1 to 4 trailing bytes, and its pads.
constexpr unsigned kCharsFor[5] = {0, 2, 4, 5, 7};

std::uint64_t decodeBlock(unsigned char const* p)
{
    return kDecode.share[0][p[0]] | kDecode.share[1][p[1]] | kDecode.share[2][p[2]] | kDecode.share[3][p[3]] |
           kDecode.share[4][p[4]] | kDecode.share[5][p[5]] | kDecode.share[6][p[6]] | kDecode.share[7][p[7]];
}

// A block's trailing pads, read from the back (8th, 7th, 5th, 3rd character),
// each standing for one byte less.
unsigned long bytesOfBlock(unsigned char const* block)
{
    unsigned long bytes = 5;
    for (int position : {7, 6, 4, 2}) {
        if (block[position] != '=')
            break;
        --bytes;
    }
    return bytes;
}

// Encodes n bytes, the last block padded.
void encodeScalar(unsigned char* out, unsigned char const* in, unsigned long n)
{
    unsigned long const whole = n - n % 5;
    for (unsigned long i = 0; i < whole; i += 5, out += 8) {
        std::uint64_t const word = (std::uint64_t(in[i]) << 32) | (std::uint64_t(in[i + 1]) << 24) |
                                   (std::uint64_t(in[i + 2]) << 16) | (std::uint64_t(in[i + 3]) << 8) | in[i + 4];
        std::memcpy(out, kEncode.pair[word >> 30], 2);
        std::memcpy(out + 2, kEncode.pair[(word >> 20) & 1023], 2);
        std::memcpy(out + 4, kEncode.pair[(word >> 10) & 1023], 2);
        std::memcpy(out + 6, kEncode.pair[word & 1023], 2);
    }
    if (unsigned long const take = n % 5) {
        std::uint64_t word = 0;
        for (unsigned long k = 0; k < 5; ++k)
            word = (word << 8) | (k < take ? in[whole + k] : 0u);
        for (unsigned k = 0; k < 8; ++k)
            out[k] = k < kCharsFor[take] ? kAlphabet[(word >> (35 - 5 * k)) & 31] : '=';
    }
}

// Decodes whole blocks; returns the bytes written.
unsigned long decodeScalar(unsigned char* out, unsigned char const* in, unsigned long blocks)
{
    // Fast path: every block but the last, as long as none ends in a pad.
    // Each stores eight bytes; the three beyond its five are overwritten by
    // the next block.
    unsigned long block = 0;
    for (; block + 1 < blocks; ++block) {
        unsigned char const* p = in + 8 * block;
        if (p[7] == '=')
            break;
        std::uint64_t const word = decodeBlock(p);
        unsigned char* o = out + 5 * block;
        for (int k = 0; k < 8; ++k)
            o[k] = static_cast<unsigned char>(word >> (8 * k));
    }

    // The rest: all five bytes are stored (the buffer holds five per block),
    // the position advances by those the block stands for.
    unsigned long written = 5 * block;
    for (; block < blocks; ++block) {
        unsigned char const* p = in + 8 * block;
        std::uint64_t const word = decodeBlock(p);
        unsigned char* o = out + written;
        for (int k = 0; k < 5; ++k)
            o[k] = static_cast<unsigned char>(word >> (8 * k));
        written += p[7] == '=' ? bytesOfBlock(p) : 5;
    }
    return written;
}

} // namespace

namespace tovu {
namespace detail {

unsigned long base32Encode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n)
{
    return encodeInTurns(vector ? vector->base32Encode : nullptr, encodeScalar, dst, src, n, 5, 8);
}

unsigned long base32Decode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n)
{
    return decodeInTurns(vector ? vector->base32Decode : nullptr, decodeScalar, dst, src, n, 8, 5);
}

} // namespace detail
} // namespace tovu
