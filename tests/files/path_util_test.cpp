#include <gtest/gtest.h>

#include <tovuutil/tovuutil.h>

#include "HostPaths.h"
#include "framework/TempDir.h"

using tovutest::hostPath;

namespace {
std::string cwd() { return tovutest::workingDirectory(); }
} // namespace

TEST(PathUtil, TransformAndFormat)
{
    EXPECT_EQ(transformPath("a\\b/c\\\\d"), "a/b/c//d");
    EXPECT_EQ(transformPath("./x/../y/"), "./x/../y/");
    EXPECT_EQ(formatPath("/a/"), "/a");
    EXPECT_EQ(formatPath("a//"), "a/");
    EXPECT_EQ(formatPath("/"), "/");
    EXPECT_EQ(formatPath("a\\"), "a\\"); // no conversion here
}

TEST(PathUtil, JoiningAndSplitting)
{
    EXPECT_EQ(getFullFilename("/d/", "/x.txt/"), "/d/x.txt");
    EXPECT_EQ(getFullFilename("", "x"), "x");
    EXPECT_EQ(getFullFilename("/d", ""), "/d/");
    EXPECT_EQ(getFullFilename("\\d", "\\\\x"), "/d/x");
    EXPECT_EQ(getFullFilename("/x", "a.txt", "pdf"), "/x/a.pdf");
    EXPECT_EQ(getFullFilename("/x", "a", ".pdf"), "/x/a.pdf");
    EXPECT_EQ(getFullFilename("/d", "", "txt"), "/d"); // the name is dropped
    EXPECT_EQ(getFullFilename("/d", "a.b", ""), "/d");

    EXPECT_EQ(getOnlyFilenameOfFullFilename("/a/b/c.txt"), "c.txt");
    EXPECT_EQ(getOnlyFilenameOfFullFilename("c.txt"), "c.txt");
    EXPECT_EQ(getOnlyPathOfFullFilename("/a/b/c.txt"), "/a/b/");
    EXPECT_EQ(getOnlyPathOfFullFilename("a.txt"), "a.txt/");
    EXPECT_EQ(concatPath("/a", "/b"), "/a/b/");
    EXPECT_EQ(concatPath("/a/", "b/"), "/a/b/");
    EXPECT_EQ(concatPath("a", "//b"), "a//b/"); // only one separator is removed at the seam

    std::string path = "p", file = "f", extension = "keep";
    EXPECT_TRUE(extractPathFilenameExtention("/a/b/x.tar.gz", path, file, extension));
    EXPECT_EQ(path, "/a/b");
    EXPECT_EQ(file, "x");
    EXPECT_EQ(extension, "tar.gz");
    extension = "keep";
    EXPECT_FALSE(extractPathFilenameExtention("/a/noext", path, file, extension));
    EXPECT_EQ(file, "noext");
    EXPECT_EQ(extension, "keep");
    EXPECT_FALSE(extractPathFilenameExtention("..", path, file, extension));
    EXPECT_EQ(path, "..");
    EXPECT_TRUE(extractPathFilenameExtention("x.txt", path, file, extension));
    EXPECT_EQ(path, "");
}

TEST(PathUtil, AbsolutePathsAndDrives)
{
    EXPECT_TRUE(isAbsolutePath("/x"));
    EXPECT_TRUE(isAbsolutePath("\\x"));
    EXPECT_TRUE(isAbsolutePath("C:x"));
    EXPECT_FALSE(isAbsolutePath("x/y"));
    EXPECT_FALSE(isAbsolutePath(""));

    EXPECT_EQ(getAbsolutePath("a/./b/../c"), cwd() + "/a/c");
    EXPECT_EQ(getAbsolutePath("/a//b/../../.."), "/");
    EXPECT_EQ(getAbsolutePath("/x/y/"), "/x/y/");
    EXPECT_EQ(getAbsolutePath("\\x\\y"), "/x/y");
    EXPECT_EQ(getCurrentDirectory(), cwd() + "/");

    EXPECT_EQ(getOnlyDriveOfFullFilename("/a/b"), "");
    EXPECT_EQ(getOnlyDriveOfFullFilename("//server/share/dir/file"), "//server/share");
    EXPECT_EQ(getCurrentDrive(), "");
    EXPECT_FALSE(changeCurrentDrive("C:"));
    EXPECT_FALSE(changeCurrentDrive(""));
}

TEST(PathUtil, TemporaryDirectoryNamesAreFreshAndUnused)
{
    tovutest::TempDir dir;
    std::string const name = createTempDirName(dir.path());
    ASSERT_EQ(name.size(), dir.path().size() + 1 + 12);
    EXPECT_EQ(name.substr(0, dir.path().size() + 1), dir.path() + tovutest::kSep);
    std::string const leaf = name.substr(dir.path().size() + 1);
    EXPECT_EQ(leaf.find(tovutest::kSep), std::string::npos);
    EXPECT_FALSE(tovutest::pathExists(name)); // nothing is created

    // When the plain name is taken, a two-digit hex suffix is added.
    ASSERT_EQ(tovutest::makeDir(name), 0);
    std::string const next = createTempDirName(dir.path());
    ASSERT_FALSE(next.empty());
    EXPECT_FALSE(tovutest::pathExists(next));
}
