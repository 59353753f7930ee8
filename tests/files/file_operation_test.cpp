#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#ifndef _WIN32
#include <unistd.h>
#endif

#include <cstdlib>
#include <fstream>

#include <tovuutil/tovuutil.h>

#include "HostPaths.h"
#include "framework/LogCapture.h"
#include "framework/TempDir.h"

namespace {

// Every test works in a directory of its own, with "tovu.log" there.
class FileOperation : public ::testing::Test {
protected:
    void SetUp() override
    {
        log4cxx::Log4cxx::relocateLog("", "", dir_.path() + tovutest::kSep);
    }

    std::string at(std::string const& name) const { return tovutest::joinPath(dir_.path(), tovutest::hostPath(name)); }
    void write(std::string const& name, std::string const& content) const
    {
        std::ofstream(at(name), std::ios::binary) << content;
    }
    std::string read(std::string const& name) const { return tovutest::readFile(at(name)); }
    bool exists(std::string const& name) const
    {
#ifdef _WIN32
        return tovutest::pathExists(at(name));
#else
        struct stat info;
        return lstat(at(name).c_str(), &info) == 0;
#endif
    }
    std::vector<std::string> log() const { return tovutest::logMessages(dir_.path()); }
    void forgetLog() const { std::ofstream(at("tovu.log"), std::ios::trunc); }

    tovutest::TempDir dir_;
};

} // namespace

TEST_F(FileOperation, MissingFilesAreExplainedInTheLog)
{
    std::string const missing = at("missing.txt");
    EXPECT_FALSE(fileExists(missing));
    EXPECT_EQ(deleteFile(missing), -1);
    EXPECT_EQ(getFileLength(missing), -1);
    EXPECT_EQ(pathExists(missing), 0);
    std::string const enoent = "fileAccess ERROR (" + missing +
                               "): Ein Teil aus den Verzeichnissen in Pfadname existiert nicht oder ist ein "
                               "schlackernder symbolischer Link.";
    EXPECT_EQ(log(), (std::vector<std::string>{
                         enoent,
                         enoent,
                         "deleteFile: Die Datei '" + missing + "' existiert nicht.",
                         enoent,
                         "getFileLength: Die Datei '" + missing + "' existiert nicht.",
                     }));
}

TEST_F(FileOperation, ErrnoTablesGiveTheirTexts)
{
    write("file", "x");
    EXPECT_EQ(deleteDir(at("file")), -1);
    EXPECT_EQ(deleteDir(at("nodir")), -1);
    EXPECT_FALSE(changeDir(at("nodir")));
    EXPECT_EQ(changeMode(at("nodir"), 0644), -1);
    ASSERT_EQ(tovutest::makeDir(at("full")), 0);
    write("full/x", "");
    EXPECT_EQ(deleteDir(at("full")), -1);
    EXPECT_EQ(deleteFile(at("full")), -1); // a directory is no file for remove()... but rmdir works on empty ones
#ifdef _WIN32
    // The C runtime gives EINVAL for a file passed to _rmdir and EACCES for a
    // directory passed to remove().
    std::string const notADirectory = "The path argument contains a last component that is dot.";
    std::string const notAFile = "Schreibzugriff auf das Verzeichnis, das Pfadname enth\xE4lt, ist f\xFCr die aktuell "
                                 "g\xFCltige uid des Prozesses nicht erlaubt, oder eines der Verzeichnisse in Pfadname "
                                 "erlaubt keinen Such- (Ausf\xFChr-) zugriff.";
#else
    std::string const notADirectory =
        "pathname, oder ein als Verzeichnis benutzter Teil von pathname, ist kein Verzeichnis.";
    std::string const notAFile = "Unbekannter Fehler.(" + std::to_string(ENOTEMPTY) + ")";
#endif
    EXPECT_EQ(log(), (std::vector<std::string>{
                         "deleteDir(" + at("file") + "): " + notADirectory,
                         "deleteDir(" + at("nodir") +
                             "): Ein Teil des Verzeichnisses in pathname existiert nicht, oder ist ein kaputter "
                             "symbolischer Link.",
                         "changeDir(" + at("nodir") + "): Der angegebene Pfadname existiert nicht.",
                         "changeMode(" + at("nodir") + "): Der angegebene Pfadname existiert nicht.",
                         "deleteDir(" + at("full") +
                             "): pathname enth\xE4llt andere Eintr\xE4ge als . und .. (das Verzeichnis ist nicht "
                             "leer). ",
                         "deleteFile(" + at("full") + "): " + notAFile,
                     }));
}

