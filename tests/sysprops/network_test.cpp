#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <string>

#include <tovuutil/platform/NetworkIdentity.h>

#include "sysprops/HostCommand.h"

using tovutest::hostCommand;

TEST(NetworkIdentity, ComputerNameAndAddress)
{
#ifdef _WIN32
    GTEST_SKIP() << "the expectations come from POSIX host commands (hostname, ip, /sys)";
#endif
    EXPECT_EQ(hostCommand("hostname"), getLocalComputerName());

    std::string ip = getLocalIPAddress();
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(ip, parts, std::regex("(\\d{1,3})\\.(\\d{1,3})\\.(\\d{1,3})\\.(\\d{1,3})"))) << ip;
    // Either the fallback or one of the host's own non-loopback addresses.
    std::vector<std::string> own =
        tovutest::splitWords(hostCommand("ip -4 -o addr show 2>/dev/null | awk '$2 != \"lo\" {print $4}' | cut -d/ -f1"));
    if (own.empty())
        EXPECT_EQ("127.0.0.1", ip);
    else
        EXPECT_NE(own.end(), std::find(own.begin(), own.end(), ip)) << ip;
}

TEST(NetworkIdentity, MacAddressInDecimalGroups)
{
#ifdef _WIN32
    GTEST_SKIP() << "the expectations come from POSIX host commands (hostname, ip, /sys)";
#endif
    std::string mac = MacRetriever().getMacAddress();
    ASSERT_TRUE(std::regex_match(mac, std::regex("(0\\d|0\\d\\d|1[6-9]|[2-9]\\d|\\d{3})(\\.(0\\d|0\\d\\d|1[6-9]|[2-9]\\d|\\d{3})){5}")))
        << mac;

    // The same six bytes as one of the host's adapters, written the same way.
    std::string expected = hostCommand(
        "for d in /sys/class/net/*; do [ \"$(basename $d)\" = lo ] && continue; a=$(cat $d/address 2>/dev/null); "
        "[ ${#a} -eq 17 ] || continue; [ \"$a\" = 00:00:00:00:00:00 ] && continue; s=; "
        "for b in $(echo $a | tr : ' '); do v=$((0x$b)); [ $v -le 15 ] && v=0$v; s=${s:+$s.}$v; done; echo $s; done");
    std::vector<std::string> adapters = tovutest::splitWords(expected);
    if (adapters.empty())
        EXPECT_EQ("00.00.00.00.00.00", mac);
    else
        EXPECT_NE(adapters.end(), std::find(adapters.begin(), adapters.end(), mac)) << mac << " not in " << expected;

    // The free function keeps its first answer.
    EXPECT_EQ(mac, getMacAddress());
    EXPECT_EQ(getMacAddress(), getMacAddress());
}
