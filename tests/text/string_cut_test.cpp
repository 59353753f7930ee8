// Cutting, searching, token extraction and splitting.

#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <tovuutil/text/StringUtil.h>

using std::string;

TEST(StringCutByCount, EdgesOfTheCount)
{
    EXPECT_EQ("ab", left("abc", 2));
    EXPECT_EQ("abc", left("abc", 5));
    EXPECT_EQ("abc", left("abc", -1));
    EXPECT_EQ("", left("abc", 0));

    EXPECT_EQ("bc", right("abc", 2));
    EXPECT_EQ("abc", right("abc", 5));
    EXPECT_EQ("", right("abc", 0));

    EXPECT_EQ("c", removeLeft("abc", 2));
    EXPECT_EQ("", removeLeft("abc", 3));
    EXPECT_EQ("", removeLeft("abc", 7));

    EXPECT_EQ("a", removeRight("abc", 2));
    EXPECT_EQ("", removeRight("abc", 3));
    EXPECT_EQ("abc", removeRight("abc", -1));
    EXPECT_EQ("abc", removeRight("abc", 0));
}

TEST(StringCutByCount, NegativeCountsRaiseOutOfRange)
{
    EXPECT_THROW(right("abc", -1), std::out_of_range);
    EXPECT_THROW(removeLeft("abc", -1), std::out_of_range);
    EXPECT_THROW(right("", -5), std::out_of_range);

    string s = "abc";
    EXPECT_THROW(extractLeftToken(s, -1), std::out_of_range);
    EXPECT_EQ("abc", s);
    EXPECT_THROW(extractRightToken(s, -2), std::out_of_range);
    EXPECT_EQ("abc", s);
}

TEST(StringCutBySeparator, LeftAndRemoveLeft)
{
    EXPECT_EQ("a", left("a=b=c", "="));
    EXPECT_EQ("", left("abc", ""));
    EXPECT_EQ("abc", left("abc", "x"));
    EXPECT_EQ("a", left("aXYbXY", "XY"));

    EXPECT_EQ("XYb", removeLeft("aXYb", "XY"));
    EXPECT_EQ("abc", removeLeft("abc", "x"));
    EXPECT_EQ("abc", removeLeft("abc", ""));
    EXPECT_EQ("=b=c", removeLeft("a=b=c", "="));
}

TEST(StringCutBySeparator, RightKeepsTheSeparatorTailForLongSeparators)
{
    EXPECT_EQ("c", right("a=b=c", "="));
    EXPECT_EQ("Yb", right("aXYb", "XY"));
    EXPECT_EQ("YZb", right("aXYZb", "XYZ"));
    EXPECT_EQ("abc", right("abc", "x"));
    EXPECT_EQ("", right("abc=", "="));
    EXPECT_EQ("", right("abc", ""));

    EXPECT_EQ("a", removeRight("aXYb", "XY"));
    EXPECT_EQ("a=b", removeRight("a=b=c", "="));
    EXPECT_EQ("abc", removeRight("abc", "x"));
    EXPECT_EQ("abc", removeRight("abc", ""));
}

TEST(StringSearch, LastOccurrences)
{
    EXPECT_EQ(4, findReverse("abcabc", "bc"));
    EXPECT_EQ(-1, findReverse("abc", "x"));
    EXPECT_EQ(-1, findReverse("ab", "abc"));
    EXPECT_EQ(3, findReverse("abc", ""));
    EXPECT_EQ(2, findReverse("aaaa", "aa"));

    EXPECT_EQ(3, getcharpos('a', "abca"));
    EXPECT_EQ(-1, getcharpos('a', ""));
    EXPECT_EQ(-1, getcharpos('x', "abc"));
    EXPECT_EQ(1, getcharpos('\xF6', "K\xF6ln"));
}

TEST(StringSearch, LongSeparatorsAreFoundLinearly)
{
    // A pattern longer than the short-pattern threshold, with many near misses.
    string const p = string(40, 'a') + "b";
    string const s = string(100000, 'a') + "b" + string(100000, 'a') + "b" + "tail";
    EXPECT_EQ(string(99960, 'a'), left(s, p));
    EXPECT_EQ(100000 + 1 + 100000 - 40, findReverse(s, p));
    EXPECT_EQ(string(40, 'a') + "btail", removeLeft(string(60, 'a') + "btail", p));
    EXPECT_EQ(string(39, 'a') + "btail", right(s, p));
    EXPECT_EQ(string(100000, 'a') + "b" + string(99960, 'a'), removeRight(s, p));
    EXPECT_EQ(-1, findReverse(string(1000, 'a'), p));
}

