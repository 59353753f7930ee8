#ifndef TOVU_TESTS_PROPERTIES_INIFILES_H
#define TOVU_TESTS_PROPERTIES_INIFILES_H

#include <fstream>
#include <string>

#include <tovuutil/tovuutil.h>

#include "framework/LogCapture.h"
#include "framework/TempDir.h"

namespace tovutest {

inline void writeBytes(std::string const& path, std::string const& bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// An Ini loaded from the given bytes.
struct LoadedIni {
    explicit LoadedIni(std::string const& bytes)
    {
        path = dir.path() + tovutest::kSep + "t.ini";
        writeBytes(path, bytes);
        ini.Open(path.c_str());
        ini.Load();
    }
    TempDir dir;
    std::string path;
    msvc_tovu_ini_wrapper::Ini ini;
};

inline std::list<std::string> keysOf(msvc_tovu_ini_wrapper::Ini& ini, std::string const& section)
{
    return ini.getKeysOfSection(section);
}

} // namespace tovutest

#endif
