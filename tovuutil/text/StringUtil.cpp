#include "tovuutil/text/StringUtil.h"

#include <algorithm>
#include <cctype>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace {

using std::size_t;
using std::string;
using std::string_view;

constexpr size_t npos = string::npos;

// Patterns up to this length are searched by first byte (memchr) and memcmp:
// at most this many comparisons per text byte. Longer ones use a
// prefix-function scan so the search stays linear whatever the pattern.
constexpr size_t kShortPattern = 32;

// Prefix function of pattern: fail[i] is the length of the longest proper
// border of pattern[0..i].
std::vector<size_t> borders(string_view pattern)
{
    std::vector<size_t> fail(pattern.size(), 0);
    size_t k = 0;
    for (size_t i = 1; i < pattern.size(); ++i) {
        while (k > 0 && pattern[i] != pattern[k])
            k = fail[k - 1];
        if (pattern[i] == pattern[k])
            ++k;
        fail[i] = k;
    }
    return fail;
}

// Finds the occurrences of one non-empty pattern, left to right.
class Finder {
public:
    explicit Finder(string_view pattern)
        : p_(pattern)
    {
        if (p_.size() > kShortPattern)
            fail_ = borders(p_);
    }

    // First occurrence in text at or after from, or npos.
    size_t find(string_view text, size_t from) const
    {
        size_t const k = p_.size();
        if (from > text.size() || text.size() - from < k)
            return npos;
        if (k <= kShortPattern) {
            char const* const base = text.data();
            char const* q = base + from;
            char const* const last = base + text.size() - k; // last start
            char const first = p_[0];
            while (q <= last) {
                q = static_cast<char const*>(std::memchr(q, first, static_cast<size_t>(last - q) + 1));
                if (q == nullptr)
                    return npos;
                if (restMatches(q + 1))
                    return static_cast<size_t>(q - base);
                ++q;
            }
            return npos;
        }
        size_t state = 0;
        for (size_t i = from; i < text.size(); ++i) {
            while (state > 0 && text[i] != p_[state])
                state = fail_[state - 1];
            if (text[i] == p_[state] && ++state == k)
                return i + 1 - k;
        }
        return npos;
    }

private:
    // Whether the pattern's bytes after the first follow at q. Short patterns
    // are compared inline: a library call per candidate costs more than the
    // comparison itself when matches are dense.
    bool restMatches(char const* q) const
    {
        size_t const rest = p_.size() - 1;
        if (rest > 8)
            return std::memcmp(q, p_.data() + 1, rest) == 0;
        for (size_t i = 0; i < rest; ++i)
            if (q[i] != p_[i + 1])
                return false;
        return true;
    }

    string_view p_;
    std::vector<size_t> fail_;
};

size_t findFirst(string_view s, string_view p)
{
    if (p.empty())
        return 0;
    return Finder(p).find(s, 0);
}

// Start of the last occurrence of p in s, or npos; an empty p is found at the end.
size_t findLast(string_view s, string_view p)
{
    size_t const n = s.size();
    size_t const k = p.size();
    if (k > n)
        return npos;
    if (k == 0)
        return n;
    if (k <= kShortPattern) {
        for (size_t start = n - k + 1; start-- > 0;) {
            if (s[start] == p[0] && std::memcmp(s.data() + start + 1, p.data() + 1, k - 1) == 0)
                return start;
        }
        return npos;
    }
    // The same scan over both texts read backwards.
    string const rp(p.rbegin(), p.rend());
    std::vector<size_t> const fail = borders(rp);
    size_t state = 0;
    for (size_t i = 0; i < n; ++i) {
        char const ch = s[n - 1 - i];
        while (state > 0 && ch != rp[state])
            state = fail[state - 1];
        if (ch == rp[state] && ++state == k)
            return n - 1 - i;
    }
    return npos;
}

// Membership table of a character set.
class ByteSet {
public:
    explicit ByteSet(string const& set)
    {
        for (char c : set)
            bits_[static_cast<unsigned char>(c)] = true;
    }
    bool contains(char c) const { return bits_[static_cast<unsigned char>(c)]; }

private:
    bool bits_[256] = {};
};

