#include "tovuutil/files/detail/HostFileSystem.h"

#include <windows.h>

#include <cerrno>
#include <string>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

namespace tovu {
namespace detail {

int openForReading(std::string const& path) { return _open(path.c_str(), _O_RDONLY | _O_BINARY); }

int openForWriting(std::string const& path, bool append)
{
    return _open(path.c_str(), _O_WRONLY | _O_CREAT | _O_BINARY | (append ? _O_APPEND : _O_TRUNC),
                 _S_IREAD | _S_IWRITE);
}

int openForUpdate(std::string const& path) { return _open(path.c_str(), _O_WRONLY | _O_BINARY); }

int closeHandle(int handle) { return _close(handle); }

long writeHandle(int handle, char const* data, unsigned long length)
{
    unsigned long done = 0;
    while (done < length) {
        int const n = _write(handle, data + done, static_cast<unsigned>(length - done));
        if (n < 0)
            return -1;
        done += static_cast<unsigned long>(n);
    }
    return static_cast<long>(done);
}

long readHandle(int handle, char* data, unsigned long length)
{
    return _read(handle, data, static_cast<unsigned>(length));
}

long long tellHandle(int handle) { return _telli64(handle); }
long long seekHandle(int handle, long long position) { return _lseeki64(handle, position, SEEK_SET); }
int commitHandle(int handle) { return _commit(handle); }

int reserveHandle(int handle, long long length)
{
    // Growing the file claims its space; the content before the old end stays.
    long long const size = _filelengthi64(handle);
    if (size < 0)
        return -1;
    return length > size ? (_chsize_s(handle, length) == 0 ? 0 : -1) : 0;
}

int resizeHandle(int handle, long long length) { return _chsize_s(handle, length) == 0 ? 0 : -1; }

void setNormalAttributes(std::string const& path) { SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL); }

std::string realTarget(std::string const& target) { return target; }

int createSibling(std::string const& target, std::string& siblingPath)
{
    // A short name beside the target, so that long target names leave room.
    std::string::size_type const slash = target.find_last_of("\\/");
    std::string const folder = slash == std::string::npos ? std::string() : target.substr(0, slash + 1);
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string const name =
            folder + "~tovu" + std::to_string(GetCurrentProcessId() % 100000) + "_" + std::to_string(attempt) + ".tmp";
        int const handle = _open(name.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
        if (handle >= 0) {
            siblingPath = name;
            return handle;
        }
        if (errno != EEXIST)
            break;
    }
    return -1;
}

void copyPermissions(std::string const&, int) {}

int replaceFile(std::string const& sibling, std::string const& target)
{
    return MoveFileExA(sibling.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) ? 0 : -1;
}

} // namespace detail
} // namespace tovu
