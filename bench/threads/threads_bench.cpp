// The locked paths under contention: 1, 2, 4 and 8 threads reading one
// cached file through the properties service, and calling a disabled debug
// on one shared logger. Real time per call; with one thread the figures
// match the single-threaded benchmarks.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include <tovuutil/tovuutil.h>

namespace {

// One INI file of ten keys in a fresh INI home, shared by all threads.
struct SharedIni {
    SharedIni()
    {
        directory = (std::filesystem::temp_directory_path() / "tovu_threads_bench").string();
        std::filesystem::create_directories(directory);
        setSystemPropertyIniHome(directory);
        std::ofstream out(directory + "/threads.ini", std::ios::binary | std::ios::trunc);
        out << "[S]\r\n";
        for (int k = 0; k < 10; ++k)
            out << "k" << k << "=" << k << "\r\n";
    }
    ~SharedIni()
    {
        std::error_code ignored;
        std::filesystem::remove_all(directory, ignored);
    }
    std::string directory;
};

SharedIni& sharedIni()
{
    static SharedIni ini;
    return ini;
}

void BM_ServiceGetPropertyThreads(benchmark::State& state)
{
    sharedIni();
    auto* service = static_cast<PropertiesService*>(UtilServiceFactory::getService(1));
    std::string const keys[] = {"S.k0", "S.k3", "S.k7", "S.k9"};
    std::size_t i = static_cast<std::size_t>(state.thread_index());
    for (auto _ : state) {
        benchmark::DoNotOptimize(service->getProperty("threads.ini", keys[i % 4]));
        ++i;
    }
}

void BM_DisabledDebugThreads(benchmark::State& state)
{
    Logger* logger = Logger::getInstance("tovuutil.ThreadsBench");
    std::string const message = "Datei 'tm.ini' gelesen";
    for (auto _ : state)
        logger->debug(message);
}

} // namespace

BENCHMARK(BM_ServiceGetPropertyThreads)->Threads(1)->Threads(2)->Threads(4)->Threads(8)->UseRealTime();
BENCHMARK(BM_DisabledDebugThreads)->Threads(1)->Threads(2)->Threads(4)->Threads(8)->UseRealTime();

BENCHMARK_MAIN();
