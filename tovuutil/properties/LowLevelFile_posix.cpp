#include "tovuutil/properties/detail/LowLevelFile.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tovu {
namespace detail {

int openForReading(std::string const& path) { return open(path.c_str(), O_RDONLY | O_CLOEXEC); }

int openForWriting(std::string const& path, bool append)
{
    return open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | (append ? O_APPEND : O_TRUNC), S_IRUSR | S_IWUSR);
}

int closeHandle(int handle) { return close(handle); }

long writeHandle(int handle, char const* data, unsigned long length)
{
    unsigned long done = 0;
    while (done < length) {
        ssize_t const n = write(handle, data + done, length - done);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return -1;
        }
        done += static_cast<unsigned long>(n);
    }
    return static_cast<long>(done);
}

long readHandle(int handle, char* data, unsigned long length)
{
    for (;;) {
        ssize_t const n = read(handle, data, length);
        if (n >= 0 || errno != EINTR)
            return static_cast<long>(n);
    }
}

long long tellHandle(int handle) { return lseek(handle, 0, SEEK_CUR); }

long long seekHandle(int handle, long long position) { return lseek(handle, position, SEEK_SET); }

int commitHandle(int handle) { return fsync(handle); }

void setNormalAttributes(std::string const&) {}

std::string realTarget(std::string const& target)
{
    // Follow the chain of links by hand: the final file may not exist yet.
    std::string current = target;
    for (int hops = 0; hops < 40; ++hops) {
        std::vector<char> buffer(PATH_MAX + 1);
        ssize_t const n = readlink(current.c_str(), buffer.data(), buffer.size() - 1);
        if (n < 0)
            return current;
        std::string link(buffer.data(), static_cast<std::size_t>(n));
        if (!link.empty() && link[0] != '/') {
            std::string::size_type const slash = current.rfind('/');
            link = (slash == std::string::npos ? std::string() : current.substr(0, slash + 1)) + link;
        }
        current = link;
    }
    return current;
}

int createSibling(std::string const& target, std::string& siblingPath)
{
    std::string pattern = target + ".XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    int const handle = mkostemp(name.data(), O_CLOEXEC);
    if (handle >= 0)
        siblingPath = name.data();
    return handle;
}

void copyPermissions(std::string const& target, int siblingHandle)
{
    struct stat info;
    mode_t const mode = stat(target.c_str(), &info) == 0 ? (info.st_mode & 07777) : (S_IRUSR | S_IWUSR);
    fchmod(siblingHandle, mode);
}

int replaceFile(std::string const& sibling, std::string const& target)
{
    return std::rename(sibling.c_str(), target.c_str());
}

int removePath(std::string const& path) { return unlink(path.c_str()); }

} // namespace detail
} // namespace tovu
