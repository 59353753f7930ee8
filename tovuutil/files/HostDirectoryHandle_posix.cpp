#include "tovuutil/files/detail/HostFileSystem.h"

#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tovu {
namespace detail {

namespace {
constexpr int kDirectoryFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

NodeId idOf(struct stat const& info)
{
    return NodeId{static_cast<unsigned long long>(info.st_dev), static_cast<unsigned long long>(info.st_ino)};
}
} // namespace

int openDirectory(std::string const& path, bool followLink)
{
    return open(path.c_str(), kDirectoryFlags | (followLink ? 0 : O_NOFOLLOW));
}

int openDirectoryAt(int directory, std::string const& name)
{
    return openat(directory, name.c_str(), kDirectoryFlags | O_NOFOLLOW);
}

int openParentDirectory(int directory, NodeId const& expected)
{
    int const parent = openat(directory, "..", kDirectoryFlags);
    if (parent < 0)
        return -1;
    struct stat info;
    if (fstat(parent, &info) != 0 || !(idOf(info) == expected)) {
        close(parent);
        errno = ESTALE;
        return -1;
    }
    return parent;
}

int closeDirectory(int directory) { return close(directory); }

bool nodeId(int handle, bool, NodeId& id)
{
    struct stat info;
    if (fstat(handle, &info) != 0)
        return false;
    id = idOf(info);
    return true;
}

bool listDirectory(int directory, std::vector<TreeEntry>& entries)
{
    // The stream takes its own handle: closing it must not close ours.
    int const copy = openat(directory, ".", kDirectoryFlags);
    if (copy < 0)
        return false;
    DIR* stream = fdopendir(copy);
    if (stream == nullptr) {
        close(copy);
        return false;
    }
    errno = 0;
    while (dirent* entry = readdir(stream)) {
        std::string name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        unsigned char type = entry->d_type;
        if (type == DT_UNKNOWN) {
            struct stat info;
            if (fstatat(directory, entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0)
                type = S_ISDIR(info.st_mode) ? DT_DIR : S_ISLNK(info.st_mode) ? DT_LNK
                                                      : S_ISREG(info.st_mode) ? DT_REG
                                                                              : DT_UNKNOWN;
        }
        EntryType const kind = type == DT_DIR ? EntryType::Directory
                               : type == DT_LNK ? EntryType::Link
                               : type == DT_REG ? EntryType::Regular
                                                : EntryType::Other;
        entries.push_back({std::move(name), kind});
        errno = 0;
    }
    bool const complete = errno == 0;
    closedir(stream);
    return complete;
}

int removeAt(int directory, std::string const& name, bool isDirectory)
{
    return unlinkat(directory, name.c_str(), isDirectory ? AT_REMOVEDIR : 0);
}

int makeDirectoryAt(int directory, std::string const& name, int mode)
{
    return mkdirat(directory, name.c_str(), static_cast<mode_t>(mode));
}

bool existsAt(int directory, std::string const& name)
{
    struct stat info;
    return fstatat(directory, name.c_str(), &info, AT_SYMLINK_NOFOLLOW) == 0;
}

int openFileAt(int directory, std::string const& name, OpenAt how)
{
    int flags = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    switch (how) {
    case OpenAt::Read: flags |= O_RDONLY | O_NOFOLLOW; break;
    case OpenAt::ReadThroughLink: flags |= O_RDONLY; break;
    case OpenAt::Overwrite: flags |= O_WRONLY | O_NOFOLLOW; break;
    case OpenAt::Create: flags |= O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW; break;
    }
    int const handle = openat(directory, name.c_str(), flags, S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH);
    if (handle < 0)
        return -1;
    struct stat info {};
    if (fstat(handle, &info) != 0 || !S_ISREG(info.st_mode)) {
        int const error = S_ISDIR(info.st_mode) ? EISDIR : EINVAL;
        close(handle);
        errno = error;
        return -1;
    }
    // Non-blocking only so that a FIFO swapped in cannot stall the open.
    fcntl(handle, F_SETFL, fcntl(handle, F_GETFL) & ~O_NONBLOCK);
    return handle;
}

} // namespace detail
} // namespace tovu
