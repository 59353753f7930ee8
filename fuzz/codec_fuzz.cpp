// Any bytes through every decoder (lengths cut to the block), and back
// through the encoders.
#include <cstdint>
#include <stdexcept>
#include <vector>

#include <tovuutil/tovuutil.h>

namespace {
template <class Length, class Decode>
void decode(std::uint8_t const* data, std::size_t size, unsigned long block, Length length, Decode run)
{
    unsigned long const n = static_cast<unsigned long>(size) / block * block;
    std::vector<unsigned char> out(length(n) + 1);
    run(out.data(), data, n);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    decode(data, size, 2, BaseDecode::Base16DecodeGetLength, BaseDecode::Base16Decode);
    decode(data, size, 8, BaseDecode::Base32DecodeGetLength, BaseDecode::Base32Decode);
    decode(data, size, 4, BaseDecode::Base64DecodeGetLength, BaseDecode::Base64Decode);
    std::vector<unsigned char> out(BaseEncode::Base32EncodeGetLength(size) + 1);
    BaseEncode::Base32Encode(out.data(), data, size);
    BaseEncode::Base64Encode(out.data(), data, size);
    std::string const text(reinterpret_cast<char const*>(data), size);
    basen2double(text, "0123456789");
    removeSpecialPatterns(text, text.substr(0, size % 5));
    return 0;
}
