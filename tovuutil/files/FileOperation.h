#ifndef TOVUUTIL_FILES_FILEOPERATION_H
#define TOVUUTIL_FILES_FILEOPERATION_H

#include <string>

#include <tovuutil/export.h>

// True when the path exists.
TOVU_API bool fileExists(std::string const& path);

// Removes a file: 0 on success, -1 on failure.
TOVU_API int deleteFile(std::string const& path);

// access(2) of the path: mode 0 existence, 2 write, 4 read, 6 both; 0 or -1.
TOVU_API int fileAccess(std::string const& path, int mode);

// Creates or truncates the file and writes the text: true on success.
TOVU_API bool writeString2File(std::string const& path, std::string const& text);

#endif
