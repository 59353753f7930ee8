#include "tovuutil/text/Random.h"

#include <chrono>
#include <cstdlib>

Random::Random() : seeded_(false), seed_(0) {}

Random::Random(unsigned seed) : seeded_(false), seed_(seed) { setSeed(seed); }

Random::~Random() = default;

void Random::setSeed(unsigned seed)
{
    seed_ = seed;
    seeded_ = true;
    std::srand(seed);
}

bool Random::isSeeded() const { return seeded_; }

unsigned Random::getSeed() const { return seed_; }

int Random::random()
{
    if (!seeded_) {
        auto const ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        setSeed(static_cast<unsigned>(ticks) ^ static_cast<unsigned>(ticks >> 32));
    }
    return std::rand();
}

int Random::random(int bound)
{
    if (bound < 1)
        return 0;
    long long const range = static_cast<long long>(RAND_MAX) + 1;
    long long const limit = bound > range ? range : bound;
    // Draws from the part of the range that splits evenly into limit buckets.
    long long const usable = range - range % limit;
    long long draw;
    do {
        draw = random();
    } while (draw >= usable);
    return static_cast<int>(draw % limit);
}

std::string Random::randomString(std::size_t length)
{
    std::string text(length, '\0');
    for (char& c : text)
        c = kAlphabet[random(static_cast<int>(kAlphabetSize))];
    return text;
}
