#include <gtest/gtest.h>

#ifndef _WIN32
#include <unistd.h>
#endif

#include <algorithm>
#include <fstream>

#include <tovuutil/tovuutil.h>

#include "HostPaths.h"
#include "framework/TempDir.h"

namespace {
std::vector<std::string> sorted(std::list<std::string> const& names)
{
    std::vector<std::string> result(names.begin(), names.end());
    std::sort(result.begin(), result.end());
    return result;
}
} // namespace

TEST(DirReader, ListsFilesAndDirectoriesByWildcard)
{
    tovutest::TempDir dir;
    for (char const* name : {"a.ini", "B.INI", ".hidden", "noext", "x.tar.gz"})
        std::ofstream(tovutest::joinPath(dir.path(), name)) << "x";
    tovutest::makeDir(tovutest::joinPath(dir.path(), "sub.d"));
#ifdef _WIN32
    std::vector<std::string> const everyFile{".hidden", "B.INI", "a.ini", "noext", "x.tar.gz"};
#else
    symlink(dir.path().c_str(), (dir.path() + "/loop").c_str());
    std::vector<std::string> const everyFile{".hidden", "B.INI", "a.ini", "loop", "noext", "x.tar.gz"};
#endif

    DirReader all(dir.path(), "*.*");
    EXPECT_EQ(sorted(all.getFiles()), everyFile);
    EXPECT_EQ(sorted(all.getDirectories()), std::vector<std::string>{"sub.d"});

    DirReader reader(dir.path() + "\\", "*.ini");
    EXPECT_EQ(sorted(reader.getFiles()), (std::vector<std::string>{"B.INI", "a.ini"}));
    reader.scan("?.*");
    EXPECT_EQ(sorted(reader.getFiles()), (std::vector<std::string>{"B.INI", "a.ini", "x.tar.gz"}));
    EXPECT_TRUE(reader.getDirectories().empty());
    reader.scan("no*.");
    EXPECT_EQ(sorted(reader.getFiles()), std::vector<std::string>{"noext"});

    DirReader copy(reader);
    EXPECT_EQ(copy.getFiles(), reader.getFiles());
    copy.clear();
    EXPECT_TRUE(copy.getFiles().empty());
}

TEST(DirReader, EmptyAndMissingDirectories)
{
    tovutest::TempDir dir;
    DirReader empty(dir.path(), "*.*");
    EXPECT_TRUE(empty.getFiles().empty());
    EXPECT_TRUE(empty.getDirectories().empty());
    DirReader missing(tovutest::joinPath(dir.path(), "none"), "*");
    EXPECT_TRUE(missing.getFiles().empty());
    EXPECT_TRUE(missing.getDirectories().empty());
}
