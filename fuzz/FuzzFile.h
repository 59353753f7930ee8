#ifndef TOVU_FUZZ_FUZZFILE_H
#define TOVU_FUZZ_FUZZFILE_H

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <unistd.h>

// The fuzz input as a file of this process, named with the given suffix.
inline std::string fuzzFile(std::uint8_t const* data, std::size_t size, char const* suffix)
{
    std::string const path = "fuzz_" + std::to_string(getpid()) + suffix;
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr)
        std::abort();
    if (size > 0)
        std::fwrite(data, 1, size, file);
    std::fclose(file);
    return path;
}

// A broken oracle: stop the run with the reason.
inline void fuzzCheck(bool holds, char const* what)
{
    if (!holds) {
        std::fprintf(stderr, "oracle failed: %s\n", what);
        std::abort();
    }
}

#endif
