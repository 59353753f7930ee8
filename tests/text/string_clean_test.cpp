// Trimming, case, padding, pattern replacement and removal, cleaning and
// bounded formatting.

#include <cstdint>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include <tovuutil/text/StringUtil.h>

using std::string;

namespace {

// The replacement exactly as it is described: the text before the first
// occurrence, the replacement, then the same applied to the text behind it.
string replaceReference(string const& s, string const& p, string const& r)
{
    if (p.empty())
        return s;
    string::size_type const pos = s.find(p);
    if (pos == string::npos)
        return s;
    return s.substr(0, pos) + r + replaceReference(s.substr(pos + p.size()), p, r);
}

// The removal exactly as it is described: restart at the front after each
// erase, stop after erasing a match at index 0.
string removeReference(string const& s, string const& p)
{
    string w = s;
    for (;;) {
        string::size_type const pos = w.find(p);
        if (pos == string::npos)
            return w;
        w.erase(pos, p.size());
        if (pos == 0)
            return w;
    }
}

string randomText(std::mt19937& rng, char const* alphabet, std::size_t alphabetSize, std::size_t maxLength)
{
    std::size_t const length = rng() % (maxLength + 1);
    string s;
    for (std::size_t i = 0; i < length; ++i)
        s += alphabet[rng() % alphabetSize];
    return s;
}

} // namespace

TEST(StringTrim, SetsAndEdges)
{
    EXPECT_EQ("", trim("  \t", " \t\r\n"));
    EXPECT_EQ("", trim(""));
    EXPECT_EQ("a b", trim(" \r\na b\t "));
    EXPECT_EQ("a b\t ", trimLeft(" \r\na b\t "));
    EXPECT_EQ(" \r\na b", trimRight(" \r\na b\t "));
    EXPECT_EQ("", trimRight("xxx", "x"));
    EXPECT_EQ("a", trim("xyaxy", "yx"));
    EXPECT_EQ("\vx\v", trim(" \vx\v "));          // vertical tab is not in the set
    EXPECT_EQ("K\xF6ln", trim("\xA0K\xF6ln\xA0\xA0", "\xA0"));
    EXPECT_EQ("a", trim(string("\0a\0", 3), string("\0", 1)));
}

TEST(StringCase, OnlyAsciiLettersChangeInTheDefaultLocale)
{
    EXPECT_EQ("abc xyz 09", tolower("AbC XyZ 09"));
    EXPECT_EQ("ABC XYZ 09", toupper("AbC XyZ 09"));
    // Umlauts and every other byte of 128 or above stay as they are.
    string high;
    for (int c = 128; c < 256; ++c)
        high += static_cast<char>(c);
    EXPECT_EQ(high, tolower(high));
    EXPECT_EQ(high, toupper(high));
}

TEST(StringPad, NeverTruncates)
{
    EXPECT_EQ("007", formatRight("7", 3, '0'));
    EXPECT_EQ("7  ", formatLeft("7", 3, ' '));
    EXPECT_EQ("1234", formatRight("1234", 3, '0'));
    EXPECT_EQ("1234", formatLeft("1234", 3, '0'));
    EXPECT_EQ("**", formatRight("", 2, '*'));
    EXPECT_EQ("ab", formatRight("ab", -1, '0'));
}

TEST(StringReplace, LeftToRightWithoutRescanning)
{
    EXPECT_EQ("a,b,c", replacePattern("a.b.c", ".", ","));
    EXPECT_EQ("aaaaaa", replacePattern("aaa", "a", "aa"));
    EXPECT_EQ("abc", replacePattern("abc", "", "y"));
    EXPECT_EQ("bc", replacePattern("aaabc", "a", ""));
    EXPECT_EQ("Xa", replacePattern("aaa", "aa", "X"));           // non-overlapping
    EXPECT_EQ("%1%1", replacePattern("%1", "%1", "%1%1"));        // inserted text stays
    EXPECT_EQ("Die Datei 'a.txt' existiert nicht.",
              replacePattern("Die Datei '%1' existiert nicht.", "%1", "a.txt"));
    EXPECT_EQ("Gr\xFC\xDF" "e", replacePattern("Gr%ue", "%u", "\xFC\xDF"));
    EXPECT_EQ("ab", replacePattern("ab", "abc", "x"));
}

TEST(StringReplace, MillionOccurrences)
{
    string s;
    for (int i = 0; i < 1000000; ++i)
        s += "ab.";
    string const out = replacePattern(s, ".", "\xE4\xF6");
    ASSERT_EQ(4000000u, out.size());
    EXPECT_EQ("ab\xE4\xF6" "ab\xE4\xF6", out.substr(0, 8));
    EXPECT_EQ("ab\xE4\xF6", out.substr(out.size() - 4));
    EXPECT_EQ(s, replacePattern(out, "\xE4\xF6", "."));
    EXPECT_EQ(string(1000000, 'a'), replacePattern(s, "b.", ""));
    EXPECT_EQ("ab\xFF" "ab\xFF", replacePattern(s, ".", "\xFF").substr(0, 6));
}

