#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include <tovuutil/tovuutil.h>

TEST(Random, SeededGeneratorsRepeatTheRuntimeSequence)
{
    Random first(42);
    int const a = first.random();
    int const b = first.random();
    std::srand(42);
    EXPECT_EQ(a, std::rand());
    EXPECT_EQ(b, std::rand());

    Random second(42);
    EXPECT_EQ(second.random(), a);
    EXPECT_EQ(second.getSeed(), 42u);

    Random unseeded;
    EXPECT_FALSE(unseeded.isSeeded());
    unseeded.random();
    EXPECT_TRUE(unseeded.isSeeded());
}

TEST(Random, BoundedDrawsStayInRangeAndReachEveryValue)
{
    Random random(7);
    EXPECT_EQ(random.random(0), 0);
    EXPECT_EQ(random.random(-5), 0);
    EXPECT_EQ(random.random(1), 0);
    std::set<int> seen;
    for (int i = 0; i < 2000; ++i) {
        int const value = random.random(6);
        ASSERT_GE(value, 0);
        ASSERT_LT(value, 6);
        seen.insert(value);
    }
    EXPECT_EQ(seen.size(), 6u);
    int const wide = random.random(2147483647);
    EXPECT_GE(wide, 0);
}

TEST(Random, StringsUseTheUnambiguousAlphabet)
{
    EXPECT_EQ(std::string(Random::kAlphabet), "123456789ABCDEFGHIJKLMNPQRSTUVWXYZ");
    Random random(3);
    EXPECT_EQ(random.randomString(0), "");
    std::string const text = random.randomString(5000);
    ASSERT_EQ(text.size(), 5000u);
    std::set<char> seen(text.begin(), text.end());
    EXPECT_EQ(std::string(seen.begin(), seen.end()), "123456789ABCDEFGHIJKLMNPQRSTUVWXYZ");

    Random again(3);
    EXPECT_EQ(again.randomString(5000), text);
}
