#include "InputCopy.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <random>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace tovu::cli {

InputCopy::~InputCopy()
{
    if (!path_.empty())
        std::remove(path_.c_str());
}

bool InputCopy::make(std::string& path, std::string& reason)
{
    std::error_code error;
    auto const directory = std::filesystem::temp_directory_path(error);
    if (error) {
        reason = error.message();
        return false;
    }
    std::random_device random;
    path_ = (directory / ("tovu-input-" + std::to_string(random()) + std::to_string(random()) + ".ini")).string();
    std::FILE* file = std::fopen(path_.c_str(), "wbx"); // never an existing file or link
    if (file == nullptr) {
        reason = std::strerror(errno);
        path_.clear();
        return false;
    }
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY); // the bytes as they are, CR LF included
#endif
    char buffer[65536];
    std::size_t got;
    bool ok = true;
    while ((got = std::fread(buffer, 1, sizeof buffer, stdin)) > 0)
        ok = std::fwrite(buffer, 1, got, file) == got && ok;
    ok = !std::ferror(stdin) && ok;
    ok = std::fclose(file) == 0 && ok;
    if (!ok)
        reason = "standard input cannot be copied";
    path = path_;
    return ok;
}

} // namespace tovu::cli
