#ifndef TOVUUTIL_FILES_DETAIL_HOSTFILESYSTEM_H
#define TOVUUTIL_FILES_DETAIL_HOSTFILESYSTEM_H

#include <ctime>
#include <string>
#include <vector>

// The file system calls of the host, behind standard types. Each returns the
// host's result; failures leave errno set as the host call did.
namespace tovu {
namespace detail {

// The host's canonical separator and the one accepted on input and converted.
char pathSeparator();
char foreignSeparator();

// The absolute form of a path (resolved against the working directory); false
// when the host cannot form one.
bool fullPath(std::string const& path, std::string& absolute);
// The working directory without a trailing separator; false on failure.
bool currentDirectory(std::string& directory);
// The current drive number (1 = A:), or 0 where the host has no drives.
int currentDrive();
// 0 when the drive was made current.
int changeDrive(int drive);
// The drive part ("C:") of a path, "" where there is none.
std::string drivePart(std::string const& path);

int changeDirectory(std::string const& path);
int removeFile(std::string const& path);
int removeDirectory(std::string const& path);
int makeDirectory(std::string const& path, int mode);
// mode: 0 existence, 2 write, 4 read, 6 both.
int accessPath(std::string const& path, int mode);
int changeFileMode(std::string const& path, int mode);

struct PathStatus {
    bool isDirectory = false;
    bool isLink = false;        // a symbolic link (its own status is given)
    bool linksToFile = false;   // a link whose target is a regular file
    long long size = 0;
    std::time_t modified = 0;
};
// The status of a path itself (a symbolic link is not followed); -1 on failure.
int statPath(std::string const& path, PathStatus& status);
// The local broken-down form of a time.
std::tm localTime(std::time_t time);

struct DirectoryEntry {
    std::string name;
    bool isDirectory; // a symbolic link never counts as a directory
};
// Every entry of a directory in the host's order, "." and ".." included where
// the host lists them; false when the directory cannot be read.
bool readDirectory(std::string const& path, std::vector<DirectoryEntry>& entries);

// Forces written data of an open file to the disk.
int syncFile(int descriptor);

} // namespace detail
} // namespace tovu

#endif
