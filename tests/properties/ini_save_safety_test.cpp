// Saves never lose the old content and never write anywhere but the target.
#include <gtest/gtest.h>

#ifndef _WIN32

#include <sys/stat.h>
#include <unistd.h>

#include "IniFiles.h"
#include "framework/TreeSnapshot.h"

using msvc_tovu_ini_wrapper::Ini;
using tovutest::readFile;

namespace {

constexpr char kOld[] = "[s]\r\nk=old\r\n";

// A folder with a marker file, checked byte for byte when the test ends.
class SaveSafety : public ::testing::Test {
protected:
    void SetUp() override
    {
        tovutest::writeBytes(at("marker.txt"), "marker");
        mkdir(at("out").c_str(), 0755);
        tovutest::writeBytes(at("out/marker.txt"), "outside");
        outside_ = tovutest::snapshot(at("out"));
    }
    void TearDown() override
    {
        EXPECT_EQ(readFile(at("marker.txt")), "marker");
        EXPECT_EQ(tovutest::snapshot(at("out")), outside_);
    }
    std::string at(std::string const& name) const { return dir_.path() + "/" + name; }
    // The names in the folder, sorted: no temporary file may stay behind.
    std::list<std::string> names() const
    {
        std::list<std::string> files = DirReader(dir_.path(), "*").getFiles();
        files.sort();
        return files;
    }
    static ino_t inode(std::string const& path)
    {
        struct stat info {};
        stat(path.c_str(), &info);
        return info.st_ino;
    }

    tovutest::TempDir dir_;
    std::map<std::string, std::string> outside_;
};

TEST_F(SaveSafety, HardLinkedFilesAreRewrittenInPlaceEvenOnAFullDisk)
{
    tovutest::writeBytes(at("a.ini"), kOld);
    ASSERT_EQ(link(at("a.ini").c_str(), at("b.ini").c_str()), 0);
    ino_t const before = inode(at("a.ini"));
    Ini ini;
    ini.Open(at("a.ini").c_str());
    ini.Load();
    ini.put("s.big", std::string(20000, 'x'));
    // No room for the new content: both names keep the old one whole.
    EXPECT_EQ(tovutest::withFileSizeLimit(4096, [&ini] { return ini.Save() ? 0 : 1; }), 0);
    EXPECT_EQ(readFile(at("a.ini")), kOld);
    EXPECT_EQ(readFile(at("b.ini")), kOld);

    ini.put("s.big", "small");
    ini.put("s.k", "new");
    EXPECT_TRUE(ini.Save());
    EXPECT_EQ(readFile(at("b.ini")), "[s]\r\nk=new\r\nbig=small\r\n");
    EXPECT_EQ(inode(at("a.ini")), before);
    EXPECT_EQ(names(), (std::list<std::string>{"a.ini", "b.ini", "marker.txt"}));
}

TEST_F(SaveSafety, LongNamesStillSaveAtomically)
{
    std::string const name = std::string(250, 'n') + ".ini"; // 254 characters, the limit is 255
    tovutest::writeBytes(at(name), kOld);
    ino_t const before = inode(at(name));
    Ini ini;
    ini.Open(at(name).c_str());
    ini.Load();
    ini.put("s.k", "new");
    EXPECT_EQ(tovutest::withFileSizeLimit(8, [&ini] { return ini.Save() ? 0 : 1; }), 0);
    EXPECT_EQ(readFile(at(name)), kOld);
    EXPECT_TRUE(ini.Save());
    EXPECT_EQ(readFile(at(name)), "[s]\r\nk=new\r\n");
    EXPECT_NE(inode(at(name)), before); // replaced by a new file, not cut and rewritten
    EXPECT_EQ(names(), (std::list<std::string>{"marker.txt", name}));
}

TEST_F(SaveSafety, DirectoriesAndMissingFoldersCannotBeSaved)
{
    mkdir(at("folder.ini").c_str(), 0755);
    Ini ini;
    ini.Open(at("folder.ini").c_str());
    ini.Load();
    ini.put("s.k", "v");
    EXPECT_FALSE(ini.Save());
    struct stat info {};
    ASSERT_EQ(stat(at("folder.ini").c_str(), &info), 0);
    EXPECT_TRUE(S_ISDIR(info.st_mode));

    Ini missing;
    missing.Open(at("missing/x.ini").c_str());
    missing.put("s.k", "v");
    EXPECT_FALSE(missing.Save());
    EXPECT_EQ(names(), std::list<std::string>{"marker.txt"});
}

// Each data/<case>.in, loaded and saved, gives exactly data/<case>.ini.
TEST_F(SaveSafety, GoldenFiles)
{
    for (char const* name : {"comments", "layout", "lost_lines"}) {
        std::string const base = std::string(TOVU_INI_DATA) + "/" + name;
        tovutest::writeBytes(at("golden.ini"), readFile(base + ".in"));
        Ini ini;
        ini.Open(at("golden.ini").c_str());
        ini.Load();
        EXPECT_TRUE(ini.Save()) << name;
        EXPECT_TRUE(readFile(at("golden.ini")) == readFile(base + ".ini")) << name << ": saved bytes differ";
    }
}

} // namespace

#else
TEST(SaveSafety, PosixOnly) { GTEST_SKIP() << "needs hard links, fork and file size limits"; }
#endif
