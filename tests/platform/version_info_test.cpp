#include <gtest/gtest.h>

#include <cstring>
#include <fstream>

#include <tovuutil/tovuutil.h>

#include "HostPaths.h"
#include "framework/TempDir.h"

TEST(VersionInfo, OwnVersionTexts)
{
    char buffer[32];
    std::memset(buffer, 'x', sizeof buffer);
    getTovuSharedLibProductversion(buffer);
    EXPECT_EQ(std::string(buffer, 17), std::string("2007, 4, 2, 8255\0", 17));
    std::memset(buffer, 'x', sizeof buffer);
    getTovuSharedLibFileversion(buffer);
    EXPECT_EQ(std::string(buffer, 17), std::string("2007, 11, 22, 0\0x", 17));
}

TEST(VersionInfo, FilesWithoutVersionBlock)
{
    tovutest::TempDir dir;
    std::string const plain = tovutest::joinPath(dir.path(), "libplain.so");
    std::ofstream(plain) << "not a library";
    std::string product, file;
    getSharedLibVersionInfo(plain, product, file);
    EXPECT_EQ(product, plain + " nicht gefunden oder kein Versionsinfoblock");
    EXPECT_EQ(file, product);

    getSharedLibVersionInfo("missing.so.1", product, file);
    EXPECT_EQ(product, "missing.so.1 nicht gefunden oder kein Versionsinfoblock");
}

#ifdef _WIN32
TEST(VersionInfo, SystemLibrariesReportTheirVersionResource)
{
    std::string product, file;
    getSharedLibVersionInfo("kernel32.dll", product, file);
    unsigned short a = 0, b = 0, c = 0, d = 0;
    std::string rest;
    EXPECT_EQ(splitVersionInfo(file, &a, &b, &c, &d, rest), 4) << file;
    EXPECT_GE(a, 5);
    EXPECT_EQ(splitVersionInfo(product, &a, &b, &c, &d, rest), 4) << product;
}
#else
TEST(VersionInfo, VersionedLibrariesReportTheirNumberThroughLinks)
{
    tovutest::TempDir dir;
    std::string const real = dir.path() + "/libdemo.so.1.2.3";
    std::ofstream(real) << "elf";
    std::string const link = dir.path() + "/libdemo.so";
    ASSERT_EQ(symlink(real.c_str(), link.c_str()), 0);
    std::string product, file;
    getSharedLibVersionInfo(link, product, file);
    EXPECT_EQ(product, "1.2.3");
    EXPECT_EQ(file, "1.2.3");

    std::string const odd = dir.path() + "/libdemo.so.1.x";
    std::ofstream(odd) << "elf";
    getSharedLibVersionInfo(odd, product, file);
    EXPECT_EQ(product, odd + " nicht gefunden oder kein Versionsinfoblock");
}
#endif

TEST(VersionInfo, NumericSplit)
{
    unsigned short a = 9, b = 9, c = 9, d = 9;
    std::string rest = "old";
    std::string version = "2007, 4, 2, 8255";
    EXPECT_EQ(splitVersionInfo(version, &a, &b, &c, &d, rest), 4);
    EXPECT_EQ((std::vector<int>{a, b, c, d}), (std::vector<int>{2007, 4, 2, 8255}));
    EXPECT_EQ(rest, "");
    EXPECT_EQ(version, "2007, 4, 2, 8255");

    version = "1.2.3.4.5-beta";
    EXPECT_EQ(splitVersionInfo(version, &a, &b, &c, &d, rest), 4);
    EXPECT_EQ((std::vector<int>{a, b, c, d}), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(rest, "5-beta");

    version = "6";
    EXPECT_EQ(splitVersionInfo(version, &a, &b, &c, &d, rest), 1);
    EXPECT_EQ((std::vector<int>{a, b, c, d}), (std::vector<int>{6, 0, 0, 0}));

    version = "70000.x";
    EXPECT_EQ(splitVersionInfo(version, &a, nullptr, nullptr, &d, rest), 2);
    EXPECT_EQ(a, 70000 % 65536);
    EXPECT_EQ(d, 0);

    version = "";
    EXPECT_EQ(splitVersionInfo(version, &a, &b, &c, &d, rest), 0);
}

TEST(VersionInfo, TextSplitTrimsEachPart)
{
    std::string p1, p2, p3, p4;
    EXPECT_TRUE(splitVersionInfo(std::string("2007, 11, 22, 0\r\n"), p1, p2, p3, p4));
    EXPECT_EQ((std::vector<std::string>{p1, p2, p3, p4}), (std::vector<std::string>{"2007", "11", "22", "0"}));
    EXPECT_TRUE(splitVersionInfo(std::string("1.2.3.4.5"), p1, p2, p3, p4));
    EXPECT_EQ(p4, "4.5");
    EXPECT_FALSE(splitVersionInfo(std::string("1. 2"), p1, p2, p3, p4));
    EXPECT_EQ((std::vector<std::string>{p1, p2, p3, p4}), (std::vector<std::string>{"1", "2", "", ""}));
}
