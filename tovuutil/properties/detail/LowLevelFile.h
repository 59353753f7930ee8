#ifndef TOVUUTIL_PROPERTIES_DETAIL_LOWLEVELFILE_H
#define TOVUUTIL_PROPERTIES_DETAIL_LOWLEVELFILE_H

#include <string>

// Low-level file handles of the host, always in binary mode: the text-mode
// translation (LF written as CR LF, CR LF read as LF) is done above this
// layer, the same on every host.
namespace tovu {
namespace detail {

// -1 when the file cannot be opened. Write handles create the file with
// read and write permission for the owner.
int openForReading(std::string const& path);
int openForWriting(std::string const& path, bool append);
int closeHandle(int handle);
// Bytes written or read, -1 on failure.
long writeHandle(int handle, char const* data, unsigned long length);
long readHandle(int handle, char* data, unsigned long length);
// The current position; -1 on failure.
long long tellHandle(int handle);
long long seekHandle(int handle, long long position);
// Forces the file's data to the disk.
int commitHandle(int handle);
// Clears a read-only mark (Windows); nothing to do elsewhere.
void setNormalAttributes(std::string const& path);

// Replacing a file safely: a new file beside the target (the target's real
// location when it is a symbolic link), created exclusively; its name, or ""
// when none can be created there.
int createSibling(std::string const& target, std::string& siblingPath);
// Gives the sibling the permission bits of the target, if the target exists.
void copyPermissions(std::string const& target, int siblingHandle);
// The real path a write to target lands in (links resolved), or target itself.
std::string realTarget(std::string const& target);
// Moves the sibling over the target in one step; 0 on success.
int replaceFile(std::string const& sibling, std::string const& target);
int removePath(std::string const& path);

} // namespace detail
} // namespace tovu

#endif
