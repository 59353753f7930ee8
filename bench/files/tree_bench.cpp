// copyFolder and deleteDirRecursive over deep chains (100 .. 10,000 levels)
// and wide folders (1,000 .. 100,000 files), against std::filesystem's copy
// and remove_all. Time per entry must stay flat as the trees grow. The
// default run stops at 10,000 entries; TOVU_BENCH_LARGE=1 adds 100,000 files.
// std::filesystem works with whole paths and gives up on the deepest chain.
#include <benchmark/benchmark.h>

#include "InterleavedMain.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include <tovuutil/tovuutil.h>

namespace {

namespace fs = std::filesystem;

enum Shape { kDeep = 0, kWide = 1 };

// A chain of size levels with a small file at the bottom, or one folder with
// size small files.
void build(std::string const& path, Shape shape, long size)
{
    mkdir(path.c_str(), 0755);
    int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY);
    for (long i = 0; i < size; ++i) {
        if (shape == kDeep) {
            mkdirat(folder, "level", 0755);
            int const next = openat(folder, "level", O_RDONLY | O_DIRECTORY);
            close(folder);
            folder = next;
        } else {
            std::string const name = "file" + std::to_string(i) + ".txt";
            int const file = openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            if (file >= 0 && write(file, "payload\n", 8) != 8)
                std::abort();
            close(file);
        }
    }
    if (shape == kDeep)
        close(openat(folder, "leaf.txt", O_WRONLY | O_CREAT, 0644));
    close(folder);
}

std::string sourceOf(Shape shape, long size)
{
    std::string const path = fs::absolute("bench_tree_" + std::to_string(shape) + "_" + std::to_string(size)).string();
    if (!fs::exists(path))
        build(path, shape, size);
    return path;
}

void removeQuietly(std::string const& path)
{
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

void finish(benchmark::State& state)
{
    state.counters["entries"] = static_cast<double>(state.range(1));
    state.counters["per_entry"] = benchmark::Counter(static_cast<double>(state.range(1)) * state.iterations(),
                                                     benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void BM_CopyFolder_Tovu(benchmark::State& state)
{
    std::string const source = sourceOf(static_cast<Shape>(state.range(0)), state.range(1));
    std::string const target = source + "_copy";
    for (auto _ : state) {
        if (!copyFolder(source, target, false)) {
            state.SkipWithError("copyFolder failed");
            break;
        }
        state.PauseTiming();
        removeQuietly(target);
        state.ResumeTiming();
    }
    finish(state);
}

void BM_CopyFolder_Filesystem(benchmark::State& state)
{
    std::string const source = sourceOf(static_cast<Shape>(state.range(0)), state.range(1));
    std::string const target = source + "_copy";
    for (auto _ : state) {
        std::error_code error;
        fs::copy(source, target, fs::copy_options::recursive, error);
        if (error) {
            state.SkipWithError("copy failed");
            break;
        }
        state.PauseTiming();
        removeQuietly(target);
        state.ResumeTiming();
    }
    finish(state);
}

void BM_DeleteDirRecursive_Tovu(benchmark::State& state)
{
    std::string const target = fs::absolute("bench_delete").string();
    for (auto _ : state) {
        state.PauseTiming();
        build(target, static_cast<Shape>(state.range(0)), state.range(1));
        state.ResumeTiming();
        if (deleteDirRecursive(target, false, true) != 0) {
            state.SkipWithError("deleteDirRecursive failed");
            break;
        }
    }
    finish(state);
}

void BM_DeleteDirRecursive_Filesystem(benchmark::State& state)
{
    std::string const target = fs::absolute("bench_delete").string();
    for (auto _ : state) {
        state.PauseTiming();
        build(target, static_cast<Shape>(state.range(0)), state.range(1));
        state.ResumeTiming();
        std::error_code error;
        fs::remove_all(target, error);
        if (error) {
            state.SkipWithError("remove_all failed");
            break;
        }
    }
    finish(state);
}

void shapes(benchmark::internal::Benchmark* b)
{
    b->ArgNames({"wide", "entries"})->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
    for (long depth : {100L, 1000L, 10000L})
        b->Args({kDeep, depth});
    bool const large = std::getenv("TOVU_BENCH_LARGE") != nullptr;
    for (long width : {1000L, 10000L, 100000L})
        if (width < 100000 || large)
            b->Args({kWide, width});
}

BENCHMARK(BM_CopyFolder_Tovu)->Apply(shapes);
BENCHMARK(BM_CopyFolder_Filesystem)->Apply(shapes);
BENCHMARK(BM_DeleteDirRecursive_Tovu)->Apply(shapes);
BENCHMARK(BM_DeleteDirRecursive_Filesystem)->Apply(shapes);

} // namespace

TOVU_BENCHMARK_INTERLEAVED_MAIN()
