#include "tovuutil/text/BaseCodec.h"

#include <cstring>

#include "tovuutil/text/detail/CodecTables.h"

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

} // namespace

namespace BaseEncode {

unsigned long Base16EncodeGetLength(unsigned long n) { return 2 * n; }

unsigned long Base16Encode(void* dst, void const* src, unsigned long n)
{
    tovu::detail::requireBuffers(dst, src);
    auto const* in = static_cast<unsigned char const*>(src);
    char* out = static_cast<char*>(dst);
    for (unsigned long i = 0; i < n; ++i)
        std::memcpy(out + 2 * i, kEncode.pair[in[i]], 2);
    return 2 * n;
}

} // namespace BaseEncode

namespace BaseDecode {

unsigned long Base16DecodeGetLength(unsigned long n)
{
    tovu::detail::requireMultiple(n, 2);
    return n / 2;
}

unsigned long Base16Decode(void* dst, void const* src, unsigned long n)
{
    tovu::detail::requireBuffers(dst, src);
    tovu::detail::requireMultiple(n, 2);
    auto const* in = static_cast<unsigned char const*>(src);
    auto* out = static_cast<unsigned char*>(dst);
    unsigned long const bytes = n / 2;
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

} // namespace BaseDecode
