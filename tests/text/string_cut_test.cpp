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
    EXPECT_EQ("bc", right("abc", 2));
    EXPECT_EQ("abc", right("abc", 5));
    EXPECT_EQ("", right("abc", 0));
    EXPECT_EQ("c", removeLeft("abc", 2));
    EXPECT_EQ("", removeLeft("abc", 3));
    EXPECT_EQ("a", removeRight("abc", 2));
    EXPECT_EQ("", removeRight("abc", 3));
    EXPECT_EQ("abc", removeRight("abc", -1));
}

TEST(StringCutByCount, NegativeCountsRaiseOutOfRange)
{
    EXPECT_THROW(right("abc", -1), std::out_of_range);
    EXPECT_THROW(removeLeft("abc", -1), std::out_of_range);
    EXPECT_THROW(right("", -5), std::out_of_range);

    string s = "abc";
    EXPECT_THROW(extractLeftToken(s, -1), std::out_of_range);
    EXPECT_THROW(extractRightToken(s, -2), std::out_of_range);
    EXPECT_EQ("abc", s);
}

TEST(StringCutBySeparator, LeftAndRemoveLeft)
{
    EXPECT_EQ("a", left("a=b=c", "="));
    EXPECT_EQ("", left("abc", ""));
    EXPECT_EQ("abc", left("abc", "x"));
    EXPECT_EQ("XYb", removeLeft("aXYb", "XY"));
    EXPECT_EQ("abc", removeLeft("abc", "x"));
    EXPECT_EQ("abc", removeLeft("abc", ""));
}

TEST(StringCutBySeparator, RightKeepsTheSeparatorTailForLongSeparators)
{
    EXPECT_EQ("c", right("a=b=c", "="));
    EXPECT_EQ("Yb", right("aXYb", "XY"));
    EXPECT_EQ("YZb", right("aXYZb", "XYZ"));
    EXPECT_EQ("abc", right("abc", "x"));
    EXPECT_EQ("", right("abc", ""));

    EXPECT_EQ("a", removeRight("aXYb", "XY"));
    EXPECT_EQ("a=b", removeRight("a=b=c", "="));
    EXPECT_EQ("abc", removeRight("abc", "x"));
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
    EXPECT_EQ(1, getcharpos('\xF6', "K\xF6ln"));
}

TEST(StringSearch, LongSeparatorsWithManyNearMisses)
{
    string const p = string(40, 'a') + "b";
    string const s = string(100000, 'a') + "b" + string(100000, 'a') + "btail";
    EXPECT_EQ(string(99960, 'a'), left(s, p));
    EXPECT_EQ(200001 - 40, findReverse(s, p));
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
    EXPECT_TRUE(endsWith("abc", ""));
    EXPECT_TRUE(endsWith("abc", "bc"));
    EXPECT_FALSE(endsWith("bc", "abc"));

    EXPECT_EQ("/dir", ensureAtBegin("dir", "/"));
    EXPECT_EQ("/dir", ensureAtBegin("/dir", "/"));
    EXPECT_EQ("dir/", ensureAtEnd("dir", "/"));
    EXPECT_EQ("dir/", ensureAtEnd("dir/", "/"));

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
    // Equal halves stay here: only the count and right variants clear them.
    s = "a=a";
    EXPECT_EQ("a", extractLeftToken(s, '='));
    EXPECT_EQ("a", s);
}

TEST(StringTokens, EqualHalvesClearTheRemainder)
{
    string s = "abab";
    EXPECT_EQ("ab", extractLeftToken(s, 2));
    EXPECT_EQ("", s);
    s = "abcd";
    EXPECT_EQ("ab", extractLeftToken(s, 2));
    EXPECT_EQ("cd", s);

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
    EXPECT_EQ("|v", l + "|" + r);
    splitString("=", "k=", l, r);
    EXPECT_EQ("k|", l + "|" + r);
    splitString("=", "kv", l, r);
    EXPECT_EQ("kv|", l + "|" + r);
    splitString("::", "a::b::c", l, r);
    EXPECT_EQ("a|b::c", l + "|" + r);
    splitString("", "kv", l, r);
    EXPECT_EQ("|kv", l + "|" + r);

    // The outputs may be the input itself.
    string s = "k=v";
    splitString("=", s, s, r);
    EXPECT_EQ("k|v", s + "|" + r);
}
