// Loaded with SystemRoot and TOVU_HOME set and TEMP naming a missing
// directory: the INI home is SystemRoot, the installation home TOVU_HOME, and
// the temporary home stays unset (TMP is not consulted when TEMP is set).
#include "sysprops/LoadTime.h"

using namespace tovutest;

TEST(LoadTime, HomesFromSystemRootAndAnUnwritableTemp)
{
    TOVU_SKIP_LOAD_TIME_HOMES_UNDER_WINE();
    std::string const system = homes("system");
    EXPECT_EQ(expectedTable(system, "", homes("tovu"), system), actualTable());
    EXPECT_EQ(system, getSystemPropertyIniHome());
    EXPECT_EQ(homes("tovu"), getSystemPropertyTovuHome());
    EXPECT_EQ("", getSystemPropertyTempHome());

    std::string value = "unchanged";
    EXPECT_FALSE(getSystemProperty("_TOVU_intern.TOVU_PROPERTY_TEMP_HOME", value));
    EXPECT_EQ("unchanged", value);
}
