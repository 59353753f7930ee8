// Any text as a path. Oracles: transformPath leaves no foreign separator;
// getAbsolutePath is absolute, idempotent and free of "." and ".." steps;
// the folder and name parts of a path put together give the path again.
#include <string>

#include <tovuutil/tovuutil.h>

#include "FuzzFile.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string path(reinterpret_cast<char const*>(data), size);
    if (path.find('\0') != std::string::npos)
        return 0; // not a path on any host
    std::string const sep = "/";
    std::string const t = transformPath(path);
    fuzzCheck(t.find('\\') == std::string::npos, "a backslash survived transformPath");

    std::string const absolute = getAbsolutePath(path);
    fuzzCheck(isAbsolutePath(absolute), "getAbsolutePath gave a relative path");
    fuzzCheck(getAbsolutePath(absolute) == absolute, "getAbsolutePath is not idempotent");
    std::string const inner = absolute + sep;
    fuzzCheck(inner.find("/./") == std::string::npos && inner.find("/../") == std::string::npos,
              "a dot step survived getAbsolutePath");

    // (a doubled separator before the name is given back single)
    if (t.find('/') != std::string::npos && t.find("//") == std::string::npos) {
        std::string const folder = getOnlyPathOfFullFilename(path);
        std::string const name = getOnlyFilenameOfFullFilename(path);
        fuzzCheck(folder + name == t, "folder and name do not give the path");
    }
    return 0;
}
