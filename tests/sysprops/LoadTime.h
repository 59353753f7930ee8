#ifndef TOVU_TESTS_SYSPROPS_LOADTIME_H
#define TOVU_TESTS_SYSPROPS_LOADTIME_H

// Shared expectations of the load-time tests: what the table holds right
// after the library has loaded, whatever the environment.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <tovuutil/tovuutil.h>

#include "HostPaths.h"
#include "sysprops/HostCommand.h"

// Wine sets SystemRoot and TEMP itself and the homes below are POSIX paths:
// the environment these checks prepare does not reach a Windows program.
#ifdef _WIN32
#define TOVU_SKIP_LOAD_TIME_HOMES_UNDER_WINE() \
    GTEST_SKIP() << "the prepared environment (SystemRoot, TEMP, POSIX homes) does not reach a Windows program"
#else
#define TOVU_SKIP_LOAD_TIME_HOMES_UNDER_WINE() (void)0
#endif

namespace tovutest {

// The configured scratch homes (see CMakeLists.txt).
inline std::string homes(char const* name) { return std::string(TOVU_TEST_HOMES) + "/" + name; }

// Keys in the order of filling, with the five homes as given.
inline std::vector<std::pair<std::string, std::string>> expectedTable(std::string const& ini, std::string const& temp,
                                                                      std::string const& tovu,
                                                                      std::string const& system)
{
    std::string const cwd = workingDirectory();
    TovuSystemInformation info;
    std::vector<std::pair<std::string, std::string>> table;
    if (!ini.empty())
        table.emplace_back("_TOVU_intern.TOVU_PROPERTY_INI_HOME", ini);
    table.emplace_back("_TOVU_intern.TOVU_PROPERTY_LOG_HOME", cwd);
    if (!temp.empty())
        table.emplace_back("_TOVU_intern.TOVU_PROPERTY_TEMP_HOME", temp);
    table.emplace_back("_TOVU_intern.TOVU_PROPERTY_DATA_HOME", cwd);
    table.emplace_back("_TOVU_intern.PROPERTY_TOVU_HOME", tovu);
    table.emplace_back("_TOVU_intern.PROPERTY_COMPUTER_NAME", hostCommand("hostname"));
    table.emplace_back("_TOVU_intern.PROPERTY_COMPUTER_IP_ADDRESS", getLocalIPAddress());
    table.emplace_back("_TOVU_intern.PROPERTY_COMPUTER_MAC_ADDRESS", MacRetriever().getMacAddress());
    table.emplace_back("_TOVU_intern.PROPERTY_PLATFORM", info.getOsName());
    table.emplace_back("_TOVU_intern.TOTAL_MEM", std::to_string(memInfoBytes("MemTotal")));
    table.emplace_back("_TOVU_intern.FREE_MEM", "<free>");
    table.emplace_back("_TOVU_intern.PROPERTY_USER_NAME", hostCommand("id -un"));
    table.emplace_back("_TOVU_intern.PROPERTY_SYSTEM_HOME", system);
    table.emplace_back("_TOVU_intern.PROPERTY_CURRENT_HOME", cwd);
    return table;
}

// The table as the library has it, with the free memory checked for
// plausibility and replaced by "<free>".
inline std::vector<std::pair<std::string, std::string>> actualTable()
{
    auto* service = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0));
    std::vector<std::pair<std::string, std::string>> table = service->getAllSystemProperties();
    for (auto& entry : table) {
        if (entry.first == "_TOVU_intern.FREE_MEM") {
            unsigned long long free = std::stoull(entry.second);
            EXPECT_GT(free, 0u);
            EXPECT_LE(free, static_cast<unsigned long long>(memInfoBytes("MemTotal")));
            EXPECT_EQ(std::to_string(free), entry.second);
            entry.second = "<free>";
        }
    }
    return table;
}

} // namespace tovutest

#endif
