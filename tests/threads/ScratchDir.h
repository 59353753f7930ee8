#ifndef TOVU_TESTS_THREADS_SCRATCHDIR_H
#define TOVU_TESTS_THREADS_SCRATCHDIR_H

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>

namespace tovutest {

// A fresh directory below the working directory, removed with its content;
// portable, so these tests build for every host.
class ScratchDir {
public:
    explicit ScratchDir(std::string const& stem)
    {
        static std::atomic<int> counter{0};
        path_ = (std::filesystem::current_path() / (stem + "_" + std::to_string(counter++))).string();
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~ScratchDir()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    std::string const& path() const { return path_; }
    std::string file(std::string const& name) const { return (std::filesystem::path(path_) / name).string(); }

private:
    std::string path_;
};

inline void writeText(std::string const& path, std::string const& text)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}

inline std::string readText(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace tovutest

#endif
