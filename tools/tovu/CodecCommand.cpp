#include <tovuutil/tovuutil.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <vector>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include "CommandLine.h"
#include "Commands.h"
#include "WrapLines.h"

namespace tovu::cli {

namespace {

constexpr char kEncodeHelp[] =
    "usage: tovu encode [--wrap N] base16|base32|base64 [FILE|-]\n\n"
    "Encodes FILE (or standard input) to standard output, padded with '=', on one\n"
    "line, or with --wrap in lines of N characters (0: one line). Any size streams\n"
    "through in bounded memory.\n\n"
    "example: printf foo | tovu encode base64      prints Zm9v\n";

constexpr char kDecodeHelp[] =
    "usage: tovu decode base16|base32|base64 [FILE|-]\n\n"
    "Decodes FILE (or standard input) to standard output. Line ends are skipped;\n"
    "every other character is decoded as the library does, leniently. Fails with\n"
    "status 1 when the text's length is not a multiple of the block (2, 8 or 4).\n\n"
    "example: echo Zm9v | tovu decode base64       prints foo\n";

using Transform = unsigned long (*)(void*, void const*, unsigned long);
using Size = unsigned long (*)(unsigned long);

struct Codec {
    char const* name;
    unsigned long inputBlock; // bytes per encoded block
    unsigned long textBlock;  // characters per encoded block
    Size encodedLength;
    Transform encode;
    Size decodedLength;
    Transform decode;
};

constexpr Codec kCodecs[] = {
    {"base16", 1, 2, BaseEncode::Base16EncodeGetLength, BaseEncode::Base16Encode,
     BaseDecode::Base16DecodeGetLength, BaseDecode::Base16Decode},
    {"base32", 5, 8, BaseEncode::Base32EncodeGetLength, BaseEncode::Base32Encode,
     BaseDecode::Base32DecodeGetLength, BaseDecode::Base32Decode},
    {"base64", 3, 4, BaseEncode::Base64EncodeGetLength, BaseEncode::Base64Encode,
     BaseDecode::Base64DecodeGetLength, BaseDecode::Base64Decode},
};

// Bytes read at a time: a multiple of every block (1, 3, 5 and 2, 4, 8), so
// that only the last read leaves a partial block. Small enough that a chunk
// and its text stay in the second-level cache between the read, the codec and
// the write, which counts for more than the number of system calls.
constexpr std::size_t kChunk = 15 * 8 * 1024;

// Reads and writes whole buffers, reporting the first failure once.
class Stream {
public:
    // The chunks are the buffers: stdio's own would only copy the input once
    // more. (Nothing has been read from it yet; stdout may have been flushed,
    // so it keeps its buffer, which large writes bypass anyway.)
    Stream(char const* command, std::FILE* in) : command_(command), in_(in) { std::setvbuf(in_, nullptr, _IONBF, 0); }

    // Fills buffer up to its size; fewer bytes only at the end of the input.
    std::size_t read(char* buffer, std::size_t size)
    {
        std::size_t total = 0;
        while (total < size) {
            std::size_t const got = std::fread(buffer + total, 1, size - total, in_);
            total += got;
            if (got == 0)
                break;
        }
        if (std::ferror(in_))
            fail("read error", errno);
        return total;
    }

    void write(char const* data, std::size_t size)
    {
        if (wrap_ == 0)
            writeAsIs(data, size);
        else
            wrapLines(data, size, wrap_, column_, [this](char const* part, std::size_t length) { writeAsIs(part, length); });
    }

    void setWrap(std::size_t width) { wrap_ = width; }

    int close()
    {
        if (ok() && std::fflush(stdout) != 0)
            fail("write error", errno);
        return status_;
    }

    bool ok() const { return status_ == kOk; }
    void fail(std::string const& message)
    {
        if (ok())
            status_ = failure(command_, message);
    }

private:
    void writeAsIs(char const* data, std::size_t size)
    {
        if (ok() && size > 0 && std::fwrite(data, 1, size, stdout) != size)
            fail("write error", errno);
    }

    void fail(char const* what, int error)
    {
        // A reader that went away (`| head -c1`) is no failure worth a word.
        if (error == EPIPE)
            status_ = kInvalid;
        else
            fail(std::string(what) + ": " + std::strerror(error));
    }

