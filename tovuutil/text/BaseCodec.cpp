#include "tovuutil/text/BaseCodec.h"

#include "tovuutil/text/detail/CodecTables.h"
#include "tovuutil/text/detail/VectorCodecs.h"

using tovu::detail::vectorCodecs;

namespace BaseEncode {

unsigned long Base16EncodeGetLength(unsigned long n) { return 2 * n; }
unsigned long Base32EncodeGetLength(unsigned long n) { return (n / 5 + (n % 5 != 0)) * 8; }
unsigned long Base64EncodeGetLength(unsigned long n) { return (n / 3 + (n % 3 != 0)) * 4; }

unsigned long Base16Encode(void* dst, void const* src, unsigned long n)
{
    return tovu::detail::base16Encode(vectorCodecs(), dst, src, n);
}

unsigned long Base32Encode(void* dst, void const* src, unsigned long n)
{
    return tovu::detail::base32Encode(vectorCodecs(), dst, src, n);
}

unsigned long Base64Encode(void* dst, void const* src, unsigned long n)
{
    return tovu::detail::base64Encode(vectorCodecs(), dst, src, n);
}

} // namespace BaseEncode

namespace BaseDecode {

unsigned long Base16DecodeGetLength(unsigned long n)
{
    tovu::detail::requireMultiple(n, 2);
    return n / 2;
}

unsigned long Base32DecodeGetLength(unsigned long n)
{
    tovu::detail::requireMultiple(n, 8);
    return n / 8 * 5;
}

unsigned long Base64DecodeGetLength(unsigned long n)
{
    tovu::detail::requireMultiple(n, 4);
    return n / 4 * 3;
}

unsigned long Base16Decode(void* dst, void const* src, unsigned long n)
{
    return tovu::detail::base16Decode(vectorCodecs(), dst, src, n);
}

unsigned long Base32Decode(void* dst, void const* src, unsigned long n)
{
    return tovu::detail::base32Decode(vectorCodecs(), dst, src, n);
}

unsigned long Base64Decode(void* dst, void const* src, unsigned long n)
{
    return tovu::detail::base64Decode(vectorCodecs(), dst, src, n);
}

} // namespace BaseDecode
