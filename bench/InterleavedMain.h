#ifndef TOVU_BENCH_INTERLEAVEDMAIN_H
#define TOVU_BENCH_INTERLEAVEDMAIN_H

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

// main() of a benchmark that compares with peers: the repetitions of all
// benchmarks run randomly interleaved, so that their ratios hold on a noisy
// machine.
#define TOVU_BENCHMARK_INTERLEAVED_MAIN()                                          \
    int main(int argc, char** argv)                                                \
    {                                                                              \
        std::vector<char*> args(argv, argv + argc);                                \
        std::string interleave = "--benchmark_enable_random_interleaving=true";    \
        args.push_back(interleave.data());                                         \
        int count = static_cast<int>(args.size());                                 \
        benchmark::Initialize(&count, args.data());                                \
        benchmark::RunSpecifiedBenchmarks();                                       \
        benchmark::Shutdown();                                                     \
        return 0;                                                                  \
    }

#endif
