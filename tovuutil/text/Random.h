#ifndef TOVUUTIL_TEXT_RANDOM_H
#define TOVUUTIL_TEXT_RANDOM_H

#include <tovuutil/export.h>

// Random
//
// The library's pseudo-random numbers over the C runtime's srand/rand:
// random() seeds from the clock on first use unless a seed was set. Not for
// secrets: the sequence is predictable.
class TOVU_API Random {
public:
    Random();
    explicit Random(unsigned seed);
    virtual ~Random();

    void setSeed(unsigned seed);
    // The next rand() value.
    int random();

private:
    bool seeded_;
    unsigned seed_;
};

#endif
