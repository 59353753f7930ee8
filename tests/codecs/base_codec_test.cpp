#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <stdexcept>
#include <string>

#include <tovuutil/tovuutil.h>

namespace {

using Encoder = unsigned long (*)(void*, void const*, unsigned long);
using Length = unsigned long (*)(unsigned long);

std::string encode(Encoder encoder, Length length, std::string const& in)
{
    std::string out(length(in.size()), '?');
    unsigned long n = encoder(&out[0], in.data(), in.size());
    EXPECT_EQ(n, out.size());
    return out;
}

// The decoded bytes (as many as reported) of a text.
std::string decode(Encoder decoder, Length length, std::string const& in)
{
    std::string out(length(in.size()) + 1, '?');
    unsigned long n = decoder(&out[0], in.data(), in.size());
    EXPECT_LE(n, out.size() - 1);
    return out.substr(0, n);
}

std::string b16(std::string const& s) { return encode(BaseEncode::Base16Encode, BaseEncode::Base16EncodeGetLength, s); }
std::string b32(std::string const& s) { return encode(BaseEncode::Base32Encode, BaseEncode::Base32EncodeGetLength, s); }
std::string b64(std::string const& s) { return encode(BaseEncode::Base64Encode, BaseEncode::Base64EncodeGetLength, s); }
std::string d16(std::string const& s) { return decode(BaseDecode::Base16Decode, BaseDecode::Base16DecodeGetLength, s); }
std::string d32(std::string const& s) { return decode(BaseDecode::Base32Decode, BaseDecode::Base32DecodeGetLength, s); }
std::string d64(std::string const& s) { return decode(BaseDecode::Base64Decode, BaseDecode::Base64DecodeGetLength, s); }

void expectError(std::function<void()> call, std::string const& message)
{
    try {
        call();
        ADD_FAILURE() << "no exception, expected " << message;
    } catch (std::runtime_error const& e) {
        EXPECT_EQ(std::string(e.what()), message);
    }
}

} // namespace

TEST(BaseCodec, Rfc4648Vectors)
{
    std::string const in[] = {"", "f", "fo", "foo", "foob", "fooba", "foobar"};
    std::string const base64[] = {"", "Zg==", "Zm8=", "Zm9v", "Zm9vYg==", "Zm9vYmE=", "Zm9vYmFy"};
    std::string const base32[] = {"",         "MY======",         "MZXQ====",        "MZXW6===",
                                  "MZXW6YQ=", "MZXW6YTB",         "MZXW6YTBOI======"};
    std::string const base16[] = {"", "66", "666F", "666F6F", "666F6F62", "666F6F6261", "666F6F626172"};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(b64(in[i]), base64[i]);
        EXPECT_EQ(b32(in[i]), base32[i]);
        EXPECT_EQ(b16(in[i]), base16[i]);
        EXPECT_EQ(d64(base64[i]), in[i]);
        EXPECT_EQ(d32(base32[i]), in[i]);
        EXPECT_EQ(d16(base16[i]), in[i]);
    }
}

TEST(BaseCodec, LengthsAndCaseInsensitiveDecoding)
{
    EXPECT_EQ(BaseEncode::Base64EncodeGetLength(1), 4u);
    EXPECT_EQ(BaseEncode::Base64EncodeGetLength(3), 4u);
    EXPECT_EQ(BaseEncode::Base64EncodeGetLength(4), 8u);
    EXPECT_EQ(BaseEncode::Base32EncodeGetLength(6), 16u);
    EXPECT_EQ(BaseEncode::Base16EncodeGetLength(5), 10u);
    EXPECT_EQ(BaseDecode::Base32DecodeGetLength(16), 10u);
    EXPECT_EQ(BaseDecode::Base64DecodeGetLength(8), 6u);
    EXPECT_EQ(BaseDecode::Base16DecodeGetLength(0), 0u);

    EXPECT_EQ(b16(std::string("\x0A\xFF", 2)), "0AFF");
    EXPECT_EQ(d16("0aff"), std::string("\x0A\xFF", 2));
    EXPECT_EQ(d32("my======"), "f");
    EXPECT_EQ(d32("mzxw6ytboi======"), "foobar");
}