// Copies n bytes from src to dst, every byte equal to from written as to.
// Eight bytes at a time: no branch per byte, however dense the matches.
void translateByte(char* dst, char const* src, size_t n, char from, char to)
{
    constexpr std::uint64_t ones = 0x0101010101010101u;
    constexpr std::uint64_t low7 = 0x7F7F7F7F7F7F7F7Fu;
    constexpr std::uint64_t high = 0x8080808080808080u;
    std::uint64_t const fromWord = ones * static_cast<unsigned char>(from);
    std::uint64_t const toWord = ones * static_cast<unsigned char>(to);
    size_t i = 0;
    for (; i + 8 <= n; i += 8) {
        std::uint64_t word;
        std::memcpy(&word, src + i, 8);
        std::uint64_t const diff = word ^ fromWord;               // 0 where the byte matches
        std::uint64_t const nonZero = ((diff & low7) + low7) | diff; // high bit: byte != 0
        std::uint64_t const match = (~nonZero & high) >> 7;       // 0x01 per matching byte
        std::uint64_t const mask = match * 0xFF;
        word = (word & ~mask) | (toWord & mask);
        std::memcpy(dst + i, &word, 8);
    }
    for (; i < n; ++i)
        dst[i] = src[i] == from ? to : src[i];
}

int clampToInt(size_t v)
{
    return v > static_cast<size_t>(INT32_MAX) ? -1 : static_cast<int>(v);
}

// What getOnlyCharsAndDigits keeps: A-Z, a-z, 0-9 and, in the full variant,
// the German letters of Windows-1252.
struct KeepTables {
    bool full[256] = {};
    bool sevenBit[256] = {};
    constexpr KeepTables()
    {
        for (int c = 'A'; c <= 'Z'; ++c)
            full[c] = full[c + 32] = sevenBit[c] = sevenBit[c + 32] = true;
        for (int c = '0'; c <= '9'; ++c)
            full[c] = sevenBit[c] = true;
        for (int c : {196, 214, 220, 228, 246, 252, 223})
            full[c] = true;
    }
};
constexpr KeepTables kKeep;

string keepOnly(string const& s, bool const (&table)[256])
{
    string out;
    out.reserve(s.size());
    for (char c : s)
        if (table[static_cast<unsigned char>(c)])
            out.push_back(c);
    return out;
}

} // namespace

// --- Cutting and searching -------------------------------------------------

string left(string const& s, int n)
{
    if (n < 0)
        return s;
    return s.substr(0, static_cast<size_t>(n));
}

string right(string const& s, int n)
{
    if (n < 0)
        throw std::out_of_range("right: negative count");
    size_t const len = s.size();
    if (static_cast<size_t>(n) >= len)
        return s;
    return s.substr(len - static_cast<size_t>(n));
}

string removeLeft(string const& s, int n)
{
    if (n < 0)
        throw std::out_of_range("removeLeft: negative count");
    if (static_cast<size_t>(n) >= s.size())
        return string();
    return s.substr(static_cast<size_t>(n));
}

string removeRight(string const& s, int n)
{
    if (n < 0)
        return s;
    if (static_cast<size_t>(n) >= s.size())
        return string();
    return s.substr(0, s.size() - static_cast<size_t>(n));
}

string left(string const& s, string const& p)
{
    if (p.empty())
        return string();
    size_t const pos = findFirst(s, p);
    return pos == npos ? s : s.substr(0, pos);
}

string right(string const& s, string const& p)
{
    size_t const pos = findLast(s, p);
    if (pos == npos)
        return s;
    if (pos >= s.size())
        return string(); // empty p: nothing begins behind the end
    return s.substr(pos + 1);
}

string removeLeft(string const& s, string const& p)
{
    size_t const pos = findFirst(s, p);
    return pos == npos ? s : s.substr(pos);
}

string removeRight(string const& s, string const& p)
{
    size_t const pos = findLast(s, p);
    return pos == npos ? s : s.substr(0, pos);
}

int findReverse(string const& s, string const& p)
{
    size_t const pos = findLast(s, p);
    return pos == npos ? -1 : clampToInt(pos);
}

int getcharpos(char c, string const& s)
{
    size_t const pos = s.rfind(c);
    return pos == npos ? -1 : clampToInt(pos);
}

bool beginsWith(string const& s, string const& p)
{
    return p.size() <= s.size() && s.compare(0, p.size(), p) == 0;
}

