#ifndef TOVU_TESTS_FRAMEWORK_TEMPDIR_H
#define TOVU_TESTS_FRAMEWORK_TEMPDIR_H

#include <filesystem>
#include <string>
#include <system_error>

#include "HostPaths.h"

namespace tovutest {

// A fresh directory below the working directory, removed with its content.
class TempDir {
public:
    TempDir() : path_(makeScratchDir()) {}
    ~TempDir()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    std::string const& path() const { return path_; }

private:
    std::string path_;
};

} // namespace tovutest

#endif
