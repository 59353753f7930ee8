// The facade's own cost against log4cpp called directly, in the same process.
// Pairs run interleaved (random interleaving, several repetitions), so their
// ratio holds on a noisy machine:
//   - a disabled DEBUG call: Logger::debug against
//     log4cpp::Category::getInstance(name).debug(msg) (a look-up by name per
//     call) and against debug() on a Category& kept by the caller;
//   - an enabled line into the rolling "tovu.log": Logger::tovuLog against
//     log4cpp's "tovuLog" category.
#include <benchmark/benchmark.h>

#include "InterleavedMain.h"

#include <log4cpp/Category.hh>

#include <tovuutil/tovuutil.h>

namespace {

std::string const kCategory = "tovuutil.Bench";
std::string const kMessage = "Datei 'C:\\tovu\\tm.ini' gelesen";

void BM_DisabledDebug_Facade(benchmark::State& state)
{
    Logger* logger = Logger::getInstance(kCategory);
    for (auto _ : state)
        logger->debug(kMessage);
}

void BM_DisabledDebug_Log4cpp(benchmark::State& state)
{
    Logger::getInstance(kCategory);
    for (auto _ : state)
        log4cpp::Category::getInstance(kCategory).debug(kMessage);
}

void BM_DisabledDebug_CachedLog4cpp(benchmark::State& state)
{
    Logger::getInstance(kCategory);
    log4cpp::Category& category = log4cpp::Category::getInstance(kCategory);
    for (auto _ : state)
        category.debug(kMessage);
}

void BM_LogFileLine_Facade(benchmark::State& state)
{
    Logger* logger = Logger::getInstance(kCategory);
    for (auto _ : state)
        logger->tovuLog(kMessage, 99, std::string(), 99);
    state.SetItemsProcessed(state.iterations());
}

void BM_LogFileLine_Log4cpp(benchmark::State& state)
{
    Logger::getInstance(kCategory);
    for (auto _ : state)
        log4cpp::Category::getInstance("tovuLog").debug(kMessage);
    state.SetItemsProcessed(state.iterations());
}

} // namespace

BENCHMARK(BM_DisabledDebug_Facade)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_DisabledDebug_Log4cpp)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_DisabledDebug_CachedLog4cpp)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_LogFileLine_Facade)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(BM_LogFileLine_Log4cpp)->Repetitions(5)->ReportAggregatesOnly(true);

TOVU_BENCHMARK_INTERLEAVED_MAIN()