bool endsWith(string const& s, string const& p)
{
    return p.size() <= s.size() && s.compare(s.size() - p.size(), p.size(), p) == 0;
}

string ensureAtBegin(string const& s, string const& p)
{
    return beginsWith(s, p) ? s : p + s;
}

string ensureAtEnd(string const& s, string const& p)
{
    return endsWith(s, p) ? s : s + p;
}

string reverse(string const& s)
{
    return string(s.rbegin(), s.rend());
}

// --- Token extraction ------------------------------------------------------

string extractLeftToken(string& s, char c)
{
    size_t const pos = s.find(c);
    if (pos == npos) {
        string token;
        token.swap(s);
        return token;
    }
    string token = s.substr(0, pos);
    s.erase(0, pos + 1);
    return token;
}

string extractLeftToken(string& s, int n)
{
    string token = left(s, n);
    string rest = removeLeft(s, n);
    if (rest == token)
        rest.clear();
    s.swap(rest);
    return token;
}

string extractRightToken(string& s, char c)
{
    size_t const pos = s.rfind(c);
    if (pos == npos) {
        // Token and remainder are both all of s, so the remainder is cleared.
        string token;
        token.swap(s);
        return token;
    }
    string token = s.substr(pos + 1);
    s.erase(pos);
    if (s == token)
        s.clear();
    return token;
}

string extractRightToken(string& s, int n)
{
    string token = right(s, n);
    string rest = removeRight(s, n);
    if (rest == token)
        rest.clear();
    s.swap(rest);
    return token;
}

void splitString(string const& sep, string const& s, string& leftPart, string& rightPart)
{
    size_t const pos = findFirst(s, sep);
    string l, r;
    if (pos == npos) {
        l = s;
    } else {
        l = s.substr(0, pos);
        size_t const behind = pos + sep.size();
        if (behind < s.size())
            r = s.substr(behind);
    }
    leftPart.swap(l);
    rightPart.swap(r);
}

// --- Trimming, case, padding and cleaning -----------------------------------

string trimLeft(string const& s, string const& set)
{
    ByteSet const in(set);
    size_t b = 0;
    while (b < s.size() && in.contains(s[b]))
        ++b;
    return s.substr(b);
}

string trimRight(string const& s, string const& set)
{
    ByteSet const in(set);
    size_t e = s.size();
    while (e > 0 && in.contains(s[e - 1]))
        --e;
    return s.substr(0, e);
}

string trim(string const& s, string const& set)
{
    ByteSet const in(set);
    size_t e = s.size();
    while (e > 0 && in.contains(s[e - 1]))
        --e;
    size_t b = 0;
    while (b < e && in.contains(s[b]))
        ++b;
    return s.substr(b, e - b);
}

