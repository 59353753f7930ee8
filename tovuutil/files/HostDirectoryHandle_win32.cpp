#include "tovuutil/files/detail/HostFileSystem.h"

#include <windows.h>

#include <cerrno>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include <direct.h>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

// Windows has no handle-relative calls in its C runtime: a directory handle
// is a slot in this leaf's table holding the directory's path, and every
// name is joined to that path as it is. A reparse point (a link or a
// junction) is never entered or written through.
namespace tovu {
namespace detail {

namespace {

struct OpenDirectories {
    std::mutex lock;
    std::vector<std::string> paths; // "" marks a free slot
};

OpenDirectories& table()
{
    static OpenDirectories* directories = new OpenDirectories; // lives as long as the process
    return *directories;
}

std::string pathOf(int directory)
{
    OpenDirectories& t = table();
    std::lock_guard<std::mutex> guard(t.lock);
    if (directory < 0 || static_cast<std::size_t>(directory) >= t.paths.size())
        return std::string();
    return t.paths[static_cast<std::size_t>(directory)];
}

std::string join(int directory, std::string const& name)
{
    std::string const base = pathOf(directory);
    return base.empty() ? std::string() : base + "\\" + name;
}

int enter(std::string const& path)
{
    OpenDirectories& t = table();
    std::lock_guard<std::mutex> guard(t.lock);
    for (std::size_t i = 0; i < t.paths.size(); ++i) {
        if (t.paths[i].empty()) {
            t.paths[i] = path;
            return static_cast<int>(i);
        }
    }
    t.paths.push_back(path);
    return static_cast<int>(t.paths.size() - 1);
}

bool isReparsePoint(DWORD attributes)
{
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

int openDirectoryPath(std::string const& path, bool followLink)
{
    DWORD const attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        errno = ENOENT;
        return -1;
    }
    if (!followLink && isReparsePoint(attributes)) {
        errno = ELOOP;
        return -1;
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        errno = ENOTDIR;
        return -1;
    }
    return enter(path);
}

} // namespace

int openDirectory(std::string const& path, bool followLink) { return openDirectoryPath(path, followLink); }

int openDirectoryAt(int directory, std::string const& name)
{
    std::string const path = join(directory, name);
    if (path.empty()) {
        errno = EBADF;
        return -1;
    }
    return openDirectoryPath(path, false);
}

int openParentDirectory(int directory, NodeId const&)
{
    std::string path = pathOf(directory);
    std::string::size_type const slash = path.find_last_of("\\/");
    if (path.empty() || slash == std::string::npos) {
        errno = EBADF;
        return -1;
    }
    path.erase(slash == 2 && path[1] == ':' ? slash + 1 : slash);
    return openDirectoryPath(path, true);
}

int closeDirectory(int directory)
{
    OpenDirectories& t = table();
    std::lock_guard<std::mutex> guard(t.lock);
    if (directory < 0 || static_cast<std::size_t>(directory) >= t.paths.size()) {
        errno = EBADF;
        return -1;
    }
    t.paths[static_cast<std::size_t>(directory)].clear();
    return 0;
}

bool nodeId(int handle, bool isDirectory, NodeId& id)
{
    // The path stands for the identity: without handle-relative calls a
    // moved tree cannot be told apart anyway.
    if (isDirectory) {
        std::string const path = pathOf(handle);
        if (path.empty())
            return false;
        id.device = 0;
        id.node = std::hash<std::string>()(path);
        return true;
    }
    struct _stat64 info;
    if (_fstat64(handle, &info) != 0)
        return false;
    id.device = static_cast<unsigned long long>(info.st_dev);
    id.node = static_cast<unsigned long long>(info.st_ino);
    return true;
}

bool listDirectory(int directory, std::vector<TreeEntry>& entries)
{
    std::string const base = pathOf(directory);
    if (base.empty())
        return false;
    WIN32_FIND_DATAA data;
    HANDLE const search = FindFirstFileA((base + "\\*").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_FILE_NOT_FOUND;
    do {
        std::string name = data.cFileName;
        if (name == "." || name == "..")
            continue;
        EntryType const type = isReparsePoint(data.dwFileAttributes)                ? EntryType::Link
                               : (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) ? EntryType::Directory
                                                                                    : EntryType::Regular;
        entries.push_back({std::move(name), type});
    } while (FindNextFileA(search, &data));
    FindClose(search);
    return true;
}

int removeAt(int directory, std::string const& name, bool isDirectory)
{
    std::string const path = join(directory, name);
    if (path.empty()) {
        errno = EBADF;
        return -1;
    }
    // A directory link is removed as a directory, never emptied.
    DWORD const attributes = GetFileAttributesA(path.c_str());
    bool const directoryLink = isReparsePoint(attributes) && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return isDirectory || directoryLink ? _rmdir(path.c_str()) : _unlink(path.c_str());
}

int makeDirectoryAt(int directory, std::string const& name, int)
{
    std::string const path = join(directory, name);
    if (path.empty()) {
        errno = EBADF;
        return -1;
    }
    return _mkdir(path.c_str());
}

bool existsAt(int directory, std::string const& name)
{
    std::string const path = join(directory, name);
    return !path.empty() && GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

int openFileAt(int directory, std::string const& name, OpenAt how)
{
    std::string const path = join(directory, name);
    if (path.empty()) {
        errno = EBADF;
        return -1;
    }
    DWORD const attributes = GetFileAttributesA(path.c_str());
    if (how != OpenAt::ReadThroughLink && isReparsePoint(attributes)) {
        errno = ELOOP;
        return -1;
    }
    int flags = _O_BINARY;
    switch (how) {
    case OpenAt::Read:
    case OpenAt::ReadThroughLink: flags |= _O_RDONLY; break;
    case OpenAt::Overwrite: flags |= _O_WRONLY; break;
    case OpenAt::Create: flags |= _O_WRONLY | _O_CREAT | _O_TRUNC; break;
    }
    int const handle = _open(path.c_str(), flags, _S_IREAD | _S_IWRITE);
    if (handle < 0)
        return -1;
    struct _stat64 info;
    if (_fstat64(handle, &info) != 0 || (info.st_mode & _S_IFREG) == 0) {
        _close(handle);
        errno = EINVAL;
        return -1;
    }
    return handle;
}

} // namespace detail
} // namespace tovu
