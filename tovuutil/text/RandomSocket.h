#ifndef TOVUUTIL_TEXT_RANDOMSOCKET_H
#define TOVUUTIL_TEXT_RANDOMSOCKET_H

#include <cstddef>
#include <memory>
#include <string>

#include <tovuutil/export.h>

// RandomSocket
//
// Identifiers meant to be unique across processes and machines, drawn in the
// manner of Random (same alphabet, Random::kAlphabet) but from a generator of
// its own: it never calls srand or rand, so Random's sequences stay as they are
// however often a RandomSocket draws.
//
// Seeding: 32 bytes from the operating system's entropy source, mixed with the
// MAC and IP texts of the machine (see NetworkIdentity.h), the process id, the
// clocks and the generator's address, give the 256-bit state of a xoshiro256**
// generator. A process forked from one that has drawn reseeds on its first draw
// (its process id differs), so parent and child go on with different values.
//
// Guarantees, while the entropy source answers (fromEntropySource()):
// every character of randomString is uniform over the 34 letters and
// independent of the others, in every process on every machine. n identifiers
// of length L then share one value with a probability below
// n * (n - 1) / 2 / 34^L. For L = 12 (34^12 is about 2.4e18) that is about
// 2e-7 for a million identifiers and about 0.2 for a thousand million; take
// L = 16 (about 1.6e-7 for a thousand million) when there are that many.
// Without the entropy source the seed rests on process id, clocks and network
// identity only: processes on one machine still differ, but nothing more is
// promised.
//
// Not for secrets: the generator is not cryptographic, and whoever sees enough
// of its values can compute the following ones. Keys, passwords and tokens
// must be drawn from the entropy source directly.
//
// Threads: one generator may be shared by several threads; each call holds the
// generator's own lock. It cannot be copied (a copy would repeat its values).
// As with any lock, a child forked while another thread of the parent was
// inside a call must not draw from that generator.
//
// Example:
//   RandomSocket socket;
//   std::string name = "TX" + socket.randomString(12);   // e.g. "TXK7Q2ZP9A3MCW"
class TOVU_API RandomSocket {
public:
    // Seeds now.
    RandomSocket();
    virtual ~RandomSocket();
    RandomSocket(RandomSocket const&) = delete;
    RandomSocket& operator=(RandomSocket const&) = delete;

    // Evenly distributed over 0 to 2147483647.
    int random();
    // Evenly distributed over 0 to bound - 1 (no modulo bias); 0 when bound
    // is below 1.
    int random(int bound);
    // length characters of Random::kAlphabet.
    std::string randomString(std::size_t length);

    // Whether the latest seeding got its bytes from the entropy source.
    bool fromEntropySource() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

// tmRand
//
// length characters of Random::kAlphabet from one RandomSocket shared by the
// whole process, with its guarantees. Safe from several threads, and at any
// time, even from destructors of static objects while the process ends.
//
// Example:
//   std::string file = "upload_" + tmRand(12) + ".tmp";
TOVU_API std::string tmRand(std::size_t length);

#endif
