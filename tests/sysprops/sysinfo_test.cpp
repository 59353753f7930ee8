#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <thread>

#ifdef _WIN32
#include <windows.h>
#endif

#include <tovuutil/platform/TovuSystemInformation.h>

#include "sysprops/HostCommand.h"

using tovutest::hostCommand;

#ifdef _WIN32
TEST(SystemInformation, MachineFactsAgreeWithTheHost)
{
    TovuSystemInformation info;
    EXPECT_EQ(TovuSystemInformation::STATE_OK, info.getState());
    EXPECT_EQ(static_cast<int>(std::thread::hardware_concurrency()), static_cast<int>(info.getNumProcessors()));
    // The 32-bit memory status: the low half only, also on a 64-bit host.
    MEMORYSTATUS memory{};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatus(&memory);
    EXPECT_EQ(static_cast<std::uint32_t>(memory.dwTotalPhys), info.getTotalMemory());
    EXPECT_LE(info.getFreeMemory(), info.getTotalMemory());
    EXPECT_EQ(sizeof(void*) == 8 ? "X86_64" : "X86", info.getArchitecture());
}

TEST(SystemInformation, OperatingSystemFromTheVersionApi)
{
    TovuSystemInformation info;
    EXPECT_EQ(TovuSystemInformation::OS_WINNT, info.getOsType());
    EXPECT_EQ("Windows NT", info.getOsTypeAsString());
    bool const wine = GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
    EXPECT_EQ(wine, TovuSystemInformation::runningOnWine());
    if (wine)
        EXPECT_EQ("WINE", info.getOsZusatz());
    EXPECT_FALSE(info.getOsName().empty());
    EXPECT_NE("0", info.getBuildNumber());
}
#else
TEST(SystemInformation, MachineFactsAgreeWithTheHost)
{
    TovuSystemInformation info;
    EXPECT_EQ(TovuSystemInformation::STATE_OK, info.getState());
    EXPECT_EQ(0, info.getLastError());

    int online = std::stoi(hostCommand("nproc"));
    int all = std::stoi(hostCommand("nproc --all"));
    EXPECT_GE(info.getNumProcessors(), online);
    EXPECT_LE(info.getNumProcessors(), all);

    EXPECT_EQ(tovutest::memInfoBytes("MemTotal"), info.getTotalMemory());
    EXPECT_EQ(tovutest::memInfoBytes("SwapTotal"), info.getTotalSwap());
    EXPECT_GT(info.getFreeMemory(), 0);
    EXPECT_LE(info.getFreeMemory(), info.getTotalMemory());
    EXPECT_LE(info.getFreeSwap(), info.getTotalSwap());

    std::string machine = hostCommand("uname -m");
    if (machine == "x86_64")
        EXPECT_EQ("X86_64", info.getArchitecture());
    else if (machine == "i686" || machine == "i386")
        EXPECT_EQ("X86", info.getArchitecture());
    else if (machine == "aarch64")
        EXPECT_EQ("UNBEKANNT", info.getArchitecture());
}

TEST(SystemInformation, OperatingSystemFromReleaseFiles)
{
    TovuSystemInformation info;
    std::string pretty = hostCommand(". /etc/os-release 2>/dev/null && printf %s \"$PRETTY_NAME\"");
    EXPECT_EQ(pretty.empty() ? hostCommand("uname -s") : pretty, info.getOsName());
    EXPECT_EQ(hostCommand(". /etc/os-release 2>/dev/null && printf %s \"$VERSION\""), info.getOsZusatz());

    // The kernel release, e.g. "6.1.0-18-amd64": version "6.1", build "0".
    std::string major = hostCommand("uname -r | cut -d. -f1");
    std::string minor = hostCommand("uname -r | cut -d. -f2 | tr -cd 0-9");
    std::string build = hostCommand("uname -r | cut -d. -f3 | sed 's/[^0-9].*//'");
    EXPECT_EQ(major + "." + minor, info.getOsVersion());
    EXPECT_EQ(info.getOsVersion(), info.getKernelVersion());
    EXPECT_EQ(build.empty() ? std::string("0") : build, info.getBuildNumber());
    EXPECT_EQ(hostCommand("uname -r | sed -E 's/^[0-9]*(\\.[0-9]*)?(\\.[0-9]+)?[-.+_]?//'"), info.getPatchLevel());

    EXPECT_EQ(TovuSystemInformation::OS_POSIX, info.getOsType());
    EXPECT_EQ("POSIX", info.getOsTypeAsString());
    EXPECT_FALSE(TovuSystemInformation::runningOnWine());
}
#endif

TEST(SystemInformation, FreeFunctionsReadOneInstanceEach)
{
    TovuSystemInformation info;
    EXPECT_EQ(static_cast<unsigned long>(info.getTotalMemory()), getTotalSystemMemory());
    EXPECT_EQ(static_cast<unsigned long>(info.getTotalSwap()), getTotalSwapSpace());
    EXPECT_LE(getFreeSystemMemory(), getTotalSystemMemory());
    EXPECT_LE(getFreeSwapSpace(), getTotalSwapSpace());
    EXPECT_EQ(info.getNumProcessors(), getNumberOfProcessors());
    EXPECT_EQ(info.getArchitecture(), getArchitecture());
    EXPECT_EQ(info.getOsName(), getOperatingSystemName());

    std::string name = "x", zusatz = "x", patch = "x", version = "x", kernel = "x", build = "x";
    getOSInfo(name, zusatz, patch, version, kernel, build);
    EXPECT_EQ(info.getOsName(), name);
    EXPECT_EQ(info.getOsZusatz(), zusatz);
    EXPECT_EQ(info.getPatchLevel(), patch);
    EXPECT_EQ(info.getOsVersion(), version);
    EXPECT_EQ(info.getKernelVersion(), kernel);
    EXPECT_EQ(info.getBuildNumber(), build);
}

TEST(SystemInformation, SplitVersionString)
{
    TovuSystemInformation info;
    std::string a = "a", b = "b", c = "c";
    EXPECT_TRUE(info.splitVersionString("5", a, b, c));
    EXPECT_EQ("a", a);
    EXPECT_EQ("b", b);
    EXPECT_EQ("c", c);

    EXPECT_TRUE(info.splitVersionString("5.1.2600", a, b, c));
    EXPECT_EQ("5", a);
    EXPECT_EQ("1", b);
    EXPECT_EQ("2600", c);

    EXPECT_TRUE(info.splitVersionString("6.0", a, b, c));
    EXPECT_EQ("6", a);
    EXPECT_EQ("0", b);
    EXPECT_EQ("", c);

    EXPECT_TRUE(info.splitVersionString("1.2.3.4", a, b, c));
    EXPECT_EQ("1", a);
    EXPECT_EQ("2", b);
    EXPECT_EQ("3.4", c);

    EXPECT_TRUE(info.splitVersionString(".", a, b, c));
    EXPECT_EQ("", a);
    EXPECT_EQ("", b);
    EXPECT_EQ("", c);
}
