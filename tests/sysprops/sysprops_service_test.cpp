#include <gtest/gtest.h>

#include <log4cpp/Category.hh>
#include <log4cpp/Priority.hh>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

#include <tovuutil/tovuutil.h>

#include "framework/LogCapture.h"
#include "framework/TempDir.h"

using tovutest::CapturedLog;
using tovutest::TempDir;

namespace {
SystemPropertiesService* service() { return static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0)); }

} // namespace

TEST(SystemProperties, ReadSetRemoveAndDefaults)
{
    SystemPropertiesService* s = service();
    ASSERT_NE(nullptr, s);
    EXPECT_EQ("", s->getSystemProperty("TEST.missing"));
    EXPECT_EQ("dflt", s->getSystemProperty("TEST.missing", "dflt"));
    EXPECT_FALSE(s->isSystemPropertyAvailable("TEST.missing"));

    setSystemProperty("TEST.key", "wert");
    EXPECT_EQ("wert", getSystemProperty("TEST.key"));
    EXPECT_EQ("wert", s->getSystemProperty("TEST.key", "dflt"));
    std::string value = "old";
    EXPECT_TRUE(getSystemProperty("TEST.key", value));
    EXPECT_EQ("wert", value);

    // Stored but empty: available, yet the default wins.
    s->setSystemProperty("TEST.empty", "");
    EXPECT_TRUE(s->isSystemPropertyAvailable("TEST.empty"));
    EXPECT_EQ("dflt", s->getSystemProperty("TEST.empty", "dflt"));
    value = "old";
    EXPECT_TRUE(s->isGetSystemProperty("TEST.empty", value));
    EXPECT_EQ("", value);

    value = "old";
    EXPECT_FALSE(getSystemProperty("TEST.missing", value));
    EXPECT_EQ("old", value);

    EXPECT_TRUE(s->removeSystemProperty("TEST.key"));
    EXPECT_FALSE(s->removeSystemProperty("TEST.key"));
    EXPECT_EQ("", getSystemProperty("TEST.key"));
}

TEST(SystemProperties, ListingInTableOrderWithDottedNames)
{
    SystemPropertiesService* s = service();
    std::vector<std::pair<std::string, std::string>> before = s->getAllSystemProperties();
    ASSERT_FALSE(before.empty());
    EXPECT_EQ("_TOVU_intern.TOVU_PROPERTY_INI_HOME", before.front().first);

    s->setSystemProperty("ZZ.b", "2");
    s->setSystemProperty("ZZ.a.deep", "3");
    s->setSystemProperty("_TOVU_intern.EXTRA", "1");
    std::vector<std::pair<std::string, std::string>> after = s->getAllSystemProperties();
    std::vector<std::pair<std::string, std::string>> expected = before;
    expected.emplace_back("_TOVU_intern.EXTRA", "1");
    expected.emplace_back("ZZ.b", "2");
    expected.emplace_back("ZZ.a.deep", "3");
    EXPECT_EQ(expected, after);
}

TEST(SystemProperties, HomeSettersReturnCodes)
{
    TempDir dir;
    std::string const missing = dir.path() + tovutest::hostPath("/nicht/da");
    using Setter = int (*)(std::string const&);
    using Getter = std::string (*)();
    std::pair<Setter, Getter> const homes[] = {
        {setSystemPropertyIniHome, getSystemPropertyIniHome},   {setSystemPropertyTempHome, getSystemPropertyTempHome},
        {setSystemPropertyDataHome, getSystemPropertyDataHome}, {setSystemPropertyTovuHome, getSystemPropertyTovuHome},
        {setSystemPropertyLogHome, getSystemPropertyLogHome},
    };
    for (auto const& home : homes) {
        std::string const old = home.second();
        EXPECT_EQ(2, home.first(""));
        EXPECT_EQ(old, home.second());
        EXPECT_EQ(1, home.first(missing));
        EXPECT_EQ(old, home.second());
        // Stored without one trailing separator; nothing is created.
        EXPECT_EQ(0, home.first(dir.path() + tovutest::kSep));
        EXPECT_EQ(dir.path(), home.second());
        struct stat info;
        EXPECT_NE(0, stat(missing.c_str(), &info));
    }
    EXPECT_EQ(dir.path(), getSystemProperty("_TOVU_intern.TOVU_PROPERTY_INI_HOME"));
    EXPECT_EQ(dir.path(), getSystemProperty("_TOVU_intern.TOVU_PROPERTY_TEMP_HOME"));
    EXPECT_EQ(dir.path(), getSystemProperty("_TOVU_intern.TOVU_PROPERTY_DATA_HOME"));
    EXPECT_EQ(dir.path(), getSystemProperty("_TOVU_intern.PROPERTY_TOVU_HOME"));
    EXPECT_EQ(dir.path(), getSystemProperty("_TOVU_intern.TOVU_PROPERTY_LOG_HOME"));
}

