#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <tovuutil/tovuutil.h>

namespace {

constexpr std::size_t kLetters = Random::kAlphabetSize;

// Pearson's statistic of letter counts against an even spread. With 33
// degrees of freedom it exceeds 100 by chance with a probability of about 1e-8.
constexpr double kChiSquareBound = 100.0;

double chiSquare(std::array<long, kLetters> const& counts)
{
    long total = 0;
    for (long count : counts)
        total += count;
    double const expected = static_cast<double>(total) / kLetters;
    double sum = 0;
    for (long count : counts)
        sum += (count - expected) * (count - expected) / expected;
    return sum;
}

// Counts `draws` letter indices given by `letter`.
std::array<long, kLetters> countLetters(long draws, std::function<int()> const& letter)
{
    std::array<long, kLetters> counts{};
    for (long i = 0; i < draws; ++i)
        ++counts.at(static_cast<std::size_t>(letter()));
    return counts;
}

} // namespace

TEST(RandomSocket, LettersAreEvenlySpreadWhereBrokenMappingsAreNot)
{
    RandomSocket socket;
    EXPECT_TRUE(socket.fromEntropySource());
    std::array<long, kLetters> counts{};
    for (int i = 0; i < 30000; ++i) {
        std::string const id = socket.randomString(12);
        ASSERT_EQ(id.size(), 12u);
        for (char c : id) {
            char const* at = std::strchr(Random::kAlphabet, c);
            ASSERT_TRUE(c != '\0' && at != nullptr) << "'" << c << "' is not in the alphabet";
            ++counts[static_cast<std::size_t>(at - Random::kAlphabet)];
        }
    }
    for (long count : counts)
        EXPECT_GT(count, 0); // so neither "0" nor "O" took a letter's place
    EXPECT_LT(chiSquare(counts), kChiSquareBound);

    // The same statistic over the same number of draws tells a mapping with
    // modulo bias (a byte taken modulo 34) and one that never reaches the last
    // letter.
    long const draws = 30000 * 12;
    EXPECT_GT(chiSquare(countLetters(draws, [&] { return socket.random(256) % 34; })), kChiSquareBound);
    EXPECT_GT(chiSquare(countLetters(draws, [&] { return socket.random(33); })), kChiSquareBound);
    EXPECT_EQ(socket.randomString(0), "");
}

TEST(RandomSocket, DrawsCoverTheirWholeRange)
{
    RandomSocket socket;
    EXPECT_EQ(socket.random(0), 0);
    EXPECT_EQ(socket.random(-7), 0);
    EXPECT_EQ(socket.random(1), 0);
    // Half of all draws lie in the upper half of the range: a generator cut to
    // 15 or 16 bits, or to a too small bound, never gets there.
    int upperPlain = 0;
    int upperBounded = 0;
    for (int i = 0; i < 1000; ++i) {
        int const plain = socket.random();
        int const bounded = socket.random(2147483647);
        ASSERT_GE(plain, 0);
        ASSERT_GE(bounded, 0);
        ASSERT_LT(bounded, 2147483647);
        upperPlain += plain >= (1 << 30);
        upperBounded += bounded >= (1 << 30);
    }
    EXPECT_GT(upperPlain, 400);
    EXPECT_GT(upperBounded, 400);
}

TEST(RandomSocket, AMillionIdentifiersAreDistinct)
{
    // Collide by chance with a probability of about 2e-7.
    std::vector<std::string> ids(1000000);
    for (auto& id : ids)
        id = tmRand(12);
    std::sort(ids.begin(), ids.end());
    auto const twin = std::adjacent_find(ids.begin(), ids.end());
    EXPECT_TRUE(twin == ids.end()) << *twin << " drawn twice";
    EXPECT_EQ(ids.front().size(), 12u);
}

TEST(RandomSocket, LeavesTheRuntimeSequenceOfRandomAlone)
{
    std::vector<int> alone;
    Random first(42);
    for (int i = 0; i < 20; ++i)
        alone.push_back(first.random());

    std::vector<int> interleaved;
    Random second(42);
    for (int i = 0; i < 20; ++i) {
        RandomSocket socket;
        socket.random();
        socket.randomString(12);
        tmRand(12);
        interleaved.push_back(second.random());
    }
    EXPECT_EQ(interleaved, alone);
}

TEST(RandomSocket, ForkedProcessesGoOnWithDifferentValues)
{
#ifdef _WIN32
    GTEST_SKIP() << "no fork on Windows; each process seeds itself";
#else
    RandomSocket socket;
    socket.randomString(12);
    tmRand(12);
    int channel[2];
    ASSERT_EQ(pipe(channel), 0);
    pid_t const child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::string const ids = socket.randomString(12) + tmRand(12);
        bool const written = write(channel[1], ids.data(), ids.size()) == static_cast<ssize_t>(ids.size());
        _exit(written ? 0 : 1);
    }
    close(channel[1]);
    // Without a reseed the child would draw exactly what the parent draws next.
    std::string const parent = socket.randomString(12) + tmRand(12);
    char buffer[24];
    std::size_t got = 0;
    ssize_t part;
    while (got < sizeof buffer && (part = read(channel[0], buffer + got, sizeof buffer - got)) > 0)
        got += static_cast<std::size_t>(part);
    close(channel[0]);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    ASSERT_EQ(got, sizeof buffer);
    std::string const fromChild(buffer, got);
    EXPECT_NE(fromChild.substr(0, 12), parent.substr(0, 12));
    EXPECT_NE(fromChild.substr(12), parent.substr(12));
#endif
}
