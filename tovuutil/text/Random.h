#ifndef TOVUUTIL_TEXT_RANDOM_H
#define TOVUUTIL_TEXT_RANDOM_H

#include <cstddef>
#include <string>

#include <tovuutil/export.h>

// Random
//
// The library's pseudo-random numbers, drawn from the C runtime's rand():
// the first draw seeds the runtime from the clock unless a seed was set, so
// generators created without a seed give different sequences from run to
// run, and a generator with a seed repeats its sequence. All generators share
// the runtime's single sequence (srand/rand); seeding one reseeds them all.
// Not for secrets: the sequence is predictable.
//
// Example:
//   Random random;
//   std::string id = random.randomString(8);   // e.g. "K7Q2ZP9A"
//   int die = random.random(6) + 1;            // 1..6
class TOVU_API Random {
public:
    // The 34 characters of random strings: digits without "0" and upper-case
    // letters without "O", so that no character can be read as another.
    static constexpr char kAlphabet[] = "123456789ABCDEFGHIJKLMNPQRSTUVWXYZ";
    // The number of characters in kAlphabet (34).
    static constexpr std::size_t kAlphabetSize = sizeof kAlphabet - 1;

    // Seeds from the clock on the first draw.
    Random();
    // Seeds the runtime with seed now.
    explicit Random(unsigned seed);
    virtual ~Random();

    // Seeds the runtime's rand() with seed now (process-wide) and remembers it.
    void setSeed(unsigned seed);
    // Whether a seed was set or drawn, and which.
    bool isSeeded() const;
    // The seed set or drawn; 0 before the first.
    unsigned getSeed() const;

    // The next rand() value, 0 to RAND_MAX.
    int random();
    // Evenly distributed over 0 to bound - 1 (no modulo bias); 0 when bound
    // is below 1. A bound above RAND_MAX + 1 is cut to RAND_MAX + 1.
    int random(int bound);
    // length characters of kAlphabet.
    std::string randomString(std::size_t length);

private:
    bool seeded_;
    unsigned seed_;
};

#endif
