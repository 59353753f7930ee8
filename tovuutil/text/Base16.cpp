#include <cstring>

#include "tovuutil/text/detail/CodecTables.h"
#include "tovuutil/text/detail/VectorCodecs.h"

namespace {

using tovu::detail::kForeign;

constexpr char kDigits[] = "0123456789ABCDEF";

constexpr std::uint8_t value(int c)
{
    if (c >= '0' && c <= '9')
        return static_cast<std::uint8_t>(c - '0');
    if (c >= 'A' && c <= 'F')
        return static_cast<std::uint8_t>(c - 'A' + 10);
    if (c >= 'a' && c <= 'f')
        return static_cast<std::uint8_t>(c - 'a' + 10);
    return kForeign;
}

// Byte -> two digits.
constexpr auto kEncode = tovu::detail::makePairTable<4>(kDigits);

struct Tables {
    std::uint8_t byte[256][256]; // two characters -> ((v0 << 4) | v1) cut to 8 bits
};

constexpr Tables makeTables()
{
    Tables t{};
    for (int c = 0; c < 256; ++c) {
        for (int d = 0; d < 256; ++d)
            t.byte[c][d] = static_cast<std::uint8_t>((value(c) << 4) | value(d));
    }
    return t;
}

constexpr Tables kTables = makeTables();

void encodeScalar(unsigned char* out, unsigned char const* in, unsigned long n)
{
    for (unsigned long i = 0; i < n; ++i)
        std::memcpy(out + 2 * i, kEncode.pair[in[i]], 2);
}

// Decodes whole blocks (one byte each); returns the bytes written.
unsigned long decodeScalar(unsigned char* out, unsigned char const* in, unsigned long bytes)
{
    unsigned long i = 0;
    // Eight bytes a round, gathered in a word and stored at once.
    for (; i + 8 <= bytes; i += 8) {
        unsigned char const* p = in + 2 * i;
        std::uint64_t word = 0;
        for (int k = 0; k < 8; ++k)
            word |= std::uint64_t(kTables.byte[p[2 * k]][p[2 * k + 1]]) << (8 * k);
        for (int k = 0; k < 8; ++k)
            out[i + k] = static_cast<unsigned char>(word >> (8 * k));
    }
    for (; i < bytes; ++i)
        out[i] = kTables.byte[in[2 * i]][in[2 * i + 1]];
    return bytes;
}

} // namespace

namespace tovu {
namespace detail {

unsigned long base16Encode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n)
{
    return encodeInTurns(vector ? vector->base16Encode : nullptr, encodeScalar, dst, src, n, 1, 2);
}

unsigned long base16Decode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n)
{
    return decodeInTurns(vector ? vector->base16Decode : nullptr, decodeScalar, dst, src, n, 2, 1);
}

} // namespace detail
} // namespace tovu
