#ifndef TOVU_TESTS_FRAMEWORK_TREESNAPSHOT_H
#define TOVU_TESTS_FRAMEWORK_TREESNAPSHOT_H

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace tovutest {

// Everything below a directory: relative name -> "dir", "link:<target>" or
// the bytes of a file. Links are recorded, never followed.
inline std::map<std::string, std::string> snapshot(std::string const& root)
{
    namespace fs = std::filesystem;
    std::map<std::string, std::string> entries;
    for (auto it = fs::recursive_directory_iterator(root); it != fs::recursive_directory_iterator(); ++it) {
        std::string const name = fs::relative(it->path(), root).string();
        if (it->is_symlink()) {
            entries[name] = "link:" + fs::read_symlink(it->path()).string();
        } else if (it->is_directory()) {
            entries[name] = "dir";
        } else {
            std::ifstream in(it->path(), std::ios::binary);
            std::ostringstream bytes;
            bytes << in.rdbuf();
            entries[name] = bytes.str();
        }
    }
    return entries;
}

#ifndef _WIN32
// Runs body in a child process whose files cannot grow beyond limit bytes
// (a full disk; the signal is ignored so writes fail with EFBIG); the
// child's exit code, or -1 when it did not end normally.
inline int withFileSizeLimit(rlim_t limit, std::function<int()> const& body)
{
    pid_t const child = fork();
    if (child < 0)
        return -1;
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit const bound{limit, limit};
        setrlimit(RLIMIT_FSIZE, &bound);
        _exit(body());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
#endif

} // namespace tovutest

#endif