    char const* command_;
    std::FILE* in_;
    int status_ = kOk;
    std::size_t wrap_ = 0; // line width of the output; 0: no line ends added
    std::size_t column_ = 0;
};

int encode(Codec const& codec, Stream& stream)
{
    std::vector<char> input(kChunk);
    std::vector<char> output(codec.encodedLength(kChunk));
    bool any = false;
    for (;;) {
        std::size_t const size = stream.read(input.data(), input.size());
        if (!stream.ok() || size == 0)
            break;
        any = true;
        unsigned long const written = codec.encode(output.data(), input.data(), static_cast<unsigned long>(size));
        stream.write(output.data(), written);
        if (size < input.size())
            break;
    }
    if (any)
        stream.write("\n", 1);
    return stream.close();
}

// Drops CR and LF in place; returns the new size. Encoded text has few line
// ends, so the kept runs between them are found with memchr and moved whole.
std::size_t dropLineEnds(char* text, std::size_t size)
{
    char* const end = text + size;
    auto next = [end](char* from, char c) {
        void* found = std::memchr(from, c, static_cast<std::size_t>(end - from));
        return found ? static_cast<char*>(found) : end;
    };
    char* lf = next(text, '\n');
    char* cr = next(text, '\r');
    char* read = text;
    char* write = text;
    while (read < end) {
        char* const stop = std::min(lf, cr);
        if (write != read) // (a copy onto itself would cost a pass over the chunk)
            std::memmove(write, read, static_cast<std::size_t>(stop - read));
        write += stop - read;
        if (stop == end)
            break;
        read = stop + 1;
        if (lf == stop)
            lf = next(read, '\n');
        if (cr == stop)
            cr = next(read, '\r');
    }
    return static_cast<std::size_t>(write - text);
}

int decode(Codec const& codec, Stream& stream)
{
    std::vector<char> text(kChunk + codec.textBlock);
    std::vector<char> output(codec.decodedLength(static_cast<unsigned long>(text.size() / codec.textBlock * codec.textBlock)));
    std::size_t pending = 0; // characters of a started block, kept at the front
    for (;;) {
        std::size_t const size = stream.read(text.data() + pending, kChunk);
        if (!stream.ok())
            break;
        std::size_t const available = pending + dropLineEnds(text.data() + pending, size);
        std::size_t const whole = available / codec.textBlock * codec.textBlock;
        unsigned long const written = codec.decode(output.data(), text.data(), static_cast<unsigned long>(whole));
        stream.write(output.data(), written);
        pending = available - whole;
        std::memmove(text.data(), text.data() + whole, pending);
        if (size < kChunk)
            break;
    }
    if (stream.ok() && pending != 0)
        stream.fail("the input's length is not a multiple of " + std::to_string(codec.textBlock) + " characters");
    return stream.close();
}

// "--wrap N": a line width of up to six digits.
bool readWidth(std::optional<std::string> const& text, std::size_t& width)
{
    width = 0;
    if (!text)
        return true;
    if (text->empty() || text->size() > 6 || text->find_first_not_of("0123456789") != std::string::npos)
        return false;
    width = std::stoul(*text);
    return true;
}

int run(char const* command, char const* help, Args const& arguments, bool encoding)
{
    CommandLine line;
    auto const done = encoding ? parseCommandLine(command, help, arguments, {{"--wrap", "line width"}}, line)
                               : parseCommandLine(command, help, arguments, {}, line);
    if (done)
        return *done;
    Args const& args = line.operands;
    std::size_t width = 0;
    if (!readWidth(line.value("--wrap"), width))
        return usageError(command, "'" + *line.value("--wrap") + "' is not a line width");
    if (args.empty())
        return usageError(command, "which codec: base16, base32 or base64?");
    if (args.size() > 2)
        return usageError(command, "unexpected argument '" + args[2] + "'");
    Codec const* codec = nullptr;
    for (auto const& candidate : kCodecs)
        if (args[0] == candidate.name)
            codec = &candidate;
    if (codec == nullptr)
        return usageError(command, "unknown codec '" + args[0] + "'");

    std::FILE* in = stdin;
    if (args.size() == 2 && args[1] != "-") {
        in = std::fopen(args[1].c_str(), "rb");
        if (in == nullptr)
            return failure(command, args[1] + ": " + std::strerror(errno));
    }
#ifdef _WIN32
    _setmode(_fileno(in), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    out().flush();
    Stream stream(command, in);
    stream.setWrap(width);
    int status = kOk;
    try {
        status = encoding ? encode(*codec, stream) : decode(*codec, stream);
    } catch (std::exception const& e) {
        status = failure(command, e.what());
    }
    if (in != stdin)
        std::fclose(in);
    return status;
}

} // namespace

int runEncode(Args const& args) { return run("encode", kEncodeHelp, args, true); }
int runDecode(Args const& args) { return run("decode", kDecodeHelp, args, false); }

} // namespace tovu::cli
