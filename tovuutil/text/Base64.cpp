#include <cstring>

#include "tovuutil/text/detail/CodecTables.h"
#include "tovuutil/text/detail/VectorCodecs.h"

namespace {

using tovu::detail::kForeign;

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::uint8_t value(int c)
{
    if (c >= 'A' && c <= 'Z')
        return static_cast<std::uint8_t>(c - 'A');
    if (c >= 'a' && c <= 'z')
        return static_cast<std::uint8_t>(c - 'a' + 26);
    if (c >= '0' && c <= '9')
        return static_cast<std::uint8_t>(c - '0' + 52);
    if (c == '+')
        return 62;
    if (c == '/')
        return 63;
    if (c == '=')
        return 64;
    return kForeign;
}

// Each character's share of a block's three bytes, laid out in memory order
// (first byte lowest) and already cut to 8 bits per byte, so a block is four
// look-ups ORed together. A value of 255 (foreign) lets its bits fall exactly
// as the byte-wise formulas v0 << 2 | v1 >> 4, v1 << 4 | v2 >> 2 and
// v2 << 6 | v3 do. The pad also sets bit 24 in the last position's table,
// which the fast loop tests; that byte is never part of the output.
constexpr std::uint32_t kPadFlag = 1u << 24;

struct DecodeTables {
    std::uint32_t share[4][256];
};

constexpr DecodeTables makeDecodeTables()
{
    DecodeTables t{};
    for (int c = 0; c < 256; ++c) {
        std::uint32_t const v = value(c);
        t.share[0][c] = (v << 2) & 0xFF;
        t.share[1][c] = (v >> 4) | (((v << 4) & 0xFF) << 8);
        t.share[2][c] = (((v >> 2) & 0xFF) << 8) | (((v << 6) & 0xFF) << 16);
        t.share[3][c] = (v << 16) | (c == '=' ? kPadFlag : 0);
    }
    return t;
}

constexpr DecodeTables kDecode = makeDecodeTables();

std::uint32_t decodeBlock(unsigned char const* p)
{
    return kDecode.share[0][p[0]] | kDecode.share[1][p[1]] | kDecode.share[2][p[2]] | kDecode.share[3][p[3]];
}

// Two characters per 12 bits of input: one table look-up per half block.
constexpr auto kEncode = tovu::detail::makePairTable<6>(kAlphabet);

// Encodes n bytes, the last block padded.
void encodeScalar(unsigned char* out, unsigned char const* in, unsigned long n)
{
    unsigned long const whole = n - n % 3;
    for (unsigned long i = 0; i < whole; i += 3, out += 4) {
        std::uint32_t const word = (std::uint32_t(in[i]) << 16) | (std::uint32_t(in[i + 1]) << 8) | in[i + 2];
        std::memcpy(out, kEncode.pair[word >> 12], 2);
        std::memcpy(out + 2, kEncode.pair[word & 0xFFF], 2);
    }
    if (n % 3 == 1) {
        std::uint32_t const a = in[whole];
        out[0] = kAlphabet[a >> 2];
        out[1] = kAlphabet[(a & 3) << 4];
        out[2] = '=';
        out[3] = '=';
    } else if (n % 3 == 2) {
        std::uint32_t const a = in[whole], b = in[whole + 1];
        out[0] = kAlphabet[a >> 2];
        out[1] = kAlphabet[((a & 3) << 4) | (b >> 4)];
        out[2] = kAlphabet[(b & 15) << 2];
        out[3] = '=';
    }
}

// Decodes whole blocks; returns the bytes written.
unsigned long decodeScalar(unsigned char* out, unsigned char const* in, unsigned long blocks)
{
    // Fast path: every block but the last, as long as none ends in a pad. Each
    // stores four bytes; the fourth is overwritten by the next block.
    unsigned long block = 0;
    for (; block + 4 < blocks; block += 4) {
        unsigned char const* p = in + 4 * block;
        std::uint32_t const w0 = decodeBlock(p), w1 = decodeBlock(p + 4), w2 = decodeBlock(p + 8),
                            w3 = decodeBlock(p + 12);
        if ((w0 | w1 | w2 | w3) & kPadFlag)
            break;
        std::uint64_t const low = w0 | (std::uint64_t(w1) << 24) | (std::uint64_t(w2 & 0xFFFF) << 48);
        std::uint32_t const high = (w2 >> 16) | (w3 << 8);
        unsigned char* o = out + 3 * block;
        for (int k = 0; k < 8; ++k)
            o[k] = static_cast<unsigned char>(low >> (8 * k));
        for (int k = 0; k < 4; ++k)
            o[8 + k] = static_cast<unsigned char>(high >> (8 * k));
    }
    for (; block + 1 < blocks; ++block) {
        std::uint32_t const word = decodeBlock(in + 4 * block);
        if (word & kPadFlag)
            break;
        unsigned char const bytes[4] = {static_cast<unsigned char>(word), static_cast<unsigned char>(word >> 8),
                                        static_cast<unsigned char>(word >> 16), 0};
        std::memcpy(out + 3 * block, bytes, 4);
    }

    // The rest, block by block: all three bytes are stored (the buffer holds
    // three per block), the position advances by those the block stands for.
    unsigned long written = 3 * block;
    for (; block < blocks; ++block) {
        unsigned char const* p = in + 4 * block;
        std::uint32_t const word = decodeBlock(p);
        out[written] = static_cast<unsigned char>(word);
        out[written + 1] = static_cast<unsigned char>(word >> 8);
        out[written + 2] = static_cast<unsigned char>(word >> 16);
        written += p[3] != '=' ? 3 : (p[2] == '=' ? 1 : 2);
    }
    return written;
}

} // namespace

namespace tovu {
namespace detail {

unsigned long base64Encode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n)
{
    return encodeInTurns(vector ? vector->base64Encode : nullptr, encodeScalar, dst, src, n, 3, 4);
}

unsigned long base64Decode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n)
{
    return decodeInTurns(vector ? vector->base64Decode : nullptr, decodeScalar, dst, src, n, 4, 3);
}

} // namespace detail
} // namespace tovu
