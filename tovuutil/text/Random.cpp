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

int Random::random()
{
    if (!seeded_) {
        auto const ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        setSeed(static_cast<unsigned>(ticks) ^ static_cast<unsigned>(ticks >> 32));
    }
    return std::rand();
}
