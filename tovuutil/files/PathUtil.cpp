#include "tovuutil/files/PathUtil.h"

#include <unistd.h>

#include <vector>

// Minimal forms for the logging set-up and the services; the path utilities
// complete them.

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

std::string transformPath(std::string const& path)
{
    std::string result = path;
    for (char& c : result)
        if (c == '\\')
            c = '/';
    return result;
}

std::string formatPath(std::string const& path)
{
    if (path.size() >= 2 && path.back() == '/')
        return path.substr(0, path.size() - 1);
    return path;
}

std::string getAbsolutePath(std::string const& path)
{
    std::string t = transformPath(path);
    std::string full = (!t.empty() && t[0] == '/') ? t : getCurrentDirectory() + t;
    std::vector<std::string> parts;
    std::string::size_type pos = 0;
    while (pos <= full.size()) {
        std::string::size_type end = full.find('/', pos);
        if (end == std::string::npos)
            end = full.size();
        std::string part = full.substr(pos, end - pos);
        if (part == "..") {
            if (!parts.empty())
                parts.pop_back();
        } else if (!part.empty() && part != ".") {
            parts.push_back(part);
        }
        pos = end + 1;
    }
    std::string result;
    for (std::string const& part : parts)
        result += "/" + part;
    if (result.empty() || (full.back() == '/'))
        result += "/";
    return result;
}
