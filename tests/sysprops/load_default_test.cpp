// Loaded with SystemRoot and TOVU_HOME empty, TEMP naming a directory with a
// trailing separator: every home but the temporary one is the working directory.
#include "sysprops/LoadTime.h"

#include <sys/stat.h>

#include "framework/LogCapture.h"

using namespace tovutest;

TEST(LoadTime, HomesFromTheWorkingDirectory)
{
    TOVU_SKIP_LOAD_TIME_HOMES_UNDER_WINE();
    std::string const cwd = workingDirectory();
    EXPECT_EQ(expectedTable(cwd, homes("temp"), cwd, ""), actualTable());

    EXPECT_EQ(cwd, getSystemPropertyIniHome());
    EXPECT_EQ(cwd, getSystemPropertyLogHome());
    EXPECT_EQ(homes("temp"), getSystemPropertyTempHome());
    EXPECT_EQ(cwd, getSystemPropertyDataHome());
    EXPECT_EQ(cwd, getSystemPropertyTovuHome());
}

TEST(LoadTime, LogFileInTheWorkingDirectory)
{
    EXPECT_EQ(workingDirectory(), log4cxx::Log4cxx::getLogDirectory());
    Logger::getInstance("sysprops.load")->error("nach dem Laden");
    std::vector<std::string> lines = logMessages(workingDirectory());
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ("nach dem Laden", lines.back());
}
