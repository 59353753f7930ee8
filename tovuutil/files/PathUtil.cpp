#include "tovuutil/files/PathUtil.h"

#include <unistd.h>

#include <vector>

// Minimal forms for the logging set-up; the path utilities complete them.

std::string getCurrentDirectory()
{
    std::vector<char> buffer(4096);
    if (getcwd(buffer.data(), buffer.size()) == nullptr)
        return std::string();
    std::string dir(buffer.data());
    if (dir.empty() || dir.back() != '/')
        dir += '/';
    return dir;
}

std::string getFullFilename(std::string const& path, std::string const& name)
{
    if (path.empty())
        return name;
    if (name.empty())
        return path;
    std::string joined = path;
    if (joined.back() != '/')
        joined += '/';
    size_t start = name.find_first_not_of('/');
    return start == std::string::npos ? joined : joined + name.substr(start);
}
