#include "tovuutil/text/RandomSocket.h"

#include <chrono>
#include <cstdint>
#include <cstring>
#include <mutex>

#include "tovuutil/platform/NetworkIdentity.h"
#include "tovuutil/platform/detail/EntropySource.h"
#include "tovuutil/text/Random.h"

namespace {

using Word = std::uint64_t;

constexpr Word kGolden = 0x9e3779b97f4a7c15u;

// The splitmix64 finaliser: a bijection whose every output bit depends on
// every input bit.
Word mix(Word z)
{
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
}

Word absorb(Word hash, Word word) { return mix(hash ^ word) + kGolden; }

Word absorb(Word hash, std::string const& text)
{
    hash = absorb(hash, text.size()); // so that "1.2" + "3" differs from "1" + ".23"
    for (unsigned char c : text)
        hash = absorb(hash, c);
    return hash;
}

Word rotateLeft(Word x, int k) { return (x << k) | (x >> (64 - k)); }

} // namespace

struct RandomSocket::State {
    std::mutex lock;
    Word words[4] = {};
    std::uint64_t processId = 0;
    bool fromEntropy = false;

    // xoshiro256**: 256 bits of state, period 2^256 - 1.
    Word next()
    {
        Word const result = rotateLeft(words[1] * 5, 7) * 9;
        Word const t = words[1] << 17;
        words[2] ^= words[0];
        words[3] ^= words[1];
        words[1] ^= words[2];
        words[0] ^= words[3];
        words[2] ^= t;
        words[3] = rotateLeft(words[3], 45);
        return result;
    }

    // Fresh entropy and the process id folded into whatever the state holds,
    // so a reseed after a fork can only move away from the parent's sequence.
    void seed(Word salt)
    {
        processId = tovu::detail::hostProcessId();
        unsigned char bytes[sizeof words] = {};
        fromEntropy = tovu::detail::hostEntropy(bytes, sizeof bytes);
        Word fresh[4] = {};
        if (fromEntropy)
            std::memcpy(fresh, bytes, sizeof fresh);
        salt = absorb(salt, processId);
        salt = absorb(salt, static_cast<Word>(std::chrono::system_clock::now().time_since_epoch().count()));
        salt = absorb(salt, static_cast<Word>(std::chrono::steady_clock::now().time_since_epoch().count()));
        for (int i = 0; i < 4; ++i) {
            salt = absorb(salt, static_cast<Word>(i));
            words[i] ^= fresh[i] ^ salt;
        }
        if ((words[0] | words[1] | words[2] | words[3]) == 0) // the one state xoshiro cannot leave
            words[0] = kGolden;
    }

    // Called under the lock before every draw.
    void reseedAfterFork()
    {
        if (tovu::detail::hostProcessId() != processId)
            seed(reinterpret_cast<std::uintptr_t>(this));
    }

    // Evenly over 0 to bound - 1 for 0 < bound: values below 2^64 mod bound
    // would make the low residues more likely, so they are drawn again.
    Word below(Word bound)
    {
        Word const unusable = (0 - bound) % bound;
        Word draw;
        do {
            draw = next();
        } while (draw < unusable);
        return draw % bound;
    }
};

RandomSocket::RandomSocket() : state_(new State)
{
    // MacRetriever rather than the kept getMacAddress(): that one is a static
    // object, which may already be gone when tmRand is first called late at exit.
    Word salt = absorb(0, reinterpret_cast<std::uintptr_t>(state_.get()));
    salt = absorb(salt, MacRetriever().getMacAddress());
    salt = absorb(salt, getLocalIPAddress());
    state_->seed(salt);
}

RandomSocket::~RandomSocket() = default;

int RandomSocket::random()
{
    std::lock_guard<std::mutex> guard(state_->lock);
    state_->reseedAfterFork();
    return static_cast<int>(state_->next() >> 33);
}

int RandomSocket::random(int bound)
{
    if (bound < 1)
        return 0;
    std::lock_guard<std::mutex> guard(state_->lock);
    state_->reseedAfterFork();
    return static_cast<int>(state_->below(static_cast<Word>(bound)));
}

std::string RandomSocket::randomString(std::size_t length)
{
    std::string text(length, '\0');
    std::lock_guard<std::mutex> guard(state_->lock);
    state_->reseedAfterFork();
    for (char& c : text)
        c = Random::kAlphabet[state_->below(Random::kAlphabetSize)];
    return text;
}

bool RandomSocket::fromEntropySource() const
{
    std::lock_guard<std::mutex> guard(state_->lock);
    return state_->fromEntropy;
}

std::string tmRand(std::size_t length)
{
    // Built on first use and never destroyed, so that destructors of other
    // static objects may still call tmRand while the process ends.
    static RandomSocket* const shared = new RandomSocket;
    return shared->randomString(length);
}
