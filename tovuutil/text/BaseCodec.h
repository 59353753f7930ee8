#ifndef TOVUUTIL_TEXT_BASECODEC_H
#define TOVUUTIL_TEXT_BASECODEC_H

#include <tovuutil/export.h>

// Base16, Base32 and Base64 of RFC 4648 over caller buffers, always padded
// with "=". Size the destination with the length function first; its size is
// not checked. A null destination or source raises std::runtime_error
// "Invalid parameter".
//
// Example:
//   unsigned long n = BaseEncode::Base64EncodeGetLength(3);   // 4
//   std::string out(n, '\0');
//   BaseEncode::Base64Encode(&out[0], "foo", 3);              // "Zm9v"
namespace BaseEncode {

// 2 characters per byte.
TOVU_API unsigned long Base16EncodeGetLength(unsigned long n);
// 8 characters per started 5 bytes.
TOVU_API unsigned long Base32EncodeGetLength(unsigned long n);
// 4 characters per started 3 bytes.
TOVU_API unsigned long Base64EncodeGetLength(unsigned long n);

// Upper-case hex digits; returns 2n.
TOVU_API unsigned long Base16Encode(void* dst, void const* src, unsigned long n);
// Alphabet "A-Z2-7"; returns Base32EncodeGetLength(n). "f" gives "MY======".
TOVU_API unsigned long Base32Encode(void* dst, void const* src, unsigned long n);
// Alphabet "A-Za-z0-9+/"; returns Base64EncodeGetLength(n). "f" gives "Zg==".
TOVU_API unsigned long Base64Encode(void* dst, void const* src, unsigned long n);

} // namespace BaseEncode

// Decoding is lenient on purpose: characters outside the alphabet (bytes of
// 128 and above among them) count as the value 255 and their bits fall into
// the output as they fall; white space is not skipped; a pad in the middle of
// the text decodes as its value (32 or 64). Hex and Base32 accept both cases.
//
// Each block yields its bytes less those its trailing pads stand for, and the
// result is the number of bytes written: Base64 "Zg==" gives 1; Base32 with
// 1, 3, 4 or 6 pads gives 4, 3, 2 or 1 bytes of its block.
//
// A length that is not a multiple of the block (2, 8 or 4 characters) raises
// std::runtime_error "Invalid source, size is not a multiple of <k>", in the
// length functions as in the decoders.
namespace BaseDecode {

// n / 2; an upper bound that ignores padding.
TOVU_API unsigned long Base16DecodeGetLength(unsigned long n);
// n / 8 * 5.
TOVU_API unsigned long Base32DecodeGetLength(unsigned long n);
// n / 4 * 3.
TOVU_API unsigned long Base64DecodeGetLength(unsigned long n);

// Decodes n hex digits of src into dst; returns the bytes written.
TOVU_API unsigned long Base16Decode(void* dst, void const* src, unsigned long n);
// Decodes n Base32 characters of src into dst; returns the bytes written.
TOVU_API unsigned long Base32Decode(void* dst, void const* src, unsigned long n);
// Decodes n Base64 characters of src into dst; returns the bytes written.
TOVU_API unsigned long Base64Decode(void* dst, void const* src, unsigned long n);

} // namespace BaseDecode

#endif