TEST_F(FileOperation, WritingReadingAndAppending)
{
    std::string const binary("a\0b\r\n\xFF", 6);
    EXPECT_TRUE(writeString2File(at("t"), binary));
    EXPECT_EQ(read("t"), binary);
    EXPECT_TRUE(appendString2File(at("t"), "zz"));
    EXPECT_EQ(read("t"), binary + "zz");
    EXPECT_TRUE(writeBinary2File(at("b"), reinterpret_cast<unsigned char const*>(binary.data()), 6));
    EXPECT_TRUE(appendBinary2File(at("b"), reinterpret_cast<unsigned char const*>("!"), 1));
    EXPECT_EQ(read("b"), binary + "!");
    EXPECT_EQ(getFileLength(at("b")), 7);

    unsigned char* buffer = nullptr;
    ASSERT_EQ(readBinaryFromFile(at("b"), &buffer), 7);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(buffer), 8), binary + "!" + std::string(1, '\0'));
    std::free(buffer);
    EXPECT_EQ(readBinaryFromFile(at("none"), &buffer), -1);
    EXPECT_EQ(buffer, nullptr);

    write("lines", "eins\r\nzwei\n\ndrei");
    std::list<std::string> lines;
    EXPECT_TRUE(readStringFromFile(at("lines"), lines));
    EXPECT_EQ(lines, (std::list<std::string>{"eins", "zwei", "", "drei"}));
    std::string text;
    EXPECT_TRUE(readStringFromFile(at("lines"), text));
    EXPECT_EQ(text, "eins\r\nzwei\r\n\r\ndrei\r\n");
    EXPECT_FALSE(readStringFromFile(at("none"), text));
    EXPECT_FALSE(writeString2File(at("nodir/x"), "x"));
    EXPECT_EQ(log().back(), "writeString2FileDo: Vermutlich konnte die Datei nicht geschrieben werden.");
}

TEST_F(FileOperation, CopyMoveAndCompare)
{
    write("a", "inhalt");
    write("empty", "");
    EXPECT_TRUE(copyFile(at("empty"), at("empty2"), false));
    EXPECT_TRUE(exists("empty2"));
    EXPECT_TRUE(compareFilesBinary(at("empty"), at("empty2")));
    EXPECT_TRUE(copyFile(at("a"), at("b"), false));
    EXPECT_EQ(read("b"), "inhalt");
    EXPECT_TRUE(compareFilesBinary(at("a"), at("b")));
    EXPECT_FALSE(compareFilesBinary(at("a"), at("empty")));
    EXPECT_FALSE(compareFilesBinary(at("a"), at("none")));
    write("c", "inhalT");
    EXPECT_FALSE(compareFilesBinary(at("a"), at("c")));

    forgetLog();
    EXPECT_FALSE(copyFile(at("a"), at("b"), false));
    EXPECT_EQ(log(), (std::vector<std::string>{"copyFile: Die Datei '" + at("b") +
                                               "' existiert bereits und kann daher nicht \xFC" "berschrieben werden."}));
    EXPECT_EQ(moveFile(at("a"), at("b"), false, false), -1);
    EXPECT_TRUE(exists("a"));
    EXPECT_EQ(moveFile(at("a"), at("b"), true, false), 0);
    EXPECT_FALSE(exists("a"));
    EXPECT_EQ(read("b"), "inhalt");
    EXPECT_TRUE(copyFile(at("b"), at("b"), true)); // onto itself: unchanged
    EXPECT_EQ(read("b"), "inhalt");

    // A large file copies and compares block by block.
    std::string big(3 * 1024 * 1024 + 17, '\0');
    for (std::size_t i = 0; i < big.size(); ++i)
        big[i] = static_cast<char>(i * 7);
    write("big", big);
    EXPECT_TRUE(copyFile(at("big"), at("big2"), false));
    EXPECT_TRUE(compareFilesBinary(at("big"), at("big2")));
    EXPECT_EQ(read("big2"), big);
}

TEST_F(FileOperation, SecureDeletion)
{
    write("secret", "geheim");
    EXPECT_EQ(deleteFileSecure(at("secret")), 0);
    EXPECT_FALSE(exists("secret"));
    EXPECT_EQ(deleteFileSecure(at("secret")), -1);

    // Something that exists but cannot be opened for overwriting (a
    // directory, which even root cannot open so): nothing happens but a line.
    ASSERT_EQ(tovutest::makeDir(at("dir")), 0);
    forgetLog();
    EXPECT_EQ(deleteFileSecure(at("dir")), -1);
    EXPECT_EQ(pathExists(at("dir")), 'd');
    EXPECT_EQ(log(), std::vector<std::string>{"deleteFileSecure: Vermutlich konnte die Datei nicht gel\xF6scht werden."});
}

