#ifndef TOVUUTIL_FILES_PATHUTIL_H
#define TOVUUTIL_FILES_PATHUTIL_H

#include <string>

#include <tovuutil/export.h>

// Path strings on the host's separator ("\" on Windows, "/" elsewhere); the
// other separator is accepted on input and converted by transformPath. None
// of these functions logs or throws. Only getAbsolutePath,
// getOnlyDriveOfFullFilename, createTempDirName and the current directory and
// drive functions look at the file system. Examples below use "/".

// Every foreign separator turned into the host's; nothing else changes.
TOVU_API std::string transformPath(std::string const& path);

// Without one trailing separator, except for a drive root ("C:\") or a lone separator.
TOVU_API std::string formatPath(std::string const& path);

// path and name joined by exactly one separator; the name loses leading and
// trailing separators. getFullFilename("/d/", "/x.txt/") == "/d/x.txt";
// getFullFilename("", "x") == "x"; getFullFilename("/d", "") == "/d/".
TOVU_API std::string getFullFilename(std::string const& path, std::string const& name);

// As above with the extension set on name (its last "." part replaced).
// An empty name or extension gives transformPath(path) alone, by design.
// getFullFilename("/x", "a.txt", "pdf") == "/x/a.pdf"
TOVU_API std::string getFullFilename(std::string const& path, std::string const& name, std::string const& extension);

// The last component: the text after the last separator, or the whole name.
TOVU_API std::string getOnlyFilenameOfFullFilename(std::string const& fullName);

// Everything up to and including the last separator. A name without any
// separator comes back whole with one appended ("a.txt" gives "a.txt/").
TOVU_API std::string getOnlyPathOfFullFilename(std::string const& fullName);

// "X:" on Windows, a network prefix "//server/share" (without a trailing
// separator) on every host, else "".
TOVU_API std::string getOnlyDriveOfFullFilename(std::string const& fullName);

// Splits into directory (without trailing separator), file name (before its
// first ".") and extension (after it; left as passed in when there is none).
// True when getFullFilename(path, filename, extension) rejoins the name; so
// false for a name without extension and for "." and "..".
TOVU_API bool extractPathFilenameExtention(std::string const& fullName, std::string& path, std::string& filename,
                                           std::string& extension);

// A directory path joined from two, ending in a separator, no doubled
// separator at the seam.
TOVU_API std::string concatPath(std::string const& first, std::string const& second);

// By prefix only: a leading separator of either kind, or ":" as the second
// character ("C:x" counts). False for "".
TOVU_API bool isAbsolutePath(std::string const& path);

// The completed path: relative paths are resolved against the working
// directory; "." and ".." and repeated separators collapse; links are not
// resolved; the path need not exist; a trailing separator stays. On failure
// the transformed input unchanged.
TOVU_API std::string getAbsolutePath(std::string const& path);

// A directory name under parentDir that does not exist yet (nothing is
// created): 12 characters from the current date and time to the millisecond,
// Base64 with "/" turned into "-", plus a two-digit hex suffix if needed.
// "" when every candidate exists.
TOVU_API std::string createTempDirName(std::string const& parentDir);

// The working directory ending in a separator, or "".
TOVU_API std::string getCurrentDirectory();

// "C:" of the current drive; "" where the host has no drives.
TOVU_API std::string getCurrentDrive();

// True when the drive was changed. The letter is not case-folded ("c:" fails,
// deliberately). Always false where the host has no drives.
TOVU_API bool changeCurrentDrive(std::string const& drive);

#endif
