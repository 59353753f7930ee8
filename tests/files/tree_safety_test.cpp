// What the tree walks and moves may touch: the tree they are given and
// nothing else, whatever its names and links. Each test compares a folder
// beside the tree, byte for byte, before and after.
#include <gtest/gtest.h>

#ifndef _WIN32

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include <tovuutil/tovuutil.h>

#include "framework/LogCapture.h"
#include "framework/TempDir.h"
#include "framework/TreeSnapshot.h"

namespace {

class TreeSafety : public ::testing::Test {
protected:
    void SetUp() override
    {
        log4cxx::Log4cxx::relocateLog("", "", dir_.path() + "/");
        mkdir(at("out").c_str(), 0755);
        mkdir(at("out/victimdir").c_str(), 0755);
        write("out/victim.txt", "keep me");
        write("out/victimdir/inner.txt", "keep me too");
        before_ = tovutest::snapshot(at("out"));
    }
    void TearDown() override { EXPECT_EQ(tovutest::snapshot(at("out")), before_) << "outside the tree changed"; }

    std::string at(std::string const& name) const { return dir_.path() + "/" + name; }
    void write(std::string const& name, std::string const& content) const
    {
        std::ofstream(at(name), std::ios::binary) << content;
    }
    void makeDirs(std::initializer_list<char const*> names) const
    {
        for (char const* name : names)
            ASSERT_EQ(mkdir(at(name).c_str(), 0755), 0) << name;
    }
    void link(std::string const& target, std::string const& name) const
    {
        ASSERT_EQ(symlink(target.c_str(), at(name).c_str()), 0) << name;
    }
    bool exists(std::string const& name) const
    {
        struct stat info;
        return lstat(at(name).c_str(), &info) == 0;
    }