TEST(StringReplace, MatchesTheRecursiveDefinition)
{
    std::mt19937 rng(12345);
    char const alphabet[] = "ab\xE4";
    for (int round = 0; round < 20000; ++round) {
        string const s = randomText(rng, alphabet, 3, 24);
        string const p = randomText(rng, alphabet, 3, 3);
        string const r = randomText(rng, alphabet, 3, 4);
        ASSERT_EQ(replaceReference(s, p, r), replacePattern(s, p, r)) << s << " / " << p << " / " << r;
    }
    // Patterns beyond the short-pattern path.
    for (int round = 0; round < 300; ++round) {
        string const p = string(33 + rng() % 5, 'a') + "b";
        string s;
        for (int piece = 0; piece < 12; ++piece)
            s += string(rng() % 45, 'a') + (rng() % 2 ? "b" : "c");
        ASSERT_EQ(replaceReference(s, p, "XY"), replacePattern(s, p, "XY"));
    }
}

TEST(StringRemovePatterns, StopRuleAndJoinedHalves)
{
    EXPECT_EQ("abc", removeSpecialPatterns("a.b.c", "."));
    EXPECT_EQ("ab", removeSpecialPatterns("a..b", "."));
    EXPECT_EQ("a.b", removeSpecialPatterns(".a.b", "."));
    EXPECT_EQ("xy", removeSpecialChars("xxy", 'x'));
    EXPECT_EQ("x", removeSpecialPatterns("xaabb", "ab"));
    EXPECT_EQ("", removeSpecialPatterns("aabb", "ab"));
    EXPECT_EQ("ab", removeSpecialPatterns("abab", "ab"));         // first match at 0 ends it
    EXPECT_EQ("x", removeSpecialPatterns("xabababab", "ab"));
    EXPECT_EQ("abc", removeSpecialPatterns("abc", ""));
    EXPECT_EQ("1234567,8", removeSpecialChars("1.234.567,8", '.'));
    EXPECT_EQ("K\xF6ln", removeSpecialChars("K\xF6\xA0ln\xA0", '\xA0'));
}

TEST(StringRemovePatterns, MatchesTheRestartingDefinition)
{
    std::mt19937 rng(777);
    char const alphabet[] = "ab\xFC";
    for (int round = 0; round < 30000; ++round) {
        string const s = randomText(rng, alphabet, 3, 20);
        string const p = randomText(rng, alphabet, 2, 4); // mostly a/b for many joins
        ASSERT_EQ(removeReference(s, p), removeSpecialPatterns(s, p)) << s << " / " << p;
    }
    for (int round = 0; round < 2000; ++round) {
        string const s = randomText(rng, alphabet, 3, 60);
        string const p = randomText(rng, alphabet, 3, 6);
        ASSERT_EQ(removeReference(s, p), removeSpecialPatterns(s, p)) << s << " / " << p;
    }
}

TEST(StringRemovePatterns, MillionOccurrencesAndDeepNesting)
{
    string s;
    for (int i = 0; i < 1000000; ++i)
        s += "x.";
    EXPECT_EQ(string(1000000, 'x'), removeSpecialChars(s, '.'));
    EXPECT_EQ(s, removeSpecialChars("." + s, '.'));             // a leading match ends it

    // "x" + a^n + b^n: every removal joins halves into the next match.
    string const nested = "x" + string(500000, 'a') + string(500000, 'b');
    EXPECT_EQ("x", removeSpecialPatterns(nested, "ab"));
    EXPECT_EQ("", removeSpecialPatterns(nested.substr(1), "ab"));
    EXPECT_EQ("tail", removeSpecialPatterns(string(300000, 'a') + string(300000, 'b') + "tail", "ab"));
}

TEST(StringKeepCharsAndDigits, GermanLettersAsSingleBytes)
{
    EXPECT_EQ("Stra\xDF" "e12aK\xF6ln", getOnlyCharsAndDigits("Stra\xDF" "e 12a, K\xF6ln!"));
    EXPECT_EQ("Strae12aKln", getOnlyCharsAndDigits7Bit("Stra\xDF" "e 12a, K\xF6ln!"));

    string all;
    for (int c = 1; c < 256; ++c)
        all += static_cast<char>(c);
    EXPECT_EQ("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
              "\xC4\xD6\xDC\xDF\xE4\xF6\xFC",
              getOnlyCharsAndDigits(all));
    EXPECT_EQ("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz",
              getOnlyCharsAndDigits7Bit(all));
}

TEST(StringFormatted, WholeTextOrNothing)
{
    EXPECT_EQ("", getFormattedString(3, "%d", 12345));
    EXPECT_EQ("12345", getFormattedString(5, "%d", 12345));
    EXPECT_EQ("", getFormattedString(4, "%d", 12345));
    EXPECT_EQ("", getFormattedString(10, "%s", ""));
    EXPECT_EQ("", getFormattedString(0, "%d", 1));
    EXPECT_EQ("", getFormattedString(-1, "%d", 1));
    EXPECT_EQ("a--7-K\xF6ln", getFormattedString(20, "%c-%d-%s", 'a', -7, "K\xF6ln"));
    EXPECT_EQ("a", getFormattedString(5, "a%cb", 0));             // the buffer's C text

    // Longer than the small work buffer: whole when it fits, else nothing.
    string const big(3000, 'z');
    EXPECT_EQ(big, getFormattedString(3000, "%s", big.c_str()));
    EXPECT_EQ(big + "!", getFormattedString(100000, "%s!", big.c_str()));
    EXPECT_EQ("", getFormattedString(2999, "%s", big.c_str()));
    EXPECT_EQ("", getFormattedString(600, "%s", big.c_str()));
}
