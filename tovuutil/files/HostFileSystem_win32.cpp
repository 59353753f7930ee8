#include "tovuutil/files/detail/HostFileSystem.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <windows.h>

#include <direct.h>
#include <io.h>
#include <sys/stat.h>
#include <sys/types.h>

namespace tovu {
namespace detail {

char pathSeparator() { return '\\'; }
char foreignSeparator() { return '/'; }

bool fullPath(std::string const& path, std::string& absolute)
{
    char* buffer = _fullpath(nullptr, path.c_str(), 260);
    if (buffer == nullptr)
        return false;
    absolute = buffer;
    std::free(buffer);
    return true;
}

bool currentDirectory(std::string& directory)
{
    char buffer[261];
    if (_getcwd(buffer, sizeof buffer) == nullptr)
        return false;
    directory = buffer;
    return true;
}

int currentDrive() { return _getdrive(); }
int changeDrive(int drive) { return _chdrive(drive); }

std::string drivePart(std::string const& path)
{
    char drive[260] = {0};
    _splitpath(path.c_str(), drive, nullptr, nullptr, nullptr);
    return drive;
}

int changeDirectory(std::string const& path) { return _chdir(path.c_str()); }
int removeFile(std::string const& path) { return std::remove(path.c_str()); }
int removeDirectory(std::string const& path) { return _rmdir(path.c_str()); }
int makeDirectory(std::string const& path, int) { return _mkdir(path.c_str()); }
int accessPath(std::string const& path, int mode) { return _access(path.c_str(), mode); }
int changeFileMode(std::string const& path, int mode) { return _chmod(path.c_str(), mode); }

namespace {
void fill(struct _stat64 const& info, PathStatus& status)
{
    status.isDirectory = (info.st_mode & _S_IFDIR) != 0;
    status.isRegular = (info.st_mode & _S_IFREG) != 0;
    status.links = static_cast<unsigned long>(info.st_nlink);
    status.size = info.st_size;
    status.modified = static_cast<std::time_t>(info.st_mtime);
}
} // namespace

int statPath(std::string const& path, PathStatus& status)
{
    struct _stat64 info;
    if (_stat64(path.c_str(), &info) != 0)
        return -1;
    fill(info, status);
    return 0;
}

int linkStatus(std::string const& path, PathStatus& status)
{
    DWORD const attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        errno = ENOENT;
        return -1;
    }
    if (attributes & FILE_ATTRIBUTE_REPARSE_POINT) {
        status = PathStatus();
        status.isLink = true;
        return 0;
    }
    return statPath(path, status);
}

int handleStatus(int handle, PathStatus& status)
{
    struct _stat64 info;
    if (_fstat64(handle, &info) != 0)
        return -1;
    fill(info, status);
    return 0;
}

std::tm localTime(std::time_t time)
{
    std::tm result{};
    localtime_s(&result, &time);
    return result;
}

bool readDirectory(std::string const& path, std::vector<DirectoryEntry>& entries)
{
    struct _finddata_t data;
    std::string const pattern = path + "\\*";
    intptr_t handle = _findfirst(pattern.c_str(), &data);
    if (handle == -1)
        return false;
    do {
        entries.push_back({data.name, (data.attrib & _A_SUBDIR) != 0});
    } while (_findnext(handle, &data) == 0);
    _findclose(handle);
    return true;
}

} // namespace detail
} // namespace tovu
