#include <gtest/gtest.h>

#include <csignal>
#include <sys/stat.h>
#ifndef _WIN32
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "HostPaths.h"
#include "IniFiles.h"

using msvc_tovu_ini_wrapper::Ini;
using msvc_tovu_ini_wrapper::Log;
using tovutest::LoadedIni;
using tovutest::readFile;

TEST(IniSave, ExactBytesAndReopenedForReading)
{
    LoadedIni f("; head\r\n[b]\r\nk = 1 \r\n[empty]\r\n[a]\r\nx=y=z\r\n");
    f.ini.put("b.new", "2");
    f.ini.put(std::string("c.") + std::string(4997, 'n'), "1"); // "name=1\n" is 5000 characters: left out
    f.ini.put("c.ok", std::string(4994, 'v'));                   // exactly 4999: written
    EXPECT_TRUE(f.ini.Save());
    std::string const expected = "[b]\r\nk=1\r\nnew=2\r\n[empty]\r\n[a]\r\nx=y=z\r\n[c]\r\nok=" +
                                 std::string(4994, 'v') + "\r\n";
    EXPECT_TRUE(readFile(f.path) == expected) << "saved bytes differ";
    EXPECT_TRUE(f.ini.IsOpen());
    Ini again;
    again.Open(f.path.c_str());
    again.Load();
    EXPECT_EQ(again.getSectionNames(), (std::list<std::string>{"b", "empty", "a", "c"}));
    // The saved object reads its own file from the start.
    EXPECT_TRUE(f.ini.Load());
    EXPECT_EQ(f.ini.get("b.new"), "2");
}

TEST(IniSave, KeepsPermissionsAndLinks)
{
#ifdef _WIN32
    GTEST_SKIP() << "mode bits and symbolic links are POSIX-only";
#else
    LoadedIni f("[s]\r\nk=1\r\n");
    ASSERT_EQ(chmod(f.path.c_str(), 0640), 0);
    std::string const link = f.dir.path() + "/link.ini";
    ASSERT_EQ(symlink(f.path.c_str(), link.c_str()), 0);
    Ini viaLink;
    viaLink.Open(link.c_str());
    viaLink.Load();
    viaLink.put("s.k", "2");
    EXPECT_TRUE(viaLink.Save());
    struct stat info;
    ASSERT_EQ(lstat(link.c_str(), &info), 0);
    EXPECT_TRUE(S_ISLNK(info.st_mode));
    ASSERT_EQ(stat(f.path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0640u);
    EXPECT_EQ(readFile(f.path), "[s]\r\nk=2\r\n");
#endif
}

TEST(IniSave, AFullDiskLeavesTheOldFileWhole)
{
#ifdef _WIN32
    GTEST_SKIP() << "needs fork and setrlimit to fill the disk";
#else
    std::string big(200000, 'x');
    LoadedIni f("[s]\r\nk=old\r\n");
    f.ini.put("s.big", big);
    pid_t const child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{4096, 4096};
        setrlimit(RLIMIT_FSIZE, &limit);
        _exit(f.ini.Save() ? 0 : 1); // opened for writing: true, even though the write failed
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(readFile(f.path), "[s]\r\nk=old\r\n");
    // No temporary file is left behind.
    DirReader reader(f.dir.path(), "*");
    EXPECT_EQ(reader.getFiles(), std::list<std::string>{"t.ini"});
#endif
}

TEST(IniSave, UnwritablePlacesGiveFalse)
{
    Ini ini;
    ini.Log::Open(tovutest::hostPath("/nonexistent/dir/x.ini").c_str(), true, true, true);
    ini.put("s.k", "v");
    EXPECT_FALSE(ini.Save());
    EXPECT_EQ(ini.get("s.k"), "v"); // the content in memory stays

    Ini never;
    never.put("s.k", "v");
    EXPECT_FALSE(never.Save()); // no path: nothing is created anywhere
}

TEST(PlainLog, WritesInTextMode)
{
    tovutest::TempDir dir;
    std::string const path = tovutest::joinPath(dir.path(), "plain.log");
    Log log;
    EXPECT_FALSE(log.Write("x", 1));
    EXPECT_FALSE(log.Write("%s", "x"));
    ASSERT_TRUE(log.Open(path.c_str(), false, false, true));
    EXPECT_TRUE(log.Write("a\nb", 3));
    EXPECT_TRUE(log.Write("%d-%s\n", 7, "z"));
    EXPECT_FALSE(log.Write("%s", ""));
    EXPECT_FALSE(log.Write("%s", std::string(5000, 'l').c_str()));
    log.Flush();
    log.Close();
    EXPECT_FALSE(log.IsOpen());
    EXPECT_EQ(readFile(path), "a\r\nb7-z\r\n");
    ASSERT_TRUE(log.Open(path.c_str(), false, true, true));
    log.Write("+", 1);
    log.Close();
    EXPECT_EQ(readFile(path), "a\r\nb7-z\r\n+");
    EXPECT_EQ(log.GetPath(), path);
}
