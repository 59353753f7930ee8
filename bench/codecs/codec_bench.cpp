// Base16/32/64 over 1 KiB, 64 KiB and 16 MiB of random bytes, against the
// fastest scalar codecs Debian ships, our own scalar code (the vector kernels
// switched off) and memcpy of the same size, all in one process with randomly
// interleaved repetitions. Outputs are checked to be
// byte-identical to the peers' before anything is timed.
#include <benchmark/benchmark.h>

#include "InterleavedMain.h"

#include <openssl/evp.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <modp_b16.h>
#include <modp_b64.h>

#include <tovuutil/tovuutil.h>

#include "tovuutil/text/detail/VectorCodecs.h"

namespace {

using namespace tovu::detail;

struct Data {
    std::string raw, b64, b32, b16;
};

Data const& data(std::size_t size)
{
    static std::vector<std::pair<std::size_t, Data>> cache;
    for (auto const& entry : cache)
        if (entry.first == size)
            return entry.second;
    Data d;
    std::mt19937_64 random(size);
    d.raw.resize(size);
    for (char& c : d.raw)
        c = static_cast<char>(random());
    d.b64.resize(BaseEncode::Base64EncodeGetLength(size));
    BaseEncode::Base64Encode(&d.b64[0], d.raw.data(), size);
    d.b32.resize(BaseEncode::Base32EncodeGetLength(size));
    BaseEncode::Base32Encode(&d.b32[0], d.raw.data(), size);
    d.b16.resize(BaseEncode::Base16EncodeGetLength(size));
    BaseEncode::Base16Encode(&d.b16[0], d.raw.data(), size);
    cache.emplace_back(size, std::move(d));
    return cache.back().second;
}

void fail(char const* what)
{
    std::fprintf(stderr, "output differs from the peer: %s\n", what);
    std::exit(1);
}

// Our outputs against the peers', once per size.
void verify(std::size_t size)
{
    Data const& d = data(size);
    std::string out(d.b64.size() + 1, '\0');
    out.resize(modp_b64_encode(&out[0], d.raw.data(), size));
    if (out != d.b64)
        fail("modp_b64_encode");
    out.assign(d.b64.size() + 1, '\0');
    out.resize(static_cast<std::size_t>(
        EVP_EncodeBlock(reinterpret_cast<unsigned char*>(&out[0]), reinterpret_cast<unsigned char const*>(d.raw.data()),
                        static_cast<int>(size))));
    if (out != d.b64)
        fail("EVP_EncodeBlock");
    out.assign(d.b16.size() + 1, '\0');
    out.resize(modp_b16_encode(&out[0], d.raw.data(), size));
    if (out != d.b16)
        fail("modp_b16_encode");
    // Our scalar code gives the same texts as the vector kernels.
    out.assign(d.b64.size(), '\0');
    base64Encode(nullptr, &out[0], d.raw.data(), size);
    std::string scalar32(d.b32.size(), '\0'), scalar16(d.b16.size(), '\0');
    base32Encode(nullptr, &scalar32[0], d.raw.data(), size);
    base16Encode(nullptr, &scalar16[0], d.raw.data(), size);
    if (out != d.b64 || scalar32 != d.b32 || scalar16 != d.b16)
        fail("scalar encoders");
    out.assign(size + 3, '\0');
    out.resize(BaseDecode::Base64Decode(&out[0], d.b64.data(), d.b64.size()));
    std::string peer(size + 3, '\0');
    peer.resize(modp_b64_decode(&peer[0], d.b64.data(), d.b64.size()));
    if (out != peer || out != d.raw)
        fail("modp_b64_decode");
    out.assign(size + 1, '\0');
    out.resize(BaseDecode::Base16Decode(&out[0], d.b16.data(), d.b16.size()));
    peer.assign(size + 1, '\0');
    peer.resize(modp_b16_decode(&peer[0], d.b16.data(), d.b16.size()));
    if (out != peer || out != d.raw)
        fail("modp_b16_decode");
    out.assign(size + 5, '\0');
    out.resize(BaseDecode::Base32Decode(&out[0], d.b32.data(), d.b32.size()));
    if (out != d.raw)
        fail("Base32 round trip");
}

template <class F>
void run(benchmark::State& state, F step)
{
    std::size_t const size = static_cast<std::size_t>(state.range(0));
    verify(size);
    for (auto _ : state)
        benchmark::DoNotOptimize(step(data(size)));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * size));
}