TEST(SystemProperties, SettingTheLogHomeMovesTheLogFile)
{
    TempDir first;
    TempDir second;
    Logger* logger = Logger::getInstance("sysprops.test");

    ASSERT_EQ(0, setSystemPropertyLogHome(first.path()));
    EXPECT_EQ(first.path(), log4cxx::Log4cxx::getLogDirectory());
    logger->error("in der ersten");
    EXPECT_EQ(std::vector<std::string>{"in der ersten"}, tovutest::logMessages(first.path()));

    // The same directory again changes nothing.
    ASSERT_EQ(0, setSystemPropertyLogHome(first.path() + tovutest::kSep));
    logger->error("noch in der ersten");
    EXPECT_EQ((std::vector<std::string>{"in der ersten", "noch in der ersten"}),
              tovutest::logMessages(first.path()));

    ASSERT_EQ(0, setSystemPropertyLogHome(second.path()));
    logger->error("in der zweiten");
    struct stat info;
    EXPECT_NE(0, stat((first.path() + tovutest::kSepText + "tovu.log").c_str(), &info));
    EXPECT_EQ(std::vector<std::string>{"in der zweiten"}, tovutest::logMessages(second.path()));
    EXPECT_EQ(second.path(), getSystemPropertyLogHome());

    // A failed setter leaves the log where it is.
    EXPECT_EQ(1, setSystemPropertyLogHome(first.path() + tovutest::kSepText + "weg"));
    EXPECT_EQ(second.path(), log4cxx::Log4cxx::getLogDirectory());
}

TEST(SystemProperties, MethodMarkers)
{
    log4cpp::Category::getInstance("tovuutil.SystemPropertiesServiceImpl").setPriority(log4cpp::Priority::DEBUG);
    CapturedLog log("tovuutil.SystemPropertiesServiceImpl");
    SystemPropertiesService* s = service();
    TempDir dir;

    s->setDataHome(dir.path());
    s->setTovuHome("");
    EXPECT_EQ((std::vector<std::string>{
                  "Begin Method: tovuutil.SystemPropertiesServiceImpl::setIniHome(\"" + dir.path() + "\")",
                  "Begin Method: tovuutil.SystemPropertiesServiceImpl::setSystemProperty(\"_TOVU_intern.TOVU_PROPERTY_DATA_HOME\")",
                  "End Method  : tovuutil.SystemPropertiesServiceImpl::setSystemProperty(\"_TOVU_intern.TOVU_PROPERTY_DATA_HOME\")",
                  "End Method  : tovuutil.SystemPropertiesServiceImpl::setIniHome(\"" + dir.path() + "\")",
                  "Begin Method: tovuutil.SystemPropertiesServiceImpl::setIniHome(\"\")",
                  "End Method  : tovuutil.SystemPropertiesServiceImpl::setIniHome(\"\")",
              }),
              log.lines());

    s->getAllSystemProperties();
    std::string value;
    s->isGetSystemProperty("A.b", value);
    EXPECT_EQ((std::vector<std::string>{
                  "Begin Method: tovuutil.SystemPropertiesServiceImpl::getAllProperties()",
                  "End Method  : tovuutil.SystemPropertiesServiceImpl::getAllProperties()",
                  "Begin Method: tovuutil.SystemPropertiesServiceImpl::isGetSystemProperty(\"A.b\")",
                  "Begin Method: tovuutil.SystemPropertiesServiceImpl::isSystemPropertyAvailable(\"A.b\")",
                  "End Method  : tovuutil.SystemPropertiesServiceImpl::isSystemPropertyAvailable(\"A.b\")",
                  "End Method  : tovuutil.SystemPropertiesServiceImpl::isGetSystemProperty(\"A.b\")",
              }),
              log.lines());
}

namespace {
// isGetSystemProperty reaches both inner operations through the object.
class Overriding : public SystemPropertiesServiceImpl {
public:
    bool isSystemPropertyAvailable(std::string const& key) override { return key == "X.y"; }
    std::string getSystemProperty(std::string const&) override { return "aus der Ableitung"; }
    using SystemPropertiesServiceImpl::getSystemProperty;
};
} // namespace

TEST(SystemProperties, CombinedReadUsesTheVirtualOperations)
{
    Overriding service;
    std::string value = "alt";
    EXPECT_FALSE(service.isGetSystemProperty("X.z", value));
    EXPECT_EQ("alt", value);
    EXPECT_TRUE(service.isGetSystemProperty("X.y", value));
    EXPECT_EQ("aus der Ableitung", value);
}
