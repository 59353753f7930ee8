// Any bytes as an INI file: Load, every lookup, then Load -> Save -> Load.
// Oracle: what a save writes is a fixpoint. Loading the saved file and saving
// again gives the same bytes and the same sections, keys and values: the line
// rules may drop lines once, never change what survived.
#include <list>
#include <utility>
#include <vector>

#include <tovuutil/tovuutil.h>

#include "FuzzFile.h"

namespace {

using Model = std::vector<std::pair<std::string, std::vector<std::pair<std::string, std::string>>>>;

Model modelOf(msvc_tovu_ini_wrapper::Ini& ini)
{
    Model model;
    for (auto const& section : ini.getSectionNames()) {
        model.emplace_back(section, std::vector<std::pair<std::string, std::string>>());
        for (auto const& key : ini.getKeysOfSection(section))
            model.back().second.emplace_back(key, ini.get(section + "." + key));
    }
    return model;
}

std::string bytesOf(std::string const& path)
{
    std::string bytes;
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        return bytes;
    char block[4096];
    std::size_t n;
    while ((n = std::fread(block, 1, sizeof block, file)) > 0)
        bytes.append(block, n);
    std::fclose(file);
    return bytes;
}

// Opens, loads, saves; the model after the load and the bytes saved.
std::pair<Model, std::string> loadAndSave(std::string const& path)
{
    msvc_tovu_ini_wrapper::Ini ini;
    ini.Open(path.c_str());
    ini.Load();
    Model model = modelOf(ini);
    fuzzCheck(ini.Save(), "Save of a writable file");
    return {std::move(model), bytesOf(path)};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const path = fuzzFile(data, size, ".ini");
    loadAndSave(path);
    auto const second = loadAndSave(path);
    auto const third = loadAndSave(path);
    fuzzCheck(second.second == third.second, "saving a saved file changes its bytes");
    fuzzCheck(second.first == third.first, "loading a saved file twice differs");
    return 0;
}
