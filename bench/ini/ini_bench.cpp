// Loading INI files with Ini::Open + Load against inih storing into an
// ordered vector of sections and keys, and random lookups against a
// two-level unordered_map, in one process with interleaved repetitions.
#include <benchmark/benchmark.h>

#include "InterleavedMain.h"

#include <ini.h>

#include <cstdio>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include <tovuutil/tovuutil.h>

namespace {

// sections x keys, CR LF, a comment now and then.
std::string const& fileOf(int sections, int keys)
{
    static std::vector<std::pair<int, std::string>> made;
    for (auto const& m : made)
        if (m.first == sections * 100000 + keys)
            return m.second;
    std::string path = "bench_" + std::to_string(sections) + "x" + std::to_string(keys) + ".ini";
    std::string text;
    for (int s = 0; s < sections; ++s) {
        text += "[Section" + std::to_string(s) + "]\r\n";
        if (s % 10 == 0)
            text += "; settings of section " + std::to_string(s) + "\r\n";
        for (int k = 0; k < keys; ++k)
            text += "Key" + std::to_string(k) + " = value " + std::to_string(s * keys + k) + " of a typical length\r\n";
    }
    std::FILE* file = std::fopen(path.c_str(), "wb");
    std::fwrite(text.data(), 1, text.size(), file);
    std::fclose(file);
    made.emplace_back(sections * 100000 + keys, path);
    return made.back().second;
}

struct InihSection {
    std::string name;
    std::vector<std::pair<std::string, std::string>> keys;
};

int store(void* user, char const* section, char const* name, char const* value)
{
    auto& sections = *static_cast<std::vector<InihSection>*>(user);
    if (sections.empty() || sections.back().name != section)
        sections.push_back({section, {}});
    sections.back().keys.emplace_back(name, value);
    return 1;
}

void BM_Load_Tovu(benchmark::State& state)
{
    std::string const& path = fileOf(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        msvc_tovu_ini_wrapper::Ini ini;
        ini.Open(path.c_str());
        ini.Load();
        benchmark::DoNotOptimize(ini);
    }
}

void BM_Load_Inih(benchmark::State& state)
{
    std::string const& path = fileOf(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        std::vector<InihSection> sections;
        ini_parse(path.c_str(), store, &sections);
        benchmark::DoNotOptimize(sections);
    }
}

std::vector<std::pair<int, int>> const& lookups()
{
    static std::vector<std::pair<int, int>> picks = [] {
        std::mt19937 random(42);
        std::vector<std::pair<int, int>> p;
        for (int i = 0; i < 100000; ++i)
            p.emplace_back(static_cast<int>(random() % 2000), static_cast<int>(random() % 100));
        return p;
    }();
    return picks;
}

void BM_Get100k_Tovu(benchmark::State& state)
{
    msvc_tovu_ini_wrapper::Ini ini;
    ini.Open(fileOf(2000, 100).c_str());
    ini.Load();
    std::vector<std::string> names;
    for (auto const& [s, k] : lookups())
        names.push_back("Section" + std::to_string(s) + ".Key" + std::to_string(k));
    if (ini.get(names[0]).empty())
        state.SkipWithError("lookup failed");
    for (auto _ : state)
        for (auto const& name : names)
            benchmark::DoNotOptimize(ini.get(name));
}

void BM_Get100k_UnorderedMap(benchmark::State& state)
{
    std::unordered_map<std::string, std::unordered_map<std::string, std::string>> map;
    std::vector<InihSection> sections;
    ini_parse(fileOf(2000, 100).c_str(), store, &sections);
    for (auto const& section : sections)
        for (auto const& key : section.keys)
            map[section.name].emplace(key.first, key.second);
    std::vector<std::pair<std::string, std::string>> names;
    for (auto const& [s, k] : lookups())
        names.emplace_back("Section" + std::to_string(s), "Key" + std::to_string(k));
    for (auto _ : state)
        for (auto const& [section, key] : names) {
            auto const s = map.find(section);
            std::string value = s == map.end() ? std::string() : s->second.find(key)->second;
            benchmark::DoNotOptimize(value);
        }
}

} // namespace

// About 10 MiB (2,000 x 100) and 2 KiB (4 x 12).
BENCHMARK(BM_Load_Tovu)->Args({2000, 100})->Args({4, 12})->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_Load_Inih)->Args({2000, 100})->Args({4, 12})->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_Get100k_Tovu)->Repetitions(5)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Get100k_UnorderedMap)->Repetitions(5)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);

TOVU_BENCHMARK_INTERLEAVED_MAIN()