std::vector<char>& out()
{
    static std::vector<char> buffer;
    std::size_t const need = 2 * (16u << 20) + 64;
    if (buffer.size() < need)
        buffer.resize(need);
    return buffer;
}

#define CODEC_BENCH(name, expr)                                                                      \
    void name(benchmark::State& state)                                                               \
    {                                                                                                \
        char* o = out().data();                                                                      \
        run(state, [o](Data const& d) { return expr; });                                             \
    }                                                                                                \
    BENCHMARK(name)->Arg(1 << 10)->Arg(64 << 10)->Arg(16 << 20)->Repetitions(5)->ReportAggregatesOnly(true)

// Base64 encode
CODEC_BENCH(BM_B64Encode_Tovu, BaseEncode::Base64Encode(o, d.raw.data(), d.raw.size()));
CODEC_BENCH(BM_B64Encode_TovuScalar, base64Encode(nullptr, o, d.raw.data(), d.raw.size()));
CODEC_BENCH(BM_B64Encode_Modp, modp_b64_encode(o, d.raw.data(), d.raw.size()));
CODEC_BENCH(BM_B64Encode_OpenSSL, EVP_EncodeBlock(reinterpret_cast<unsigned char*>(o),
                                                  reinterpret_cast<unsigned char const*>(d.raw.data()),
                                                  static_cast<int>(d.raw.size())));
// Base64 decode (throughput counted in decoded bytes)
CODEC_BENCH(BM_B64Decode_Tovu, BaseDecode::Base64Decode(o, d.b64.data(), d.b64.size()));
CODEC_BENCH(BM_B64Decode_TovuScalar, base64Decode(nullptr, o, d.b64.data(), d.b64.size()));
CODEC_BENCH(BM_B64Decode_Modp, modp_b64_decode(o, d.b64.data(), d.b64.size()));
CODEC_BENCH(BM_B64Decode_OpenSSL, EVP_DecodeBlock(reinterpret_cast<unsigned char*>(o),
                                                  reinterpret_cast<unsigned char const*>(d.b64.data()),
                                                  static_cast<int>(d.b64.size())));
// Base16
CODEC_BENCH(BM_B16Encode_Tovu, BaseEncode::Base16Encode(o, d.raw.data(), d.raw.size()));
CODEC_BENCH(BM_B16Encode_TovuScalar, base16Encode(nullptr, o, d.raw.data(), d.raw.size()));
CODEC_BENCH(BM_B16Encode_Modp, modp_b16_encode(o, d.raw.data(), d.raw.size()));
CODEC_BENCH(BM_B16Decode_Tovu, BaseDecode::Base16Decode(o, d.b16.data(), d.b16.size()));
CODEC_BENCH(BM_B16Decode_TovuScalar, base16Decode(nullptr, o, d.b16.data(), d.b16.size()));
CODEC_BENCH(BM_B16Decode_Modp, modp_b16_decode(o, d.b16.data(), d.b16.size()));
// Base32 (no fast peer: compared with our scalar code and memcpy)
CODEC_BENCH(BM_B32Encode_Tovu, BaseEncode::Base32Encode(o, d.raw.data(), d.raw.size()));
CODEC_BENCH(BM_B32Encode_TovuScalar, base32Encode(nullptr, o, d.raw.data(), d.raw.size()));
CODEC_BENCH(BM_B32Decode_Tovu, BaseDecode::Base32Decode(o, d.b32.data(), d.b32.size()));
CODEC_BENCH(BM_B32Decode_TovuScalar, base32Decode(nullptr, o, d.b32.data(), d.b32.size()));
// The floor: copying the same number of bytes.
CODEC_BENCH(BM_Memcpy, (std::memcpy(o, d.raw.data(), d.raw.size()), 0));

} // namespace

TOVU_BENCHMARK_INTERLEAVED_MAIN()
