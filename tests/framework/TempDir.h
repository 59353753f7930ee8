#ifndef TOVU_TESTS_FRAMEWORK_TEMPDIR_H
#define TOVU_TESTS_FRAMEWORK_TEMPDIR_H

#include <cstdlib>
#include <string>

#include <unistd.h>

namespace tovutest {

// A fresh directory below the working directory, removed with its content.
class TempDir {
public:
    TempDir()
    {
        char name[] = "tmp_XXXXXX";
        path_ = std::string(mkdtemp(name));
        char* cwd = getcwd(nullptr, 0);
        path_ = std::string(cwd) + "/" + path_;
        std::free(cwd);
    }
    ~TempDir() { std::system(("rm -rf '" + path_ + "'").c_str()); }
    std::string const& path() const { return path_; }

private:
    std::string path_;
};

} // namespace tovutest

#endif
