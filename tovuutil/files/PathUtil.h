#ifndef TOVUUTIL_FILES_PATHUTIL_H
#define TOVUUTIL_FILES_PATHUTIL_H

#include <string>

#include <tovuutil/export.h>

// The process working directory, ending in the separator, or "" on failure.
TOVU_API std::string getCurrentDirectory();

// path and name joined by exactly one separator.
TOVU_API std::string getFullFilename(std::string const& path, std::string const& name);

#endif
