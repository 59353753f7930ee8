// String helpers against the obvious alternatives, measured in one process.
//
//   replacePattern        vs a std::string find/append loop and
//                            boost::algorithm::replace_all_copy
//   removeSpecialPatterns vs a find/append loop that drops every occurrence
//                            (same output on these texts: no joins, no match
//                            at the front)
//   double2String(v, 2)   vs std::to_chars fixed plus the "." to "," swap
//   string2Double         vs a std::from_chars path over the same text
//
// Texts are 1 MiB and 64 MiB of letters with the pattern about every 9 bytes;
// the bytes/s counter makes time per byte comparable across sizes. To see the
// per-byte cost without the first touch of fresh result memory, run with
//   GLIBC_TUNABLES=glibc.malloc.mmap_max=0:glibc.malloc.trim_threshold=4294967296

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#include <boost/algorithm/string/replace.hpp>
#include <boost/lexical_cast.hpp>

#include <tovuutil/text/StringUtil.h>

namespace {

using std::string;

constexpr std::int64_t kMiB = 1 << 20;

char const* const kPatterns[] = {".", "<b>"};
char const* const kReplacements[] = {",", "**"};

// size in bytes, pattern index -> text (built once, kept for all benchmarks)
string const& text(std::int64_t size, int pattern)
{
    static std::map<std::pair<std::int64_t, int>, string> texts;
    string& t = texts[{size, pattern}];
    if (t.empty()) {
        std::mt19937 rng(static_cast<unsigned>(size) + static_cast<unsigned>(pattern));
        string const p = kPatterns[pattern];
        t.reserve(static_cast<std::size_t>(size) + 32);
        while (static_cast<std::int64_t>(t.size()) < size) {
            // Gaps of 4..12 letters (mean 8) plus the pattern: one every ~9 bytes
            // for the 1-byte pattern, every ~11 for the 3-byte one.
            unsigned const gap = 4 + rng() % 9;
            for (unsigned i = 0; i < gap; ++i)
                t += static_cast<char>('a' + rng() % 26);
            t += p;
        }
        t.resize(static_cast<std::size_t>(size));
    }
    return t;
}

string findAppendReplace(string const& s, string const& p, string const& r)
{
    string out;
    out.reserve(s.size());
    std::size_t done = 0;
    for (std::size_t pos = s.find(p); pos != string::npos; pos = s.find(p, done)) {
        out.append(s, done, pos - done);
        out += r;
        done = pos + p.size();
    }
    out.append(s, done, string::npos);
    return out;
}

void setCounters(benchmark::State& state, std::int64_t size)
{
    state.SetBytesProcessed(state.iterations() * size);
    state.counters["MiB"] = static_cast<double>(size / kMiB);
}

bool checkSame(benchmark::State& state, string const& ours, string const& peer)
{
    if (ours == peer)
        return true;
    state.SkipWithError("output differs from the peer's");
    return false;
}

// --- replacePattern ----------------------------------------------------------

void BM_replacePattern(benchmark::State& state)
{
    std::int64_t const size = state.range(0);
    int const k = static_cast<int>(state.range(1));
    string const& s = text(size, k);
    string const p = kPatterns[k], r = kReplacements[k];
    if (!checkSame(state, replacePattern(s, p, r), findAppendReplace(s, p, r)))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(replacePattern(s, p, r));
    setCounters(state, size);
}

void BM_replace_findAppend(benchmark::State& state)
{
    std::int64_t const size = state.range(0);
    int const k = static_cast<int>(state.range(1));
    string const& s = text(size, k);
    string const p = kPatterns[k], r = kReplacements[k];
    for (auto _ : state)
        benchmark::DoNotOptimize(findAppendReplace(s, p, r));
    setCounters(state, size);
}

void BM_replace_boostReplaceAllCopy(benchmark::State& state)
{
    std::int64_t const size = state.range(0);
    int const k = static_cast<int>(state.range(1));
    string const& s = text(size, k);
    string const p = kPatterns[k], r = kReplacements[k];
    if (!checkSame(state, replacePattern(s, p, r), boost::algorithm::replace_all_copy(s, p, r)))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(boost::algorithm::replace_all_copy(s, p, r));
    setCounters(state, size);
}

// --- removeSpecialPatterns ---------------------------------------------------

void BM_removeSpecialPatterns(benchmark::State& state)
{
    std::int64_t const size = state.range(0);
    int const k = static_cast<int>(state.range(1));
    string const& s = text(size, k);
    string const p = kPatterns[k];
    if (!checkSame(state, removeSpecialPatterns(s, p), findAppendReplace(s, p, "")))
        return;
    for (auto _ : state)
        benchmark::DoNotOptimize(removeSpecialPatterns(s, p));
    setCounters(state, size);
}

void BM_remove_findAppend(benchmark::State& state)
{
    std::int64_t const size = state.range(0);
    int const k = static_cast<int>(state.range(1));
    string const& s = text(size, k);
    string const p = kPatterns[k];
    for (auto _ : state)
        benchmark::DoNotOptimize(findAppendReplace(s, p, ""));
    setCounters(state, size);
}

void textArgs(benchmark::internal::Benchmark* b)
{
    for (std::int64_t size : {kMiB, 64 * kMiB})
        for (int k : {0, 1})
            b->Args({size, k});
    b->Unit(benchmark::kMillisecond);
}

// Baseline: a plain copy of the text. At 64 MiB every result is fresh memory
// from the system, so this row shows the first-touch cost that every
// function producing a new 64 MiB string pays on top of its own work.
void BM_copy_baseline(benchmark::State& state)
{
    std::int64_t const size = state.range(0);
    string const& s = text(size, static_cast<int>(state.range(1)));
    for (auto _ : state)
        benchmark::DoNotOptimize(string(s));
    setCounters(state, size);
}

// Interleaved: ours, then its peers, for every size and pattern.
BENCHMARK(BM_copy_baseline)->Apply(textArgs);
BENCHMARK(BM_replacePattern)->Apply(textArgs);
BENCHMARK(BM_replace_findAppend)->Apply(textArgs);
BENCHMARK(BM_replace_boostReplaceAllCopy)->Apply(textArgs);
BENCHMARK(BM_removeSpecialPatterns)->Apply(textArgs);
BENCHMARK(BM_remove_findAppend)->Apply(textArgs);

// --- double2String -------------------------------------------------------------

std::vector<double> const& amounts()
{
    static std::vector<double> const values = [] {
        std::mt19937_64 rng(42);
        std::uniform_real_distribution<double> d(-1e6, 1e6);
        std::vector<double> v(4096);
        for (double& x : v)
            x = d(rng);
        return v;
    }();
    return values;
}

string toCharsWithComma(double v, int precision)
{
    char buffer[400];
    std::to_chars_result const r = std::to_chars(buffer, buffer + sizeof buffer, v, std::chars_format::fixed, precision);
    for (char* c = buffer; c < r.ptr; ++c)
        if (*c == '.')
            *c = ',';
    return string(buffer, r.ptr);
}

string printfWithComma(double v, int precision)
{
    char buffer[400];
    int const n = std::snprintf(buffer, sizeof buffer, "%.*f", precision, v);
    for (int i = 0; i < n; ++i)
        if (buffer[i] == '.')
            buffer[i] = ',';
    return string(buffer, static_cast<std::size_t>(n));
}

void BM_double2String(benchmark::State& state)
{
    std::vector<double> const& v = amounts();
    for (double x : v)
        if (!checkSame(state, double2String(x, 2), printfWithComma(x, 2)))
            return;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(double2String(v[i], 2));
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_double_toCharsSwap(benchmark::State& state)
{
    std::vector<double> const& v = amounts();
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(toCharsWithComma(v[i], 2));
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_double_printfSwap(benchmark::State& state)
{
    std::vector<double> const& v = amounts();
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(printfWithComma(v[i], 2));
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(BM_double2String);
BENCHMARK(BM_double_toCharsSwap);
BENCHMARK(BM_double_printfSwap);

// --- string2Double -------------------------------------------------------------

std::vector<string> const& amountTexts()
{
    static std::vector<string> const texts = [] {
        std::vector<string> t;
        for (double x : amounts())
            t.push_back(toCharsWithComma(x, 2)); // "-123456,78"
        return t;
    }();
    return texts;
}

double fromCharsWithComma(string const& s)
{
    char buffer[64];
    std::size_t const n = s.size() < sizeof buffer ? s.size() : sizeof buffer;
    std::memcpy(buffer, s.data(), n);
    for (std::size_t i = 0; i < n; ++i)
        if (buffer[i] == ',')
            buffer[i] = '.';
    double v = 0;
    std::from_chars(buffer, buffer + n, v);
    return v;
}

void BM_string2Double(benchmark::State& state)
{
    std::vector<string> const& t = amountTexts();
    for (string const& s : t)
        if (string2Double(s) != fromCharsWithComma(s)) {
            state.SkipWithError("value differs from the peer's");
            return;
        }
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(string2Double(t[i]));
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_string_fromChars(benchmark::State& state)
{
    std::vector<string> const& t = amountTexts();
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(fromCharsWithComma(t[i]));
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_string_lexicalCast(benchmark::State& state)
{
    std::vector<string> const& t = amountTexts();
    std::vector<string> dotted;
    for (string const& s : t)
        dotted.push_back(replacePattern(s, ",", "."));
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(boost::lexical_cast<double>(dotted[i]));
        i = (i + 1) & 4095;
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(BM_string2Double);
BENCHMARK(BM_string_fromChars);
BENCHMARK(BM_string_lexicalCast);

} // namespace

BENCHMARK_MAIN();
