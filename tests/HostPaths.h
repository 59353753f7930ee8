#ifndef TOVU_TESTS_HOSTPATHS_H
#define TOVU_TESTS_HOSTPATHS_H

// The host's path conventions for tests written once for both hosts.

#include <cstdlib>
#include <string>

#ifdef _WIN32
#include <direct.h>
#include <io.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tovutest {

#ifdef _WIN32
constexpr char kSep = '\\';
#else
constexpr char kSep = '/';
#endif
inline std::string const kSepText(1, kSep);

// Turns a path written with '/' into the host's spelling.
inline std::string hostPath(std::string path)
{
    for (char& c : path)
        if (c == '/')
            c = kSep;
    return path;
}

// The POSIX spelling of a path mirrored for the host: on Windows '/' and '\\'
// trade places, so an example written for one host reads the same on both.
inline std::string mirrored(std::string path)
{
#ifdef _WIN32
    for (char& c : path)
        c = c == '/' ? '\\' : c == '\\' ? '/' : c;
#endif
    return path;
}

inline std::string joinPath(std::string const& dir, std::string const& name) { return dir + kSep + name; }

// mkdir with the default mode; Windows has no mode.
inline int makeDir(std::string const& path)
{
#ifdef _WIN32
    return _mkdir(path.c_str());
#else
    return mkdir(path.c_str(), 0755);
#endif
}

inline bool pathExists(std::string const& path)
{
#ifdef _WIN32
    return _access(path.c_str(), 0) == 0;
#else
    return access(path.c_str(), F_OK) == 0;
#endif
}

inline std::string workingDirectory()
{
#ifdef _WIN32
    char* cwd = _getcwd(nullptr, 0);
#else
    char* cwd = getcwd(nullptr, 0);
#endif
    std::string dir(cwd ? cwd : "");
    std::free(cwd);
    return dir;
}

// A fresh folder below the working directory; the name is returned whole.
inline std::string makeScratchDir()
{
    char name[] = "tmp_XXXXXX";
#ifdef _WIN32
    if (_mktemp_s(name, sizeof name) != 0 || _mkdir(name) != 0)
        return "";
#else
    if (mkdtemp(name) == nullptr)
        return "";
#endif
    return joinPath(workingDirectory(), name);
}

} // namespace tovutest

#endif
