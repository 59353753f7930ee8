#ifndef TOVUUTIL_TEXT_DETAIL_VECTORCODECS_H
#define TOVUUTIL_TEXT_DETAIL_VECTORCODECS_H

#include <cstddef>

#include "tovuutil/text/detail/CodecTables.h"

namespace tovu {
namespace detail {

// The bulk of the Base16/32/64 work for one instruction set. Each kernel does
// a prefix of whole blocks (1, 5 or 3 bytes; 2, 8 or 4 characters) and
// returns how many it did; the scalar code does the rest. A kernel writes
// exactly the output of the blocks it did and reads no further than the
// blocks it was given.
//
// Decoders stop before the first chunk of at most 64 characters that holds a
// character outside the alphabet, a pad among them: such blocks are the
// scalar code's, which lets foreign bits fall as they fall and shortens the
// output at pads.
struct VectorCodecs {
    using Kernel = std::size_t (*)(unsigned char* out, unsigned char const* in, std::size_t blocks);
    char const* name;
    Kernel base16Encode;
    Kernel base16Decode;
    Kernel base32Encode;
    Kernel base32Decode;
    Kernel base64Encode;
    Kernel base64Decode;
};

// Defined on x86 builds only; call them only when this CPU runs them.
extern VectorCodecs const kSsse3Codecs;
extern VectorCodecs const kAvx2Codecs;

// The kernel sets this build and CPU can run, best first, ended by nullptr.
// Only the terminator on other hosts and in builds with TOVU_SCALAR_CODECS.
VectorCodecs const* const* runnableVectorCodecs();

// The set the exported codecs use: the best runnable one, or nullptr for the
// scalar code alone.
VectorCodecs const* vectorCodecs();

// The codecs behind the exported functions, with the kernels given (nullptr:
// scalar only). Same checks, exceptions and results as those.
unsigned long base16Encode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n);
unsigned long base16Decode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n);
unsigned long base32Encode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n);
unsigned long base32Decode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n);
unsigned long base64Encode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n);
unsigned long base64Decode(VectorCodecs const* vector, void* dst, void const* src, unsigned long n);

// An encoder: the kernel (if any) on whole blocks of `bytes`, then
// `scalar(out, in, n)` on the rest, the last block padded.
template <class Scalar>
unsigned long encodeInTurns(VectorCodecs::Kernel kernel, Scalar scalar, void* dst, void const* src, unsigned long n,
                            std::size_t bytes, std::size_t characters)
{
    requireBuffers(dst, src);
    auto const* in = static_cast<unsigned char const*>(src);
    auto* out = static_cast<unsigned char*>(dst);
    std::size_t const done = kernel ? kernel(out, in, n / bytes) : 0;
    scalar(out + characters * done, in + bytes * done, static_cast<unsigned long>(n - bytes * done));
    return static_cast<unsigned long>((n / bytes + (n % bytes != 0)) * characters);
}

// A decoder: the kernel's blocks and the scalar code's in turn. After the
// kernel stops early, the scalar code takes 64 characters' worth of blocks (at
// least the kernel's largest chunk) before the kernel goes on. `scalar(out,
// in, blocks)` returns the bytes it wrote. Returns the bytes written.
template <class Scalar>
unsigned long decodeInTurns(VectorCodecs::Kernel kernel, Scalar scalar, void* dst, void const* src, unsigned long n,
                            std::size_t characters, std::size_t bytes)
{
    requireBuffers(dst, src);
    requireMultiple(n, characters);
    auto const* in = static_cast<unsigned char const*>(src);
    auto* out = static_cast<unsigned char*>(dst);
    std::size_t const blocks = n / characters;
    if (kernel == nullptr)
        return scalar(out, in, static_cast<unsigned long>(blocks));
    std::size_t const run = 64 / characters;
    std::size_t block = 0;
    unsigned long written = 0;
    while (block < blocks) {
        std::size_t const fast = kernel(out + written, in + characters * block, blocks - block);
        block += fast;
        written += static_cast<unsigned long>(bytes * fast);
        std::size_t const slow = blocks - block < run ? blocks - block : run;
        written += scalar(out + written, in + characters * block, static_cast<unsigned long>(slow));
        block += slow;
    }
    return written;
}

} // namespace detail
} // namespace tovu

#endif
