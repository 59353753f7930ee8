#include "tovuutil/files/FileOperation.h"

#include <cstdio>
#include <unistd.h>

// Minimal forms for the logging set-up and the services; the file operations
// complete them.

bool fileExists(std::string const& path) { return access(path.c_str(), F_OK) != -1; }

int deleteFile(std::string const& path)
{
    if (!fileExists(path))
        return -1;
    return std::remove(path.c_str());
}

int fileAccess(std::string const& path, int mode)
{
    int how = F_OK;
    if (mode & 2)
        how |= W_OK;
    if (mode & 4)
        how |= R_OK;
    return access(path.c_str(), how) == 0 ? 0 : -1;
}

bool writeString2File(std::string const& path, std::string const& text)
{
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr)
        return false;
    bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    return std::fclose(file) == 0 && written;
}
