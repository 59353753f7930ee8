#include "Terminal.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

namespace tovu::cli {

namespace {

// Unicode code points of Windows-1252's bytes 0x80..0x9F; 0 marks the five
// bytes the code page leaves undefined (they are passed through as U+0080..).
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t codePointOf(unsigned char byte)
{
    if (byte >= 0x80 && byte < 0xA0 && kHigh[byte - 0x80] != 0)
        return kHigh[byte - 0x80];
    return byte;
}

int byteOf(char32_t code)
{
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF))
        return static_cast<int>(code);
    for (std::size_t i = 0; i < kHigh.size(); ++i)
        if (kHigh[i] == code || (kHigh[i] == 0 && code == 0x80 + i))
            return static_cast<int>(0x80 + i);
    return -1;
}

void appendUtf8(std::string& text, char32_t code)
{
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | (code >> 6));
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (code >> 12));
        text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

// Decodes UTF-8 strictly (no overlong forms, no surrogates); false when the
// text is not UTF-8.
bool decodeUtf8(std::string const& text, std::u32string& codes)
{
    for (std::size_t i = 0; i < text.size();) {
        unsigned char const lead = static_cast<unsigned char>(text[i]);
        std::size_t length = lead < 0x80 ? 1 : lead >= 0xC2 && lead < 0xE0 ? 2 : lead >= 0xE0 && lead < 0xF0 ? 3
                                              : lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
        if (length == 0 || i + length > text.size())
            return false;
        char32_t code = length == 1 ? lead : lead & (0x7F >> length);
        for (std::size_t k = 1; k < length; ++k) {
            unsigned char const next = static_cast<unsigned char>(text[i + k]);
            if ((next & 0xC0) != 0x80)
                return false;
            code = (code << 6) | (next & 0x3F);
        }
        char32_t const smallest[] = {0, 0, 0x80, 0x800, 0x10000};
        if (code < smallest[length] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
            return false;
        codes += code;
        i += length;
    }
    return true;
}

// Passes the library's Windows-1252 log lines on to the terminal as UTF-8.
class Utf8Forwarder : public std::streambuf {
public:
    explicit Utf8Forwarder(std::streambuf* target) : target_(target) {}

protected:
    int_type overflow(int_type c) override
    {
        if (traits_type::eq_int_type(c, traits_type::eof()))
            return traits_type::not_eof(c);
        char const byte = traits_type::to_char_type(c);
        return xsputn(&byte, 1) == 1 ? c : traits_type::eof();
    }
    std::streamsize xsputn(char const* text, std::streamsize size) override
    {
        std::string const converted = toTerminal(std::string(text, static_cast<std::size_t>(size)));
        auto const length = static_cast<std::streamsize>(converted.size());
        return target_->sputn(converted.data(), length) == length ? size : 0;
    }
    int sync() override { return target_->pubsync(); }

private:
    std::streambuf* target_;
};

} // namespace

std::ostream& out()
{
    // The library's console appender holds std::cout; from the first call on
    // it writes to standard error, and the tool keeps standard output to
    // itself. The forwarder is never deleted: the library may still log while
    // the process ends.
    static auto* const forwarder = new Utf8Forwarder(std::cerr.rdbuf());
    static std::ostream own(std::cout.rdbuf(forwarder));
    return own;
}

std::ostream& err() { return std::cerr; }

std::string fromTerminal(std::string const& text)
{
    std::u32string codes;
    if (!decodeUtf8(text, codes))
        return text;
    std::string result;
    result.reserve(codes.size());
    for (char32_t code : codes) {
        int const byte = byteOf(code);
        result += byte < 0 ? '?' : static_cast<char>(byte);
    }
    return result;
}

std::string toTerminal(std::string const& text)
{
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    for (char c : text)
        appendUtf8(result, codePointOf(static_cast<unsigned char>(c)));
    return result;
}

int usageError(std::string const& command, std::string const& message)
{
    err() << "tovu: " << command << ": " << message << "\nTry 'tovu " << command << " --help'.\n";
    return kUsage;
}

int failure(std::string const& command, std::string const& message)
{
    err() << "tovu: " << command << ": " << message << '\n';
    return kInvalid;
}

int finish(int status)
{
    if (out().flush() && std::fflush(stdout) == 0)
        return status;
    int const error = errno;
    if (error == EPIPE)
        return kInvalid;
    err() << "tovu: write error: " << std::strerror(error) << '\n';
    return kInvalid;
}

} // namespace tovu::cli
