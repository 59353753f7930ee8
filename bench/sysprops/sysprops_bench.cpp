// Reads through the services against the same reads on the objects
// themselves: what a lookup by file name (canonical key, cache) and by the
// free functions (factory) costs on top.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

#include <tovuutil/tovuutil.h>

namespace {

constexpr int kKeysPerSection = 10;

// An INI file of `sections` sections in a fresh directory, which becomes the INI home.
struct IniFixture {
    explicit IniFixture(int sections)
    {
        char dir[] = "/tmp/sysprops_bench_XXXXXX";
        directory = mkdtemp(dir);
        setSystemPropertyIniHome(directory);
        name = "bench_" + std::to_string(sections) + ".ini";
        std::string text;
        for (int s = 0; s < sections; ++s) {
            text += "[S" + std::to_string(s) + "]\r\n";
            for (int k = 0; k < kKeysPerSection; ++k) {
                std::string key = "k" + std::to_string(k);
                keys.push_back("S" + std::to_string(s) + "." + key);
                text += key + "=" + std::to_string(s * kKeysPerSection + k) + "\r\n";
            }
        }
        writeString2File(directory + "/" + name, text);
    }
    ~IniFixture() { std::system(("rm -rf '" + directory + "'").c_str()); }

    std::string directory;
    std::string name;
    std::vector<std::string> keys;
};

PropertiesService* propertiesService() { return static_cast<PropertiesService*>(UtilServiceFactory::getService(1)); }

void BM_ServiceGetProperty(benchmark::State& state)
{
    IniFixture fixture(static_cast<int>(state.range(0)));
    PropertiesService* service = propertiesService();
    std::string const file = service->loadProperties(fixture.name);
    Properties direct(file);
    for (std::string const& key : fixture.keys)
        if (service->getProperty(fixture.name, key) != direct.getProperty(key))
            state.SkipWithError("service and object disagree");
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(service->getProperty(fixture.name, fixture.keys[i]));
        i = i + 1 == fixture.keys.size() ? 0 : i + 1;
    }
    service->unloadProperties(fixture.name);
}

void BM_ObjectGetProperty(benchmark::State& state)
{
    IniFixture fixture(static_cast<int>(state.range(0)));
    Properties direct(fixture.directory + "/" + fixture.name);
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(direct.getProperty(fixture.keys[i]));
        i = i + 1 == fixture.keys.size() ? 0 : i + 1;
    }
}

void BM_FreeFunctionIniHome(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(getSystemPropertyIniHome());
}

void BM_ServiceIniHome(benchmark::State& state)
{
    auto* service = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(service->getIniHome());
}

void BM_SystemInformation(benchmark::State& state)
{
    for (auto _ : state) {
        TovuSystemInformation info;
        benchmark::DoNotOptimize(info.getTotalMemory());
    }
}

} // namespace

BENCHMARK(BM_ServiceGetProperty)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_ObjectGetProperty)->Arg(10)->Arg(1000)->Arg(10000);
BENCHMARK(BM_FreeFunctionIniHome);
BENCHMARK(BM_ServiceIniHome);
BENCHMARK(BM_SystemInformation);

BENCHMARK_MAIN();
