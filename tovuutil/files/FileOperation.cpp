#include "tovuutil/files/FileOperation.h"

#include <cstdio>
#include <unistd.h>

// Minimal forms for the logging set-up; the file operations complete them.

bool fileExists(std::string const& path) { return access(path.c_str(), F_OK) != -1; }

int deleteFile(std::string const& path)
{
    if (!fileExists(path))
        return -1;
    return std::remove(path.c_str());
}
