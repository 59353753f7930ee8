#include <gtest/gtest.h>

#include <tovuutil/tovuutil.h>

#include "HostPaths.h"
#include "framework/TempDir.h"

using tovutest::hostPath;

namespace {
std::string cwd() { return tovutest::workingDirectory(); }
std::string M(std::string const& posixSpelling) { return tovutest::mirrored(posixSpelling); }
} // namespace

// Examples in POSIX spelling; M() mirrors them for a Windows host.
TEST(PathUtil, TransformAndFormat)
{
    EXPECT_EQ(transformPath(M("a\\b/c\\\\d")), M("a/b/c//d"));
    EXPECT_EQ(transformPath(M("./x/../y/")), M("./x/../y/"));
    EXPECT_EQ(formatPath(M("/a/")), M("/a"));
    EXPECT_EQ(formatPath(M("a//")), M("a/"));
    EXPECT_EQ(formatPath(M("/")), M("/"));
    EXPECT_EQ(formatPath(M("a\\")), M("a\\")); // no conversion here
}

TEST(PathUtil, JoiningAndSplitting)
{
    EXPECT_EQ(getFullFilename(M("/d/"), M("/x.txt/")), M("/d/x.txt"));
    EXPECT_EQ(getFullFilename("", "x"), "x");
    EXPECT_EQ(getFullFilename(M("/d"), ""), M("/d/"));
    EXPECT_EQ(getFullFilename(M("\\d"), M("\\\\x")), M("/d/x"));
    EXPECT_EQ(getFullFilename(M("/x"), "a.txt", "pdf"), M("/x/a.pdf"));
    EXPECT_EQ(getFullFilename(M("/x"), "a", ".pdf"), M("/x/a.pdf"));
    EXPECT_EQ(getFullFilename(M("/d"), "", "txt"), M("/d")); // the name is dropped
    EXPECT_EQ(getFullFilename(M("/d"), "a.b", ""), M("/d"));

    EXPECT_EQ(getOnlyFilenameOfFullFilename(M("/a/b/c.txt")), "c.txt");
    EXPECT_EQ(getOnlyFilenameOfFullFilename("c.txt"), "c.txt");
    EXPECT_EQ(getOnlyPathOfFullFilename(M("/a/b/c.txt")), M("/a/b/"));
    EXPECT_EQ(getOnlyPathOfFullFilename("a.txt"), M("a.txt/"));
    EXPECT_EQ(concatPath(M("/a"), M("/b")), M("/a/b/"));
    EXPECT_EQ(concatPath(M("/a/"), M("b/")), M("/a/b/"));
    EXPECT_EQ(concatPath("a", M("//b")), M("a//b/")); // only one separator is removed at the seam

    std::string path = "p", file = "f", extension = "keep";
    EXPECT_TRUE(extractPathFilenameExtention(M("/a/b/x.tar.gz"), path, file, extension));
    EXPECT_EQ(path, M("/a/b"));
    EXPECT_EQ(file, "x");
    EXPECT_EQ(extension, "tar.gz");
    extension = "keep";
    EXPECT_FALSE(extractPathFilenameExtention(M("/a/noext"), path, file, extension));
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

#ifdef _WIN32
    std::string const drive = cwd().substr(0, 2);
    EXPECT_EQ(getAbsolutePath("a/./b/../c"), cwd() + "\\a\\c");
    EXPECT_EQ(getAbsolutePath("/a//b/../../.."), drive + "\\");
    EXPECT_EQ(getAbsolutePath("/x/y/"), drive + "\\x\\y\\");
    EXPECT_EQ(getAbsolutePath("\\x\\y"), drive + "\\x\\y");
    EXPECT_EQ(getCurrentDirectory(), cwd() + "\\");

    EXPECT_EQ(getOnlyDriveOfFullFilename("C:\\x"), "C:");
    EXPECT_EQ(getOnlyDriveOfFullFilename("/a/b"), drive);
    EXPECT_EQ(getOnlyDriveOfFullFilename("//server/share/dir/file"), "\\\\server\\share");
    EXPECT_EQ(getCurrentDrive(), drive);
    EXPECT_TRUE(changeCurrentDrive("C:"));
    EXPECT_EQ(getCurrentDrive(), "C:");
    EXPECT_TRUE(changeCurrentDrive(drive));
    EXPECT_FALSE(changeCurrentDrive(""));
#else
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
#endif
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
