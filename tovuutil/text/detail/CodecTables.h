#ifndef TOVUUTIL_TEXT_DETAIL_CODECTABLES_H
#define TOVUUTIL_TEXT_DETAIL_CODECTABLES_H

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace tovu {
namespace detail {

// Decoding value of every byte: the alphabet position, or 255 for a byte
// outside it (bytes of 128 and above included, so no table is read out of range).
constexpr std::uint8_t kForeign = 255;

template <class F>
constexpr std::array<std::uint8_t, 256> makeValues(F value)
{
    std::array<std::uint8_t, 256> table{};
    for (int c = 0; c < 256; ++c)
        table[c] = value(c);
    return table;
}

// Two alphabet characters for every value of 2 * Bits input bits: one table
// look-up encodes two characters.
template <int Bits>
struct PairTable {
    char pair[1 << (2 * Bits)][2];
};

template <int Bits>
constexpr PairTable<Bits> makePairTable(char const* alphabet)
{
    PairTable<Bits> t{};
    for (int i = 0; i < (1 << (2 * Bits)); ++i) {
        t.pair[i][0] = alphabet[i >> Bits];
        t.pair[i][1] = alphabet[i & ((1 << Bits) - 1)];
    }
    return t;
}

// A text to decode must hold whole blocks of this many characters.
inline void requireMultiple(unsigned long n, unsigned long block)
{
    if (n % block != 0)
        throw std::runtime_error("Invalid source, size is not a multiple of " + std::to_string(block));
}

inline void requireBuffers(void const* dst, void const* src)
{
    if (dst == nullptr || src == nullptr)
        throw std::runtime_error("Invalid parameter");
}

} // namespace detail
} // namespace tovu

#endif