string tolower(string const& s)
{
    string out(s);
    for (char& c : out)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

string toupper(string const& s)
{
    string out(s);
    for (char& c : out)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}

string formatRight(string const& s, int n, char c)
{
    if (n < 0 || static_cast<size_t>(n) <= s.size())
        return s;
    string out(static_cast<size_t>(n) - s.size(), c);
    out += s;
    return out;
}

string formatLeft(string const& s, int n, char c)
{
    if (n < 0 || static_cast<size_t>(n) <= s.size())
        return s;
    string out(s);
    out.append(static_cast<size_t>(n) - s.size(), c);
    return out;
}

string replacePattern(string const& s, string const& p, string const& r)
{
    size_t const n = s.size();
    size_t const k = p.size();
    if (k == 0 || k > n)
        return s;

    if (k == 1 && r.size() == 1) {
        string out(n, '\0');
        translateByte(&out[0], s.data(), n, p[0], r[0]);
        return out;
    }

    Finder const finder(p);
    size_t first = finder.find(s, 0);
    if (first == npos)
        return s;

    // Size first: the text can only shrink when r is not longer than p;
    // otherwise count the occurrences so the result is allocated once.
    size_t size = n;
    if (r.size() > k) {
        size_t count = 0;
        for (size_t pos = first; pos != npos; pos = finder.find(s, pos + k))
            ++count;
        size = n + count * (r.size() - k);
    }

    string out(size, '\0');
    char* o = &out[0];
    char const* const src = s.data();
    size_t done = 0; // input consumed so far
    for (size_t pos = first; pos != npos; pos = finder.find(s, done)) {
        std::memcpy(o, src + done, pos - done);
        o += pos - done;
        std::memcpy(o, r.data(), r.size());
        o += r.size();
        done = pos + k;
    }
    std::memcpy(o, src + done, n - done);
    o += n - done;
    out.resize(static_cast<size_t>(o - out.data()));
    return out;
}

// Equivalent to: repeat { find p from the front; stop if absent; erase it;
// stop if it was at index 0 }. The text left of a match never contains an
// occurrence, so the output is built as a stack: bytes are pushed while
// tracking the longest suffix that is a prefix of p; a completed match is
// popped, and a match that starts at output position 0 ends the loop with the
// untouched rest of the input behind it.
string removeSpecialPatterns(string const& s, string const& p)
{
    size_t const n = s.size();
    size_t const k = p.size();
    if (k == 0 || k > n)
        return s;

    if (k == 1) {
        char const c = p[0];
        if (s[0] == c)
            return s.substr(1);
        // s[0] stays, so every later match lies behind index 0.
        string out(n, '\0');
        char* o = &out[0];
        char const* q = s.data();
        char const* const end = q + n;
        while (q < end) {
            char const* hit = static_cast<char const*>(std::memchr(q, c, static_cast<size_t>(end - q)));
            char const* const stop = hit ? hit : end;
            std::memcpy(o, q, static_cast<size_t>(stop - q));
            o += stop - q;
            q = hit ? hit + 1 : end;
        }
        out.resize(static_cast<size_t>(o - out.data()));
        return out;
    }

    std::vector<size_t> const fail = borders(p);
    auto step = [&](size_t state, char ch) {
        while (state > 0 && ch != p[state])
            state = fail[state - 1];
        if (ch == p[state])
            ++state;
        return state;
    };

    string out(n, '\0');
    char* const o = &out[0];
    size_t len = 0;   // output length
    size_t state = 0; // longest suffix of the output that is a prefix of p
    size_t i = 0;
    char const first = p[0];
    while (i < n) {
        if (state == 0) {
            // Copy up to the next byte that can start a match.
            char const* hit = static_cast<char const*>(std::memchr(s.data() + i, first, n - i));
            size_t const stop = hit ? static_cast<size_t>(hit - s.data()) : n;
            std::memcpy(o + len, s.data() + i, stop - i);
            len += stop - i;
            i = stop;
            if (i == n)
                break;
        }
        char const ch = s[i++];
        o[len++] = ch;
        state = step(state, ch);
        if (state < k)
            continue;
        len -= k;
        if (len == 0) {
            // The match stood at the front of the text: removal ends here.
            return s.substr(i);
        }
        // Only the last k - 1 output bytes can hold a prefix of p.
        state = 0;
        for (size_t j = len > k - 1 ? len - (k - 1) : 0; j < len; ++j)
            state = step(state, o[j]);
    }
    out.resize(len);
    return out;
}

string removeSpecialChars(string const& s, char c)
{
    return removeSpecialPatterns(s, string(1, c));
}

string getOnlyCharsAndDigits(string const& s)
{
    return keepOnly(s, kKeep.full);
}

string getOnlyCharsAndDigits7Bit(string const& s)
{
    return keepOnly(s, kKeep.sevenBit);
}

string getFormattedString(int size, char const* format, ...)
{
    if (size <= 0 || format == nullptr)
        return string();
    size_t const limit = static_cast<size_t>(size);

    // Most texts fit a small stack buffer; only when one is longer than that
    // (and allowed to be) is a buffer of the caller's size allocated.
    char small[512];
    size_t const cap = std::min(limit + 1, sizeof small);
    va_list args;
    va_start(args, format);
    va_list again;
    va_copy(again, args);
    int const count = std::vsnprintf(small, cap, format, args);
    va_end(args);
    string result;
    if (count >= 0 && static_cast<size_t>(count) < cap) {
        result = small;
    } else if (count < 0 || static_cast<size_t>(count) <= limit) {
        // Too long for the stack buffer, or a runtime that reports only
        // failure: format into the full buffer.
        std::vector<char> buffer(limit + 1, '\0');
        int const full = std::vsnprintf(buffer.data(), buffer.size(), format, again);
        if (full > 0 && static_cast<size_t>(full) <= limit)
            result = buffer.data();
    }
    va_end(again);
    return result;
}