TEST(BaseCodec, PadsDecideTheByteCountOfEachBlock)
{
    // Base32: 1, 3, 4 and 6 trailing pads stand for 4, 3, 2 and 1 bytes.
    EXPECT_EQ(d32("MZXW6YQ=").size(), 4u);
    EXPECT_EQ(d32("MZXW6===").size(), 3u);
    EXPECT_EQ(d32("MZXQ====").size(), 2u);
    EXPECT_EQ(d32("MY======").size(), 1u);
    // Only the chain from the back counts: a pad at the 7th place alone changes nothing.
    EXPECT_EQ(d32("MZXW6Y=A").size(), 5u);
    // Base64: a pad in 3rd place counts only when the 4th is one too.
    EXPECT_EQ(d64("Zg=A").size(), 3u);
    // Padded blocks in the middle are decoded as such; the next block follows on.
    EXPECT_EQ(d64("Zg==Zm8="), "ffo");
    EXPECT_EQ(d32("MY======MY======"), "ff");
}

TEST(BaseCodec, ForeignCharactersFallAsTheyFall)
{
    // Value 255 for anything outside the alphabet, bytes >= 128 included.
    EXPECT_EQ(d16("G0"), std::string(1, char(0xF0)));
    EXPECT_EQ(d16("0G"), std::string(1, char(0xFF)));
    EXPECT_EQ(d16("\xC3\xA4"), std::string(1, char(0xFF)));
    // Base64 "!AAA": 255 << 2 cut to a byte, then zeros.
    EXPECT_EQ(d64("!AAA"), std::string("\xFC\x00\x00", 3));
    EXPECT_EQ(d64("A!AA"), std::string("\x0F\xF0\x00", 3));
    EXPECT_EQ(d64("AA!A"), std::string("\x00\x3F\xC0", 3));
    EXPECT_EQ(d64("AAA\x80"), std::string("\x00\x00\xFF", 3));
    // A pad in the middle is its value 64.
    EXPECT_EQ(d64("A=AA"), std::string("\x04\x00\x00", 3));
    // Base32: 255 unmasked in every formula.
    EXPECT_EQ(d32(" AAAAAAA"), std::string("\xF8\x00\x00\x00\x00", 5));
    EXPECT_EQ(d32("A AAAAAA"), std::string("\x3F\xC0\x00\x00\x00", 5));
    EXPECT_EQ(d32("AA AAAAA"), std::string("\x00\xFE\x00\x00\x00", 5));
    EXPECT_EQ(d32("AAAAAA\xFF" "A"), std::string("\x00\x00\x00\x1F\xE0", 5));
}

TEST(BaseCodec, BadLengthsAndNullBuffers)
{
    char buffer[16];
    expectError([] { BaseDecode::Base16DecodeGetLength(3); }, "Invalid source, size is not a multiple of 2");
    expectError([] { BaseDecode::Base32DecodeGetLength(12); }, "Invalid source, size is not a multiple of 8");
    expectError([] { BaseDecode::Base64DecodeGetLength(5); }, "Invalid source, size is not a multiple of 4");
    expectError([&] { BaseDecode::Base16Decode(buffer, "abc", 3); }, "Invalid source, size is not a multiple of 2");
    expectError([&] { BaseDecode::Base32Decode(buffer, "AAAA", 4); }, "Invalid source, size is not a multiple of 8");
    expectError([&] { BaseDecode::Base64Decode(buffer, "AAAAA", 5); }, "Invalid source, size is not a multiple of 4");
    expectError([&] { BaseDecode::Base64Decode(buffer, nullptr, 4); }, "Invalid parameter");
    expectError([&] { BaseDecode::Base32Decode(nullptr, "AAAAAAAA", 8); }, "Invalid parameter");
    expectError([&] { BaseDecode::Base16Decode(buffer, nullptr, 0); }, "Invalid parameter");
    expectError([&] { BaseEncode::Base64Encode(nullptr, "a", 1); }, "Invalid parameter");
    expectError([&] { BaseEncode::Base32Encode(buffer, nullptr, 1); }, "Invalid parameter");
    expectError([&] { BaseEncode::Base16Encode(nullptr, nullptr, 0); }, "Invalid parameter");
    EXPECT_EQ(BaseEncode::Base64Encode(buffer, "", 0), 0u);
    EXPECT_EQ(BaseDecode::Base32Decode(buffer, "", 0), 0u);
}

TEST(BaseCodec, RandomDataRoundTrips)
{
    std::mt19937 random(4648);
    for (int round = 0; round < 500; ++round) {
        std::string data(random() % 300, '\0');
        for (char& c : data)
            c = static_cast<char>(random());
        EXPECT_EQ(d64(b64(data)), data);
        EXPECT_EQ(d32(b32(data)), data);
        EXPECT_EQ(d16(b16(data)), data);
    }
}
