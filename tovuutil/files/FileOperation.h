#ifndef TOVUUTIL_FILES_FILEOPERATION_H
#define TOVUUTIL_FILES_FILEOPERATION_H

#include <ctime>
#include <list>
#include <string>

#include <tovuutil/export.h>

// File and directory operations. Every path is first made absolute
// (getAbsolutePath). Failures are explained by one error line in the category
// "tovuutil.fileoperation" (and so in "tovu.log"): the function's name, "(",
// the absolute path, "): " and the fixed German (in places English) text of
// its errno; for fileAccess the lead-in is "fileAccess ERROR (". Other
// messages read "<function>: <message>". Nothing throws.
//
// Return conventions differ by function on purpose:
//   int 0 / -1 like the system call; bool true on success; moveFile and
//   moveFolder 0 done, 1 copied but the source stayed, -1 copy failed;
//   pathExists 'd', 'f' or 0; readBinaryFromFile the byte count or -1.
//
// The tree walks (deleteDirRecursive, copyFolder, moveFolder) touch nothing
// outside the tree they are given. Names read from a directory are names,
// never paths: on POSIX "..\x" is a file like any other. A symbolic link
// inside a tree is never followed into a directory: deleting removes the link
// itself (a secure delete overwrites regular files only, never a link's
// target); copying copies a link to a file as the file's bytes and skips
// links to directories and dangling links. A root given as a symbolic link is
// refused by deleteDirRecursive and moveFolder (-1, nothing touched) and
// followed by copyFolder. Depth is limited by the file system only.
//
// pathExists, getFileTime, createDir and copyFolder's root test follow
// symbolic links, as stat does; deleteFile of a link removes the link.
//
// One deliberate difference from the historical behaviour: moveFile and
// moveFolder delete the source only when the copy verifiably completed (every
// byte written, every target closed without error); otherwise they answer -1
// and leave the source as it was. copyFile and copyFolder still answer true
// for copies that were attempted but failed to write.

// Changes the working directory.
TOVU_API bool changeDir(std::string const& path);

// Removes a file; a missing file logs "Die Datei '<path>' existiert nicht.".
TOVU_API int deleteFile(std::string const& path);

// Overwrites the file once with pseudo-random bytes, forces them to the disk,
// then deletes it. What this can promise is limited: on journaling or
// copy-on-write file systems, on SSDs (wear levelling) and with snapshots or
// backups, copies of the old bytes may survive elsewhere. A file that cannot
// be opened for writing is neither overwritten nor deleted: -1 and an error line.
TOVU_API int deleteFileSecure(std::string const& path);

// Removes an empty directory.
TOVU_API int deleteDir(std::string const& path);

// Deletes the files (securely if asked) and subdirectories of a tree, and the
// directory itself if deleteSelf. The first failure stops the walk; what was
// deleted stays deleted. -1 without touching anything when path is a
// symbolic link.
TOVU_API int deleteDirRecursive(std::string const& path, bool secure, bool deleteSelf);

// The size in bytes, or -1 when the file does not exist or cannot be opened.
TOVU_API long getFileLength(std::string const& path);

// copyFile, then the source removed (securely if asked) - but only when the
// copy is whole; -1 and the source untouched otherwise.
TOVU_API int moveFile(std::string const& from, std::string const& to, bool overwrite, bool secure);

// copyFolder, then deleteDirRecursive of the source - but only when every
// file was copied whole; -1 and the source untouched otherwise, and -1 for a
// source that is a symbolic link. 1 when the copy lies inside the source.
TOVU_API int moveFolder(std::string const& from, std::string const& to, bool overwrite, bool secure);

// A byte copy in bounded memory. Refuses a missing source, and an existing
// target unless overwrite. Copying a file onto itself changes nothing. A
// target that cannot be opened or written still gives true (see above).
TOVU_API bool copyFile(std::string const& from, std::string const& to, bool overwrite);

// Creates the target if missing, then copies subdirectories first, then
// files; stops at the first failure. A copy made inside its own source is
// not copied again.
TOVU_API bool copyFolder(std::string const& from, std::string const& to, bool overwrite);

// The host's access test; mode 0 existence, 2 write, 4 read, 6 both.
TOVU_API int fileAccess(std::string const& path, int mode);

// The lines of a text file, each without trailing CR/LF.
TOVU_API bool readStringFromFile(std::string const& path, std::list<std::string>& lines);
// The whole text with CR LF after every line (the last one included).
TOVU_API bool readStringFromFile(std::string const& path, std::string& text);

// Create (or truncate) and write, or append; the bytes go as they are.
TOVU_API bool writeString2File(std::string const& path, std::string const& text);
TOVU_API bool appendString2File(std::string const& path, std::string const& text);

// The whole file in a new calloc buffer of length + 1 bytes (the last one 0)
// that the caller releases with free; the length, or -1 (no buffer then).
TOVU_API int readBinaryFromFile(std::string const& path, unsigned char** buffer);

TOVU_API bool writeBinary2File(std::string const& path, unsigned char const* data, long length);
TOVU_API bool appendBinary2File(std::string const& path, unsigned char const* data, long length);

// Byte equality, in bounded memory; false when a file cannot be read.
TOVU_API bool compareFilesBinary(std::string const& a, std::string const& b);

// fileAccess(path, 0) != -1; a missing file logs the fileAccess ENOENT line.
TOVU_API bool fileExists(std::string const& path);

// 'd' for a directory, 'f' for anything else that exists, 0 when nothing is
// there; symbolic links are followed (a dangling one gives 0). Logs nothing.
TOVU_API char pathExists(std::string const& path);

// The host's chmod.
TOVU_API int changeMode(std::string const& path, int mode);

// The modification time as local broken-down time (all zero when unknown).
TOVU_API std::tm getFileTime(std::string const& path);

// Creates every missing directory of the path (mode as for mkdir, the umask
// applies); false when a component exists as a file.
TOVU_API bool createDir(std::string const& path, int mode);

#endif
