// Loaded with SystemRoot empty, TOVU_HOME set (with a trailing separator),
// TEMP empty and TMP set: the INI and installation homes are TOVU_HOME, the
// temporary home is TMP.
#include "sysprops/LoadTime.h"

using namespace tovutest;

TEST(LoadTime, HomesFromTovuHomeAndTmp)
{
    TOVU_SKIP_LOAD_TIME_HOMES_UNDER_WINE();
    std::string const tovu = homes("tovu");
    EXPECT_EQ(expectedTable(tovu, homes("tmp"), tovu, ""), actualTable());
    EXPECT_EQ(tovu, getSystemPropertyIniHome());
    EXPECT_EQ(tovu, getSystemPropertyTovuHome());
    EXPECT_EQ(homes("tmp"), getSystemPropertyTempHome());
}
