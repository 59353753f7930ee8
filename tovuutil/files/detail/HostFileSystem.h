#ifndef TOVUUTIL_FILES_DETAIL_HOSTFILESYSTEM_H
#define TOVUUTIL_FILES_DETAIL_HOSTFILESYSTEM_H

#include <ctime>
#include <string>
#include <vector>

// The file system calls of the host, behind standard types: paths, low-level
// file handles and directory handles for the tree walks. Each returns the
// host's result; failures leave errno set as the host call did.
namespace tovu {
namespace detail {

// ---- Paths ----

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
// Removes a file or a symbolic link itself.
int removeFile(std::string const& path);
int removeDirectory(std::string const& path);
int makeDirectory(std::string const& path, int mode);
// mode: 0 existence, 2 write, 4 read, 6 both.
int accessPath(std::string const& path, int mode);
int changeFileMode(std::string const& path, int mode);

struct PathStatus {
    bool isDirectory = false;
    bool isLink = false; // a symbolic link (only seen by linkStatus)
    bool isRegular = false;
    unsigned long links = 1; // number of names of the file
    long long size = 0;
    std::time_t modified = 0;
};
// The status of what a path names, symbolic links followed; -1 on failure.
int statPath(std::string const& path, PathStatus& status);
// The status of a path itself: a symbolic link is not followed; -1 on failure.
int linkStatus(std::string const& path, PathStatus& status);
// The local broken-down form of a time.
std::tm localTime(std::time_t time);

struct DirectoryEntry {
    std::string name;
    bool isDirectory; // a symbolic link never counts as a directory
};
// Every entry of a directory in the host's order, "." and ".." included where
// the host lists them; false when the directory cannot be read.
bool readDirectory(std::string const& path, std::vector<DirectoryEntry>& entries);

// ---- Low-level file handles ----
// Always binary: text-mode translation is done above this layer, the same on
// every host.

// -1 when the file cannot be opened. Write handles create the file with read
// and write permission for the owner.
int openForReading(std::string const& path);
int openForWriting(std::string const& path, bool append);
// Opens an existing file for writing without cutting it; -1 on failure.
int openForUpdate(std::string const& path);
int closeHandle(int handle);
// Bytes written or read, -1 on failure.
long writeHandle(int handle, char const* data, unsigned long length);
long readHandle(int handle, char* data, unsigned long length);
// The current position; -1 on failure.
long long tellHandle(int handle);
long long seekHandle(int handle, long long position);
// Forces the file's data to the disk.
int commitHandle(int handle);
// Makes sure the file can hold length bytes without running out of space
// (the size may grow; the content stays); 0 on success.
int reserveHandle(int handle, long long length);
// Cuts or extends the file to length bytes; 0 on success.
int resizeHandle(int handle, long long length);
// The status of an open file; -1 on failure.
int handleStatus(int handle, PathStatus& status);
// Clears a read-only mark (Windows); nothing to do elsewhere.
void setNormalAttributes(std::string const& path);

// Replacing a file safely: a new file beside the target (the target's real
// location when it is a symbolic link), created exclusively under a short
// name, so that long target names still leave room; its name, or "" and -1
// when none can be created there.
int createSibling(std::string const& target, std::string& siblingPath);
// Gives the sibling the permission bits of the target, if the target exists.
void copyPermissions(std::string const& target, int siblingHandle);
// The real path a write to target lands in (links resolved), or target itself.
std::string realTarget(std::string const& target);
// Moves the sibling over the target in one step; 0 on success.
int replaceFile(std::string const& sibling, std::string const& target);

// ---- Directory handles for the tree walks ----
// Names are joined to their directory as they are, without any conversion,
// and a symbolic link inside a tree is never followed into a directory.

// The identity of a file system object, to recognise it again.
struct NodeId {
    unsigned long long device = 0;
    unsigned long long node = 0;
    bool operator==(NodeId const& other) const { return device == other.device && node == other.node; }
};

enum class EntryType { Regular, Directory, Link, Other };
struct TreeEntry {
    std::string name;
    EntryType type;
};

// Opens a directory named by a path; with followLink false a symbolic link
// as the last component is refused. -1 on failure.
int openDirectory(std::string const& path, bool followLink);
// Opens the subdirectory name of an open directory, never through a link.
int openDirectoryAt(int directory, std::string const& name);
// Opens the parent of an open directory, only when it is still the one
// expected (a tree moved during a walk is not followed); -1 otherwise.
int openParentDirectory(int directory, NodeId const& expected);
int closeDirectory(int directory);
// The identity of an open directory or file; false on failure.
bool nodeId(int handle, bool isDirectory, NodeId& id);
// The entries of an open directory without "." and "..", in the host's order.
bool listDirectory(int directory, std::vector<TreeEntry>& entries);
// Removes the entry name (a link itself, never its target); 0 on success.
int removeAt(int directory, std::string const& name, bool isDirectory);
int makeDirectoryAt(int directory, std::string const& name, int mode);
// True when anything (a dangling link too) has that name in the directory.
bool existsAt(int directory, std::string const& name);
enum class OpenAt {
    Read,           // a regular file, never through a link
    ReadThroughLink, // a regular file or a link to one
    Overwrite,      // write without cutting, never through a link
    Create          // create or truncate, never through a link
};
// A low-level file handle of the entry, or -1; a handle that is not a
// regular file is refused (errno EISDIR or EINVAL).
int openFileAt(int directory, std::string const& name, OpenAt how);

} // namespace detail
} // namespace tovu

#endif
