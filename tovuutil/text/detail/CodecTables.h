#ifndef TOVUUTIL_TEXT_DETAIL_CODECTABLES_H
#define TOVUUTIL_TEXT_DETAIL_CODECTABLES_H

#include <array>
#include <cstdint>
#include <stdexcept>

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

inline void requireBuffers(void const* dst, void const* src)
{
    if (dst == nullptr || src == nullptr)
        throw std::runtime_error("Invalid parameter");
}

} // namespace detail
} // namespace tovu

#endif