TEST_F(FileOperation, ExistenceDirectoriesAndModes)
{
    ASSERT_EQ(tovutest::makeDir(at("d")), 0);
    write("f", "x");
    EXPECT_EQ(pathExists(at("d") + "/"), 'd');
    EXPECT_EQ(pathExists(at("d") + "\\"), 'd');
    EXPECT_EQ(pathExists(at("f")), 'f');
    EXPECT_EQ(fileAccess(at("f"), 4), 0);
#ifndef _WIN32 // the Windows C runtime accepts every mode
    EXPECT_EQ(fileAccess(at("f"), 1), -1); // not a mode the host offers
#endif
    EXPECT_EQ(changeMode(at("f"), 0600), 0);
#ifndef _WIN32 // Windows keeps only a read-only bit
    struct stat info;
    stat(at("f").c_str(), &info);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
#endif
    std::tm const t = getFileTime(at("f"));
    EXPECT_GE(t.tm_year, 120);

    EXPECT_TRUE(createDir(at("n1/n2/n3"), 0755));
    EXPECT_EQ(pathExists(at("n1/n2/n3")), 'd');
    EXPECT_TRUE(createDir(at("n1/n2"), 0755)); // exists already
    forgetLog();
    EXPECT_FALSE(createDir(at("f/sub"), 0755));
    EXPECT_EQ(log(), (std::vector<std::string>{"createDir: Der Pfad '" + at("f") + "' existiert bereits als Datei."}));

    std::string const before = tovutest::workingDirectory();
    EXPECT_TRUE(changeDir(at("d")));
    EXPECT_EQ(tovutest::workingDirectory(), at("d"));
    EXPECT_TRUE(changeDir(before));
}

TEST_F(FileOperation, TreesAreDeletedCopiedAndMovedWithoutFollowingLinks)
{
#ifdef _WIN32
    GTEST_SKIP() << "symbolic links are POSIX-only here";
#else
    // outside/keep must survive everything that happens to the tree.
    ASSERT_EQ(tovutest::makeDir(at("outside")), 0);
    write("outside/keep", "bleibt");
    ASSERT_EQ(tovutest::makeDir(at("tree")), 0);
    ASSERT_EQ(tovutest::makeDir(at("tree/sub")), 0);
    ASSERT_EQ(tovutest::makeDir(at("tree/sub/deep")), 0);
    write("tree/a", "A");
    write("tree/.hidden", "H");
    write("tree/sub/b", std::string("B\0B", 3));
    write("tree/sub/deep/c", "C");
    ASSERT_EQ(symlink(at("outside").c_str(), at("tree/sub/linkdir").c_str()), 0);
    ASSERT_EQ(symlink(at("outside/keep").c_str(), at("tree/linkfile").c_str()), 0);
    ASSERT_EQ(symlink(at("nowhere").c_str(), at("tree/dangling").c_str()), 0);

    EXPECT_TRUE(copyFolder(at("tree"), at("copy/of/tree"), false));
    EXPECT_EQ(read("copy/of/tree/sub/b"), std::string("B\0B", 3));
    EXPECT_EQ(read("copy/of/tree/sub/deep/c"), "C");
    EXPECT_EQ(read("copy/of/tree/.hidden"), "H");
    EXPECT_EQ(read("copy/of/tree/linkfile"), "bleibt"); // copied as a plain file
    struct stat info;
    ASSERT_EQ(lstat(at("copy/of/tree/linkfile").c_str(), &info), 0);
    EXPECT_TRUE(S_ISREG(info.st_mode));

    EXPECT_EQ(deleteDirRecursive(at("tree"), false, false), 0);
    EXPECT_TRUE(exists("tree"));
    EXPECT_FALSE(exists("tree/sub"));
    EXPECT_FALSE(exists("tree/a"));
    EXPECT_EQ(read("outside/keep"), "bleibt");

    EXPECT_EQ(moveFolder(at("copy"), at("moved"), false, true), 0);
    EXPECT_FALSE(exists("copy"));
    EXPECT_EQ(read("moved/of/tree/a"), "A");
    EXPECT_EQ(deleteDirRecursive(at("moved"), true, true), 0);
    EXPECT_FALSE(exists("moved"));
    EXPECT_EQ(read("outside/keep"), "bleibt");
#endif
}

TEST_F(FileOperation, ADeepTreeNeedsNoDeepStack)
{
#ifdef _WIN32
    GTEST_SKIP() << "a Windows path stops at MAX_PATH long before 300 levels";
#endif
    std::string path = at("deep");
    ASSERT_EQ(tovutest::makeDir(path), 0);
    std::string relative = "deep";
    for (int i = 0; i < 300; ++i) {
        relative += "/d";
        ASSERT_EQ(tovutest::makeDir(at(relative)), 0);
    }
    write(relative + "/f", "x");
    EXPECT_EQ(deleteDirRecursive(at("deep"), false, true), 0);
    EXPECT_FALSE(exists("deep"));
}
