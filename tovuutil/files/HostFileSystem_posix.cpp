#include "tovuutil/files/detail/HostFileSystem.h"

#include <cerrno>
#include <cstdio>
#include <vector>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tovu {
namespace detail {

char pathSeparator() { return '/'; }
char foreignSeparator() { return '\\'; }

namespace {
// "." and ".." and repeated separators collapse lexically; links are not
// resolved and the path need not exist. A leading "//" (a network name) and a
// trailing separator are kept.
std::string normalise(std::string const& path)
{
    bool const network = path.size() > 2 && path[0] == '/' && path[1] == '/' && path[2] != '/';
    bool const trailing = path.size() > 1 && path.back() == '/';
    std::vector<std::string> parts;
    std::string::size_type start = 0;
    while (start <= path.size()) {
        std::string::size_type end = path.find('/', start);
        if (end == std::string::npos)
            end = path.size();
        std::string const part = path.substr(start, end - start);
        if (part == "..") {
            if (!parts.empty() && !(network && parts.size() == 1))
                parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
        start = end + 1;
    }
    std::string result = network && !parts.empty() ? "/" : ""; // "//" alone names no server
    for (auto const& part : parts)
        result += "/" + part;
    if (result.empty())
        return "/";
    if (trailing)
        result += "/";
    return result;
}
} // namespace

bool fullPath(std::string const& path, std::string& absolute)
{
    if (!path.empty() && path[0] == '/') {
        absolute = normalise(path);
        return true;
    }
    std::string cwd;
    if (!currentDirectory(cwd))
        return false;
    absolute = normalise(cwd + "/" + path);
    return true;
}

bool currentDirectory(std::string& directory)
{
    std::vector<char> buffer(256);
    while (getcwd(buffer.data(), buffer.size()) == nullptr) {
        if (errno != ERANGE || buffer.size() > (1u << 20))
            return false;
        buffer.resize(buffer.size() * 2);
    }
    directory = buffer.data();
    return true;
}

int currentDrive() { return 0; }
int changeDrive(int) { return -1; }
std::string drivePart(std::string const&) { return std::string(); }

int changeDirectory(std::string const& path) { return chdir(path.c_str()); }
int removeFile(std::string const& path) { return std::remove(path.c_str()); }
int removeDirectory(std::string const& path) { return rmdir(path.c_str()); }
int makeDirectory(std::string const& path, int mode) { return mkdir(path.c_str(), static_cast<mode_t>(mode)); }

int accessPath(std::string const& path, int mode)
{
    int host = F_OK;
    if (mode & 2)
        host |= W_OK;
    if (mode & 4)
        host |= R_OK;
    if (mode & ~6) {
        errno = EINVAL;
        return -1;
    }
    return access(path.c_str(), host);
}

int changeFileMode(std::string const& path, int mode) { return chmod(path.c_str(), static_cast<mode_t>(mode)); }

namespace {
void fill(struct stat const& info, PathStatus& status)
{
    status.isDirectory = S_ISDIR(info.st_mode);
    status.isLink = S_ISLNK(info.st_mode);
    status.isRegular = S_ISREG(info.st_mode);
    status.links = static_cast<unsigned long>(info.st_nlink);
    status.size = static_cast<long long>(info.st_size);
    status.modified = info.st_mtime;
}
} // namespace

int statPath(std::string const& path, PathStatus& status)
{
    struct stat info;
    if (stat(path.c_str(), &info) != 0)
        return -1;
    fill(info, status);
    return 0;
}

int linkStatus(std::string const& path, PathStatus& status)
{
    struct stat info;
    if (lstat(path.c_str(), &info) != 0)
        return -1;
    fill(info, status);
    return 0;
}

int handleStatus(int handle, PathStatus& status)
{
    struct stat info;
    if (fstat(handle, &info) != 0)
        return -1;
    fill(info, status);
    return 0;
}

std::tm localTime(std::time_t time)
{
    std::tm result{};
    localtime_r(&time, &result);
    return result;
}

bool readDirectory(std::string const& path, std::vector<DirectoryEntry>& entries)
{
    DIR* directory = opendir(path.c_str());
    if (directory == nullptr)
        return false;
    while (dirent* entry = readdir(directory)) {
        bool isDirectory = false;
        if (entry->d_type == DT_DIR) {
            isDirectory = true;
        } else if (entry->d_type == DT_UNKNOWN) {
            struct stat info;
            std::string const full = path + "/" + entry->d_name;
            isDirectory = lstat(full.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
        }
        entries.push_back({entry->d_name, isDirectory});
    }
    closedir(directory);
    return true;
}

} // namespace detail
} // namespace tovu
