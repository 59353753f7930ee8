#include <gtest/gtest.h>

#include "IniFiles.h"

using tovutest::writeBytes;
using Names = std::list<std::string>;

namespace {
class PropertiesFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        log4cxx::Log4cxx::relocateLog("", "", dir_.path() + tovutest::kSep);
    }
    std::string at(std::string const& name) { return dir_.path() + tovutest::kSep + name; }
    tovutest::TempDir dir_;
};
} // namespace

TEST_F(PropertiesFile, TypeComesFromTheExtension)
{
    writeBytes(at("config.PROPERTIES"), "a.b=1\r\n");
    writeBytes(at("a.txt"), "[s]\r\nk=1\r\n");
    writeBytes(at("noext"), "[s]\r\nk=2\r\n");
    writeBytes(at("x.xml"), "<x/>");
    EXPECT_EQ(Properties(at("config.PROPERTIES")).getType(), PF_PROPERTIES);
    Properties txt(at("a.txt"));
    EXPECT_EQ(txt.getType(), PF_INI);
    EXPECT_EQ(txt.getProperty("s.k"), "1");
    EXPECT_EQ(Properties(at("noext")).getProperty("s.k"), "2");
    Properties xml(at("x.xml"));
    EXPECT_EQ(xml.getType(), PF_XML);
    EXPECT_TRUE(xml.getSectionNames().empty());
    EXPECT_TRUE(xml.writeProperties());
    EXPECT_EQ(tovutest::readFile(at("x.xml")), "<x/>");
}

TEST_F(PropertiesFile, PropertiesTextLines)
{
    writeBytes(at("p.properties"), "#x=1\n   # y=2\na.b = 1 # c\nplain=v\nnoequals\n");
    Properties p(at("p.properties"));
    EXPECT_FALSE(p.isAvailable("#x"));
    EXPECT_EQ(p.getProperty("a.b"), "1 # c");
    EXPECT_EQ(p.getProperty("plain"), "v");
    EXPECT_EQ(p.getSectionNames(), (Names{"a", "plain", "noequals"}));
    EXPECT_TRUE(p.isDirty());
    EXPECT_FALSE(p.writeProperties()); // deliberately not writable
    EXPECT_TRUE(p.isDirty());
    EXPECT_EQ(tovutest::logMessages(dir_.path()).back(),
              "Fehler beim Schreiben der Properties Datei: " + at("p.properties"));
}

TEST_F(PropertiesFile, AvailabilitySentinelAndRemoval)
{
    writeBytes(at("v.ini"), "[s]\r\nempty=\r\nodd=x\r\nk=1\r\n");
    Properties p(at("v.ini"));
    p.setProperty("s.odd", "_##undefined##_");
    p.setDirty(false);
    EXPECT_FALSE(p.isAvailable("s.missing"));
    EXPECT_FALSE(p.isAvailable("s.odd"));
    EXPECT_TRUE(p.isAvailable("s.empty"));
    EXPECT_EQ(p.getProperty("s.empty"), "");
    EXPECT_EQ(p.getProperty("s.missing"), "");
    EXPECT_FALSE(p.isDirty());
    EXPECT_FALSE(p.removeProperty("s.missing"));
    EXPECT_FALSE(p.isDirty());
    EXPECT_TRUE(p.removeProperty("s.k"));
    EXPECT_TRUE(p.isDirty());
    EXPECT_EQ(p.getKeysOfSection("s"), (Names{"empty", "odd"}));
    EXPECT_TRUE(p.writeProperties());
    EXPECT_FALSE(p.isDirty());
    EXPECT_EQ(tovutest::readFile(at("v.ini")), "[s]\r\nempty=\r\nodd=_##undefined##_\r\n");
    // "#" starts a comment when read back: the sentinel does not survive a file.
    EXPECT_EQ(Properties(at("v.ini")).getProperty("s.odd"), "_");
}

TEST_F(PropertiesFile, RefusalsAndMissingFiles)
{
    Properties p;
    EXPECT_EQ(p.getType(), PF_UNKNOWN);
    EXPECT_FALSE(p.loadProperties(at("x.ini"), static_cast<PropertyFileEnum>(7)));
    EXPECT_EQ(p.getType(), PF_UNKNOWN);
    EXPECT_FALSE(p.writeProperties());
    EXPECT_TRUE(p.loadProperties(at("nothing"), PF_NONE));
    EXPECT_FALSE(p.writeProperties());
    EXPECT_FALSE(p.loadProperties(at("missing.ini")));
    EXPECT_EQ(p.getName(), at("missing.ini"));
    EXPECT_EQ(p.getType(), PF_INI);
    std::vector<std::string> const log = tovutest::logMessages(dir_.path());
    ASSERT_GE(log.size(), 3u);
    EXPECT_EQ(log[0], "Fehler beim Laden. Unbekannter Dateityp!");
    EXPECT_EQ(log[1], "Fehler beim Schreiben der Properties Datei: ");
    EXPECT_EQ(log.back(), "Folgende Datei kann nicht gefunden werden: " + at("missing.ini"));
}