TEST(StringSearch, BeginsEndsAndEnsure)
{
    EXPECT_TRUE(beginsWith("abc", ""));
    EXPECT_TRUE(beginsWith("abc", "ab"));
    EXPECT_FALSE(beginsWith("abc", "abcd"));
    EXPECT_FALSE(beginsWith("abc", "b"));
    EXPECT_TRUE(endsWith("abc", ""));
    EXPECT_TRUE(endsWith("abc", "bc"));
    EXPECT_FALSE(endsWith("bc", "abc"));
    EXPECT_FALSE(endsWith("abc", "b"));

    EXPECT_EQ("/dir", ensureAtBegin("dir", "/"));
    EXPECT_EQ("/dir", ensureAtBegin("/dir", "/"));
    EXPECT_EQ("dir/", ensureAtEnd("dir", "/"));
    EXPECT_EQ("dir/", ensureAtEnd("dir/", "/"));
    EXPECT_EQ("/", ensureAtEnd("", "/"));

    EXPECT_EQ("cba", reverse("abc"));
    EXPECT_EQ("", reverse(""));
    EXPECT_EQ("\xFC\x80" "a", reverse("a\x80\xFC"));
}

TEST(StringTokens, LeftTokenByCharacter)
{
    string s = "k=v";
    EXPECT_EQ("k", extractLeftToken(s, '='));
    EXPECT_EQ("v", s);

    s = "kv";
    EXPECT_EQ("kv", extractLeftToken(s, '='));
    EXPECT_EQ("", s);

    s = "a=b=c";
    EXPECT_EQ("a", extractLeftToken(s, '='));
    EXPECT_EQ("b=c", s);

    // Equal halves are kept here: only the count and right variants clear them.
    s = "a=a";
    EXPECT_EQ("a", extractLeftToken(s, '='));
    EXPECT_EQ("a", s);

    s = "=";
    EXPECT_EQ("", extractLeftToken(s, '='));
    EXPECT_EQ("", s);
}

TEST(StringTokens, EqualHalvesClearTheRemainder)
{
    string s = "abab";
    EXPECT_EQ("ab", extractLeftToken(s, 2));
    EXPECT_EQ("", s);

    s = "abcd";
    EXPECT_EQ("ab", extractLeftToken(s, 2));
    EXPECT_EQ("cd", s);

    s = "abc";
    EXPECT_EQ("abc", extractLeftToken(s, 9));
    EXPECT_EQ("", s);

    s = "a,a";
    EXPECT_EQ("a", extractRightToken(s, ','));
    EXPECT_EQ("", s);

    s = "a,b,c";
    EXPECT_EQ("c", extractRightToken(s, ','));
    EXPECT_EQ("a,b", s);

    s = "abc";
    EXPECT_EQ("abc", extractRightToken(s, ','));
    EXPECT_EQ("", s);

    s = "abcd";
    EXPECT_EQ("cd", extractRightToken(s, 2));
    EXPECT_EQ("ab", s);

    s = "xyxy";
    EXPECT_EQ("xy", extractRightToken(s, 2));
    EXPECT_EQ("", s);
}

TEST(StringSplit, SeparatorPositions)
{
    string l = "old", r = "old";
    splitString("=", "=v", l, r);
    EXPECT_EQ("", l);
    EXPECT_EQ("v", r);

    splitString("=", "k=", l, r);
    EXPECT_EQ("k", l);
    EXPECT_EQ("", r);

    splitString("=", "kv", l, r);
    EXPECT_EQ("kv", l);
    EXPECT_EQ("", r);

    splitString("::", "a::b::c", l, r);
    EXPECT_EQ("a", l);
    EXPECT_EQ("b::c", r);

    splitString("", "kv", l, r);
    EXPECT_EQ("", l);
    EXPECT_EQ("kv", r);

    splitString("=", "=", l, r);
    EXPECT_EQ("", l);
    EXPECT_EQ("", r);

    // The outputs may be the input itself.
    string s = "k=v";
    splitString("=", s, s, r);
    EXPECT_EQ("k", s);
    EXPECT_EQ("v", r);
}