    tovutest::TempDir dir_;
    std::map<std::string, std::string> before_;
};

TEST_F(TreeSafety, BackslashNamesAreNamesNotPaths)
{
    makeDirs({"t", "t/..\\out\\victimdir", "t/sub"});
    write("t/..\\out\\victim.txt", "inside");
    write("t/..\\out\\victimdir/x", "inside");
    write("t/sub/..\\..\\..\\out\\victim.txt", "deep inside");
    write("t/line\nbreak\xe9.txt", "odd name");

    EXPECT_TRUE(copyFolder(at("t"), at("dst/x/copy"), false));
    EXPECT_FALSE(exists("dst/x/escaped"));
    EXPECT_EQ(tovutest::snapshot(at("dst/x/copy")), tovutest::snapshot(at("t")));

    EXPECT_EQ(moveFolder(at("dst/x/copy"), at("moved"), false, true), 0);
    EXPECT_FALSE(exists("dst/x/copy"));
    EXPECT_EQ(tovutest::snapshot(at("moved")), tovutest::snapshot(at("t")));

    EXPECT_EQ(deleteDirRecursive(at("t"), false, true), 0);
    EXPECT_EQ(deleteDirRecursive(at("moved"), true, false), 0);
    EXPECT_FALSE(exists("t"));
    EXPECT_TRUE(tovutest::snapshot(at("moved")).empty());
}

TEST_F(TreeSafety, LinksInsideTheTreeAreNeverFollowed)
{
    makeDirs({"t", "t/d"});
    write("t/d/own.txt", "own");
    link(at("out/victim.txt"), "t/toFile");
    link("../../out/victim.txt", "t/d/relativeToFile");
    link(at("out/victimdir"), "t/toDir");
    link("..", "t/d/toParent");
    link(at("nowhere"), "t/dangling");
    link("own.txt", "t/d/toOwnFile");

    // A copy takes links to files as the files' bytes and leaves out the rest.
    EXPECT_TRUE(copyFolder(at("t"), at("copy"), false));
    std::map<std::string, std::string> const copied = tovutest::snapshot(at("copy"));
    std::map<std::string, std::string> const expected{
        {"d", "dir"}, {"d/own.txt", "own"}, {"d/relativeToFile", "keep me"}, {"d/toOwnFile", "own"},
        {"toFile", "keep me"}};
    EXPECT_EQ(copied, expected);

    // A secure move overwrites only the tree's own files and removes links.
    EXPECT_EQ(moveFolder(at("t"), at("moved"), false, true), 0);
    EXPECT_FALSE(exists("t"));
    EXPECT_EQ(tovutest::snapshot(at("moved")), expected);

    makeDirs({"t2"});
    link(at("out/victim.txt"), "t2/toFile");
    link(at("out/victimdir"), "t2/toDir");
    link(at("nowhere"), "t2/dangling");
    EXPECT_EQ(deleteDirRecursive(at("t2"), true, true), 0);
    EXPECT_FALSE(exists("t2"));

    // Outside a walk a secure delete of a link removes the link only.
    link(at("out/victim.txt"), "single");
    EXPECT_EQ(deleteFileSecure(at("single")), 0);
    EXPECT_FALSE(exists("single"));
}

TEST_F(TreeSafety, ALinkAsTheRootIsRefused)
{
    link(at("out"), "rootlink");
    tovutest::CapturedLog captured("tovuutil.fileoperation");
    EXPECT_EQ(deleteDirRecursive(at("rootlink"), false, true), -1);
    EXPECT_EQ(deleteDirRecursive(at("rootlink") + "/", true, false), -1);
    EXPECT_EQ(moveFolder(at("rootlink"), at("moved"), false, false), -1);
    EXPECT_FALSE(exists("moved"));
    EXPECT_TRUE(exists("rootlink"));
    std::string const refused = "deleteDir(" + at("rootlink") +
                                "): pathname, oder ein als Verzeichnis benutzter Teil von pathname, ist kein Verzeichnis.";
    EXPECT_EQ(captured.lines(), (std::vector<std::string>{refused, refused, refused}));

    // Copying follows a root link, as every path test of a caller's path does.
    EXPECT_TRUE(copyFolder(at("rootlink"), at("copy"), false));
    EXPECT_EQ(tovutest::snapshot(at("copy")), before_);
}

TEST_F(TreeSafety, TenThousandLevels)
{
    constexpr int kDepth = 10000;
    makeDirs({"deep"});
    int handle = open(at("deep").c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < kDepth; ++level) {
        ASSERT_EQ(mkdirat(handle, "level", 0755), 0);
        int const next = openat(handle, "level", O_RDONLY | O_DIRECTORY);
        close(handle);
        handle = next;
    }
    close(openat(handle, "leaf.txt", O_WRONLY | O_CREAT, 0644));
    close(handle);

    // A move is a copy and a delete: every walk goes to the bottom once.
    EXPECT_EQ(moveFolder(at("deep"), at("moved"), false, false), 0);
    EXPECT_FALSE(exists("deep"));
    handle = open(at("moved").c_str(), O_RDONLY | O_DIRECTORY);
    int depth = 0;
    for (int next; (next = openat(handle, "level", O_RDONLY | O_DIRECTORY)) >= 0; ++depth) {
        close(handle);
        handle = next;
    }
    EXPECT_EQ(faccessat(handle, "leaf.txt", F_OK, 0), 0);
    close(handle);
    EXPECT_EQ(depth, kDepth);
    EXPECT_EQ(deleteDirRecursive(at("moved"), true, true), 0);
    EXPECT_FALSE(exists("moved"));
}

TEST_F(TreeSafety, MovesKeepTheSourceUnlessTheCopyIsWhole)
{
    write("file.txt", "payload");
    // A missing folder: copyFile still answers true, the move refuses.
    EXPECT_TRUE(copyFile(at("file.txt"), at("missing/dir/f.txt"), true));
    EXPECT_EQ(moveFile(at("file.txt"), at("missing/dir/f.txt"), true, false), -1);
    EXPECT_EQ(tovutest::readFile(at("file.txt")), "payload");

    // A full disk halfway through the copy.
    write("big.bin", std::string(100000, 'b'));
    EXPECT_EQ(tovutest::withFileSizeLimit(4096, [this] {
                  return moveFile(at("big.bin"), at("target.bin"), true, false) == -1 ? 0 : 1;
              }),
              0);
    EXPECT_EQ(tovutest::readFile(at("big.bin")), std::string(100000, 'b'));

    makeDirs({"t", "t/sub"});
    write("t/sub/big.bin", std::string(100000, 'c'));
    EXPECT_EQ(tovutest::withFileSizeLimit(4096, [this] {
                  return moveFolder(at("t"), at("moved"), true, false) == -1 ? 0 : 1;
              }),
              0);
    EXPECT_EQ(tovutest::readFile(at("t/sub/big.bin")), std::string(100000, 'c'));

    // A target below a plain file cannot be made at all.
    EXPECT_EQ(moveFolder(at("t"), at("file.txt/below"), true, false), -1);
    EXPECT_TRUE(exists("t/sub/big.bin"));

    // A copy inside its own source stops there, and the source stays.
    EXPECT_EQ(moveFolder(at("t"), at("t/sub/copy"), true, false), 1);
    EXPECT_EQ(tovutest::readFile(at("t/sub/copy/sub/big.bin")), std::string(100000, 'c'));
    EXPECT_FALSE(exists("t/sub/copy/sub/copy"));
    EXPECT_EQ(moveFolder(at("t"), at("t"), true, false), 1);
    EXPECT_TRUE(exists("t/sub/big.bin"));
}

TEST_F(TreeSafety, PathTestsFollowLinksButDeletingALinkRemovesOnlyIt)
{
    makeDirs({"realdir"});
    write("file.txt", "f");
    link(at("realdir"), "linkdir");
    link(at("nowhere"), "dangling");
    link(at("out/victim.txt"), "linkfile");
    EXPECT_EQ(pathExists(at("linkdir")), 'd');
    EXPECT_EQ(pathExists(at("dangling")), 0);
    EXPECT_EQ(pathExists(at("linkfile")), 'f');
    EXPECT_TRUE(createDir(at("linkdir/new/deeper"), 0755));
    EXPECT_TRUE(exists("realdir/new/deeper"));

    struct stat target;
    ASSERT_EQ(stat(at("out/victim.txt").c_str(), &target), 0);
    std::tm local{};
    localtime_r(&target.st_mtime, &local);
    std::tm const viaLink = getFileTime(at("linkfile"));
    EXPECT_EQ(std::mktime(const_cast<std::tm*>(&viaLink)), std::mktime(&local));

    DirReader reader(dir_.path(), "*.*");
    std::list<std::string> files = reader.getFiles();
    EXPECT_NE(std::find(files.begin(), files.end(), "linkdir"), files.end());

    EXPECT_EQ(deleteFile(at("dangling")), 0);
    EXPECT_EQ(deleteFile(at("linkfile")), 0);
    EXPECT_FALSE(exists("dangling"));
    EXPECT_FALSE(exists("linkfile"));
}

} // namespace

#else
TEST(TreeSafety, PosixOnly) { GTEST_SKIP() << "the hazards here are POSIX names and links"; }
#endif
