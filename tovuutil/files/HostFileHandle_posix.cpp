#include "tovuutil/files/detail/HostFileSystem.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <algorithm>
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

int openForUpdate(std::string const& path) { return open(path.c_str(), O_WRONLY | O_CLOEXEC); }

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

int reserveHandle(int handle, long long length)
{
    if (length <= 0)
        return 0;
    int const error = posix_fallocate(handle, 0, static_cast<off_t>(length));
    if (error == 0)
        return 0;
    if (error != EOPNOTSUPP && error != EINVAL) {
        errno = error;
        return -1;
    }
    // No allocation on this file system: grow the file with zeros past its
    // end, which claims the blocks as a write would.
    struct stat info;
    if (fstat(handle, &info) != 0)
        return -1;
    static char const zeros[4096] = {};
    for (off_t at = info.st_size; at < static_cast<off_t>(length);) {
        std::size_t const count = static_cast<std::size_t>(std::min<off_t>(static_cast<off_t>(length) - at, 4096));
        ssize_t const n = pwrite(handle, zeros, count, at);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            int const saved = errno;
            if (ftruncate(handle, info.st_size) != 0) {
                // the zeros stay; the old content is unchanged
            }
            errno = saved;
            return -1;
        }
        at += n;
    }
    return 0;
}

int resizeHandle(int handle, long long length) { return ftruncate(handle, static_cast<off_t>(length)); }

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
    // A short fixed name beside the target: a target name near the length
    // limit must not make the temporary name too long.
    std::string::size_type const slash = target.rfind('/');
    std::string pattern = (slash == std::string::npos ? std::string() : target.substr(0, slash + 1)) + ".tovu.XXXXXX";
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

} // namespace detail
} // namespace tovu
