#include <gtest/gtest.h>

#include <fstream>
#include <log4cpp/Category.hh>
#include <log4cpp/Priority.hh>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

#include <tovuutil/tovuutil.h>

#include "HostPaths.h"
#include "framework/LogCapture.h"
#include "framework/TempDir.h"
#include "sysprops/LoadTime.h"

using tovutest::CapturedLog;
using tovutest::readFile;
using tovutest::TempDir;

namespace {

PropertiesService* service() { return static_cast<PropertiesService*>(UtilServiceFactory::getService(1)); }

void writeFile(std::string const& path, std::string const& text)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}

bool exists(std::string const& path)
{
    struct stat info;
    return stat(path.c_str(), &info) == 0;
}

// A fresh INI home below the working directory.
class PropertiesServiceTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(0, setSystemPropertyIniHome(home_.path())); }
    std::string inHome(std::string const& name) const { return home_.path() + tovutest::kSep + name; }
    std::string const& home() const { return home_.path(); }

private:
    TempDir home_;
};

} // namespace

TEST_F(PropertiesServiceTest, BareAndRelativeNames)
{
    PropertiesService* s = service();
    writeFile(inHome("a.ini"), "[S]\r\nk=im home\r\n");
    EXPECT_EQ(inHome("a.ini"), s->loadProperties("a.ini"));
    EXPECT_EQ("im home", s->getProperty("a.ini", "S.k"));

    // With a directory part the name is taken relative to the working directory.
    TempDir local;
    std::string const relative = local.path().substr(tovutest::workingDirectory().size() + 1);
    writeFile(local.path() + tovutest::kSepText + "a.ini", "[S]\r\nk=lokal\r\n");
    EXPECT_EQ(local.path() + tovutest::kSepText + "a.ini", s->loadProperties(relative + "\\a.ini"));
    EXPECT_EQ("lokal", s->getProperty(relative + "\\a.ini", "S.k"));
    EXPECT_EQ("lokal", s->getProperty(relative + "/a.ini", "S.k"));
    EXPECT_EQ("im home", s->getProperty(inHome("a.ini"), "S.k"));
}

TEST_F(PropertiesServiceTest, OneSharedObjectPerFile)
{
    PropertiesService* s = service();
    writeFile(inHome("b.ini"), "[S]\r\nk=1\r\n");
    s->setProperty("b.ini", "S.k", "im Speicher");
    EXPECT_EQ("im Speicher", s->getProperty(inHome("b.ini"), "S.k"));
    std::string const relative = home().substr(tovutest::workingDirectory().size() + 1);
    EXPECT_EQ("im Speicher", s->getProperty("./" + relative + "/../" + relative + "\\b.ini", "S.k"));
    EXPECT_EQ("1", tovutest::readFile(inHome("b.ini")).substr(7, 1));

    {
        // Another service object sees the same cache; destroying it empties the cache.
        PropertiesServiceImpl other;
        EXPECT_EQ("im Speicher", other.getProperty("b.ini", "S.k"));
    }
    EXPECT_EQ("1", s->getProperty("b.ini", "S.k"));
}

TEST_F(PropertiesServiceTest, DefaultFilesAreCreatedInTheIniHome)
{
    PropertiesService* s = service();
    EXPECT_FALSE(exists(inHome("tm.ini")));
    EXPECT_EQ(inHome("tm.ini"), s->loadProperties("tm.ini"));
    EXPECT_EQ("", readFile(inHome("tm.ini")));
    EXPECT_TRUE(exists(inHome("tm.ini")));

    // Any name ending in the default name creates the default file in the
    // INI home; the file asked for is loaded as named.
    TempDir local;
    EXPECT_EQ(local.path() + tovutest::kSepText + "xtdf.dii", s->loadProperties(local.path() + tovutest::kSepText + "xtdf.dii"));
    EXPECT_TRUE(exists(inHome("tdf.dii")));
    EXPECT_FALSE(exists(local.path() + tovutest::kSepText + "xtdf.dii"));

    // An existing default file is left as it is.
    writeFile(inHome("tdf.dii"), "[TEST]\r\nNO_DIALOG=TRUE\r\n");
    EXPECT_EQ(inHome("tdf.dii"), s->loadProperties("tdf.dii"));
    EXPECT_EQ("TRUE", s->getProperty("tdf.dii", "TEST.NO_DIALOG"));
}

