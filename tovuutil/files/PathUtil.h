#ifndef TOVUUTIL_FILES_PATHUTIL_H
#define TOVUUTIL_FILES_PATHUTIL_H

#include <string>

#include <tovuutil/export.h>

// The process working directory, ending in the separator, or "" on failure.
TOVU_API std::string getCurrentDirectory();

// path and name joined by exactly one separator.
TOVU_API std::string getFullFilename(std::string const& path, std::string const& name);

// The path with every "\\" turned into the host's separator "/".
TOVU_API std::string transformPath(std::string const& path);

// The path without one trailing separator; a lone separator stays.
TOVU_API std::string formatPath(std::string const& path);

// The transformed path made absolute against the working directory, "." and
// ".." collapsed lexically; a trailing separator is kept.
TOVU_API std::string getAbsolutePath(std::string const& path);

#endif
