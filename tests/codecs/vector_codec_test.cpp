// The vector kernels against the scalar code, compiled into this test
// directly: every kernel set this CPU runs must give the scalar code's bytes
// (the whole destination buffer, not only the reported length) and count.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tovuutil/text/detail/VectorCodecs.h"

using namespace tovu::detail;

namespace {

using Codec = unsigned long (*)(VectorCodecs const*, void*, void const*, unsigned long);

struct Case {
    char const* name;
    Codec encode;
    Codec decode;
    std::size_t bytes;      // per block
    std::size_t characters; // per block
    char const* alphabet;   // encoder's, pad last
};

Case const kCases[] = {
    {"base16", base16Encode, base16Decode, 1, 2, "0123456789ABCDEFabcdef"},
    {"base32", base32Encode, base32Decode, 5, 8, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz234567="},
    {"base64", base64Encode, base64Decode, 3, 4, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/="},
};

// Beyond the output a codec may write, to catch stores past it.
constexpr std::size_t kGuard = 64;

struct Result {
    unsigned long count;
    std::string buffer;
};

Result run(Codec codec, VectorCodecs const* vector, std::string const& in, std::size_t capacity)
{
    // The source in a block of its own size, so that the sanitizers see a read past it.
    std::unique_ptr<char[]> const source(new char[std::max<std::size_t>(in.size(), 1)]);
    std::copy(in.begin(), in.end(), source.get());
    Result r{0, std::string(capacity + kGuard, '\xA5')};
    r.count = codec(vector, &r.buffer[0], source.get(), static_cast<unsigned long>(in.size()));
    return r;
}

void expectSame(Codec codec, VectorCodecs const* vector, std::string const& in, std::size_t capacity,
                std::string const& what)
{
    Result const scalar = run(codec, nullptr, in, capacity);
    Result const fast = run(codec, vector, in, capacity);
    EXPECT_EQ(scalar.count, fast.count) << what;
    EXPECT_EQ(scalar.buffer, fast.buffer) << what;
}

std::vector<VectorCodecs const*> runnable()
{
    std::vector<VectorCodecs const*> sets;
    for (VectorCodecs const* const* set = runnableVectorCodecs(); *set != nullptr; ++set)
        sets.push_back(*set);
    return sets;
}

std::string randomBytes(std::mt19937& random, std::size_t size)
{
    std::string s(size, '\0');
    for (char& c : s)
        c = static_cast<char>(random());
    return s;
}

} // namespace

TEST(VectorCodecs, EncodeEveryLengthUpTo512)
{
    std::mt19937 random(512);
    for (VectorCodecs const* vector : runnable()) {
        for (Case const& c : kCases) {
            for (std::size_t n = 0; n <= 512; ++n) {
                std::string const in = randomBytes(random, n);
                std::size_t const capacity = (n + c.bytes - 1) / c.bytes * c.characters;
                expectSame(c.encode, vector, in, capacity, std::string(vector->name) + " " + c.name + " n=" + std::to_string(n));
            }
        }
    }
}

// Texts of every whole-block length up to 512 characters: valid ones, ones
// with a few foreign characters (pads, line ends, bytes >= 128, lower case
// where upper is meant), and plain noise.
TEST(VectorCodecs, DecodeEveryLengthWithForeignCharacters)
{
    std::mt19937 random(4648);
    std::string const foreign("=\n\r \x80\xFF\x00!-_.:@[`{", 16);
    for (VectorCodecs const* vector : runnable()) {
        for (Case const& c : kCases) {
            std::string const alphabet(c.alphabet);
            for (std::size_t n = 0; n <= 512; n += c.characters) {
                std::string const what = std::string(vector->name) + " " + c.name + " n=" + std::to_string(n);
                std::size_t const capacity = n / c.characters * c.bytes;
                std::string text(n, 'A');
                for (char& ch : text)
                    ch = alphabet[random() % (alphabet.size() - 1)];
                expectSame(c.decode, vector, text, capacity, what + " valid");
                for (int round = 0; round < 4 && n > 0; ++round) {
                    std::string spoilt = text;
                    for (int k = 0; k <= round; ++k)
                        spoilt[random() % n] = foreign[random() % foreign.size()];
                    expectSame(c.decode, vector, spoilt, capacity, what + " spoilt");
                }
                expectSame(c.decode, vector, randomBytes(random, n), capacity, what + " noise");
            }
        }
    }
}

TEST(VectorCodecs, PaddedEncodingsRoundTripAndStopTheKernel)
{
    // Padded blocks in the middle of long valid runs: the kernel must leave
    // them to the scalar code and pick up after them.
    std::mt19937 random(7);
    for (VectorCodecs const* vector : runnable()) {
        for (Case const& c : kCases) {
            std::string text, expected;
            for (std::size_t part = 1; part < 200; part += 37) {
                std::string const data = randomBytes(random, part);
                std::string encoded((part + c.bytes - 1) / c.bytes * c.characters, '\0');
                c.encode(vector, &encoded[0], data.data(), static_cast<unsigned long>(part));
                text += encoded;
                expected += data;
            }
            Result const fast = run(c.decode, vector, text, text.size() / c.characters * c.bytes);
            EXPECT_EQ(fast.buffer.substr(0, fast.count), expected) << vector->name << " " << c.name;
            expectSame(c.decode, vector, text, text.size() / c.characters * c.bytes, c.name);
        }
    }
}

TEST(VectorCodecs, KernelsDoTheBulkOfCleanInput)
{
    // 480 bytes are whole blocks of every codec; their encoding is clean text.
    std::mt19937 random(1);
    std::string const data = randomBytes(random, 480);
    std::string text(1024, '\0'), bytes(1024, '\0');
    auto* out = reinterpret_cast<unsigned char*>(&text[0]);
    auto const* in = reinterpret_cast<unsigned char const*>(data.data());
    for (VectorCodecs const* vector : runnable()) {
        struct {
            VectorCodecs::Kernel encode, decode;
            std::size_t bytes, characters;
        } const kernels[] = {{vector->base16Encode, vector->base16Decode, 1, 2},
                             {vector->base32Encode, vector->base32Decode, 5, 8},
                             {vector->base64Encode, vector->base64Decode, 3, 4}};
        for (auto const& k : kernels) {
            std::size_t const blocks = 480 / k.bytes;
            std::size_t const encoded = k.encode(out, in, blocks);
            EXPECT_GE(encoded, blocks - 64 / k.characters) << vector->name;
            std::size_t const decoded = k.decode(reinterpret_cast<unsigned char*>(&bytes[0]), out, encoded);
            EXPECT_GE(decoded, encoded - 64 / k.characters) << vector->name;
            EXPECT_EQ(bytes.substr(0, decoded * k.bytes), data.substr(0, decoded * k.bytes)) << vector->name;
        }
    }
}