TEST_F(PropertiesServiceTest, MissingFileIsCachedEmpty)
{
    PropertiesService* s = service();
    CapturedLog errors("tovuutil.PropertiesFileResourceManager");
    EXPECT_EQ(inHome("fehlt.ini"), s->loadProperties("fehlt.ini"));
    EXPECT_EQ("", s->getProperty("fehlt.ini", "A.b"));
    EXPECT_EQ("d", s->getProperty("fehlt.ini", "A.b", "d"));
    EXPECT_FALSE(s->isAvailable("fehlt.ini", "A.b"));
    EXPECT_EQ(std::vector<std::string>{"Properties Datei '" + inHome("fehlt.ini") + "' kann nicht geladen werden."},
              errors.lines());

    // Loaded once: the file appearing later is not seen until unloaded.
    writeFile(inHome("fehlt.ini"), "[A]\r\nb=da\r\n");
    EXPECT_EQ("", s->getProperty("fehlt.ini", "A.b"));
    EXPECT_TRUE(s->unloadProperties("fehlt.ini"));
    EXPECT_EQ("da", s->getProperty("fehlt.ini", "A.b"));
}

TEST_F(PropertiesServiceTest, UnloadForgetsAndReloads)
{
    PropertiesService* s = service();
    EXPECT_FALSE(s->unloadProperties("nie.ini"));
    EXPECT_FALSE(s->unloadProperties(""));
    EXPECT_EQ("", s->loadProperties(""));

    writeFile(inHome("c.ini"), "[S]\r\nk=alt\r\n");
    EXPECT_EQ("alt", s->getProperty("c.ini", "S.k"));
    writeFile(inHome("c.ini"), "[S]\r\nk=neu\r\n");
    EXPECT_EQ("alt", s->getProperty("c.ini", "S.k"));
    EXPECT_TRUE(s->unloadProperties(inHome("c.ini")));
    EXPECT_FALSE(s->unloadProperties("c.ini"));
    EXPECT_EQ("neu", s->getProperty("c.ini", "S.k"));
}

TEST_F(PropertiesServiceTest, ReadChangeAndList)
{
    PropertiesService* s = service();
    writeFile(inHome("d.ini"), "[A]\r\nx=1\r\ny=\r\n[B]\r\nz=3\r\n");
    std::string const file = s->loadProperties("d.ini");
    EXPECT_EQ("1", s->getProperty(file, "A.x"));
    EXPECT_EQ("d", s->getProperty(file, "A.y", "d"));
    EXPECT_EQ("d", s->getProperty(file, "A.w", "d"));
    EXPECT_TRUE(s->isAvailable(file, "A.y"));
    EXPECT_FALSE(s->isAvailable(file, "A.w"));
    EXPECT_EQ((std::vector<std::string>{"A", "B"}), s->getSectionNames(file));
    EXPECT_EQ((std::vector<std::string>{"x", "y"}), s->getKeysOfSection(file, "A"));
    EXPECT_EQ(std::vector<std::string>{}, s->getKeysOfSection(file, "C"));

    s->setProperties(file, {{"C.n", "1"}, {"A.x", "2"}, {"C.n", "3"}});
    EXPECT_EQ("2", s->getProperty(file, "A.x"));
    EXPECT_EQ("3", s->getProperty(file, "C.n"));
    EXPECT_TRUE(s->removeProperty(file, "A.y"));
    EXPECT_FALSE(s->removeProperty(file, "A.y"));
    EXPECT_EQ((std::vector<std::string>{"x"}), s->getKeysOfSection(file, "A"));
}

TEST_F(PropertiesServiceTest, ClearAndListAddressKeysWithoutTheirSection)
{
    // Deliberate: both walk the keys by their bare names, so clearing writes
    // empty values under sections named like the keys, and the listing reads
    // the values there.
    PropertiesService* s = service();
    writeFile(inHome("e.ini"), "[A]\r\nx=1\r\ny=2\r\n[B]\r\nz=3\r\n");
    std::string const file = s->loadProperties("e.ini");
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"x", ""}, {"y", ""}, {"z", ""}}),
              s->getAllProperties(file, true));

    s->clearProperties(file);
    EXPECT_EQ("1", s->getProperty(file, "A.x"));
    EXPECT_EQ((std::vector<std::string>{"A", "B", "x", "y", "z"}), s->getSectionNames(file));
    EXPECT_TRUE(s->isAvailable(file, "x"));
    EXPECT_TRUE(s->saveProperties(file));
    EXPECT_EQ("[A]\r\nx=1\r\ny=2\r\n[B]\r\nz=3\r\n[x]\r\n=\r\n[y]\r\n=\r\n[z]\r\n=\r\n", readFile(file));
}

