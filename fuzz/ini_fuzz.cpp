// Any bytes as an INI file: Load, every lookup of what was read, Save, Load again.
#include <cstdint>
#include <cstdio>
#include <string>

#include <unistd.h>

#include <tovuutil/tovuutil.h>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    static std::string const path = "fuzz_" + std::to_string(getpid()) + ".ini";
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr)
        return 0;
    std::fwrite(data, 1, size, file);
    std::fclose(file);

    msvc_tovu_ini_wrapper::Ini ini;
    ini.Open(path.c_str());
    ini.Load();
    for (auto const& section : ini.getSectionNames())
        for (auto const& key : ini.getKeysOfSection(section))
            ini.get(section + "." + key);
    ini.Save();
    ini.Load();
    return 0;
}
