#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include <tovuutil/text/StringUtil.h>

TEST(StringCut, CountsAtTheEdges)
{
    EXPECT_EQ("abc", left("abc", 5));
    EXPECT_EQ("abc", left("abc", -1));
    EXPECT_EQ("ab", left("abc", 2));
    EXPECT_EQ("abc", right("abc", 5));
    EXPECT_EQ("bc", right("abc", 2));
    EXPECT_EQ("", removeLeft("abc", 3));
    EXPECT_EQ("", removeRight("abc", 3));
    EXPECT_EQ("abc", removeRight("abc", -1));
    EXPECT_THROW(removeLeft("abc", -1), std::out_of_range);
    EXPECT_THROW(right("abc", -1), std::out_of_range);
}
