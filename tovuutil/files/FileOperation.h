#ifndef TOVUUTIL_FILES_FILEOPERATION_H
#define TOVUUTIL_FILES_FILEOPERATION_H

#include <string>

#include <tovuutil/export.h>

// True when the path exists.
TOVU_API bool fileExists(std::string const& path);

// Removes a file: 0 on success, -1 on failure.
TOVU_API int deleteFile(std::string const& path);

#endif