TEST_F(PropertiesServiceTest, SaveWritesTheFileBytes)
{
    PropertiesService* s = service();
    writeFile(inHome("f.ini"), "; Kommentar\r\n[A]\r\n x = 1 \r\n[B]\r\n");
    std::string const file = s->loadProperties("f.ini");
    s->setProperty(file, "B.y", "a=b");
    s->setProperty(file, "A.z", "\xE4\xF6\xFC");
    s->setProperty(file, "N.k", "");
    EXPECT_EQ("; Kommentar\r\n[A]\r\n x = 1 \r\n[B]\r\n", readFile(file));
    EXPECT_TRUE(s->saveProperties(file));
    EXPECT_EQ("[A]\r\nx=1\r\nz=\xE4\xF6\xFC\r\n[B]\r\ny=a=b\r\n[N]\r\nk=\r\n", readFile(file));

    // The default file, created empty, saves like any other.
    std::string const tm = s->loadProperties("tm.ini");
    s->setProperty(tm, "DRUCK.KOPIEN", "2");
    EXPECT_TRUE(s->saveProperties("tm.ini"));
    EXPECT_EQ("[DRUCK]\r\nKOPIEN=2\r\n", readFile(inHome("tm.ini")));
}

TEST_F(PropertiesServiceTest, DestroyingAManagerUnloadsEveryFileInKeyOrder)
{
    PropertiesService* s = service();
    writeFile(inHome("b.ini"), "[S]\r\nk=1\r\n");
    s->loadProperties("b.ini");
    s->loadProperties("a.ini");
    s->setProperty("b.ini", "S.k", "ungespeichert");

    log4cpp::Category::getInstance("tovuutil.PropertiesFileResourceManager").setPriority(log4cpp::Priority::DEBUG);
    CapturedLog log("tovuutil.PropertiesFileResourceManager");
    delete new PropertiesFileResourceManager();
    std::vector<std::string> expected;
    for (std::string const& key : {inHome("a.ini"), inHome("b.ini")}) {
        expected.push_back("Properties unloading: " + key);
        expected.push_back("Begin Method: tovuutil.PropertiesFileResourceManager::getFileName(" + key + ")");
        expected.push_back("getFileName result:" + key);
        expected.push_back("End Method  : tovuutil.PropertiesFileResourceManager::getFileName(" + key + ")");
        expected.push_back("delete Properties.");
        expected.push_back("erase Properties.");
    }
    EXPECT_EQ(expected, log.lines());

    // Nothing was written; the next access reads the file afresh.
    EXPECT_EQ("[S]\r\nk=1\r\n", readFile(inHome("b.ini")));
    EXPECT_EQ("1", s->getProperty("b.ini", "S.k"));
}

TEST_F(PropertiesServiceTest, BareNamesFollowTheIniHomeAndStillLogWhenAsked)
{
    PropertiesService* s = service();
    writeFile(inHome("a.ini"), "[S]\r\nk=eins\r\n");
    EXPECT_EQ("eins", s->getProperty("a.ini", "S.k"));
    EXPECT_EQ("eins", s->getProperty("a.ini", "S.k"));

    TempDir other;
    writeFile(other.path() + "/a.ini", "[S]\r\nk=zwei\r\n");
    ASSERT_EQ(0, setSystemPropertyIniHome(other.path()));
    EXPECT_EQ("zwei", s->getProperty("a.ini", "S.k"));

    // With DEBUG on, the key is worked out (and logged) on every call again.
    log4cpp::Category::getInstance("tovuutil.PropertiesFileResourceManager").setPriority(log4cpp::Priority::DEBUG);
    CapturedLog log("tovuutil.PropertiesFileResourceManager");
    EXPECT_EQ("zwei", s->getProperty("a.ini", "S.k"));
    std::string const key = other.path() + tovutest::kSepText + "a.ini";
    EXPECT_EQ((std::vector<std::string>{"Begin Method: tovuutil.PropertiesFileResourceManager::getFileName(a.ini)",
                                        "getFileName result:" + key,
                                        "End Method  : tovuutil.PropertiesFileResourceManager::getFileName(a.ini)"}),
              log.lines());
    ASSERT_EQ(0, setSystemPropertyIniHome(home()));
}
