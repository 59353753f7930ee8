// The host-neutral tables behind the platform leaves, compiled into this test
// directly (they are not part of the library's interface).
#include <gtest/gtest.h>

#include <string>

#include "tovuutil/platform/detail/HostIdentity.h"
#include "tovuutil/platform/detail/SystemFacts.h"

using namespace tovu::detail;

TEST(FactTables, ArchitectureCodesAndMachineNames)
{
    char const* const byCode[] = {"X86", "MIPS",    "ALPHA",     "PPC",    "UNBEKANNT",
                                  "UNBEKANNT", "IS64", "ALPHA64", "UNBEKANNT", "X86_64"};
    for (int code = 0; code < 10; ++code)
        EXPECT_EQ(byCode[code], architectureOfCode(code)) << code;
    EXPECT_EQ("UNBEKANNT", architectureOfCode(0xFFFF));
    EXPECT_EQ("UNBEKANNT", architectureOfCode(-1));

    EXPECT_EQ("X86_64", architectureOfMachine("x86_64"));
    EXPECT_EQ("X86_64", architectureOfMachine("amd64"));
    EXPECT_EQ("X86", architectureOfMachine("i386"));
    EXPECT_EQ("X86", architectureOfMachine("i686"));
    EXPECT_EQ("MIPS", architectureOfMachine("mips"));
    EXPECT_EQ("MIPS", architectureOfMachine("mipsel"));
    EXPECT_EQ("UNBEKANNT", architectureOfMachine("mips64"));
    EXPECT_EQ("ALPHA", architectureOfMachine("alpha"));
    EXPECT_EQ("PPC", architectureOfMachine("ppc"));
    EXPECT_EQ("UNBEKANNT", architectureOfMachine("ppc64le"));
    EXPECT_EQ("IS64", architectureOfMachine("ia64"));
    EXPECT_EQ("UNBEKANNT", architectureOfMachine("aarch64"));
    EXPECT_EQ("UNBEKANNT", architectureOfMachine("x86_64x"));
    EXPECT_EQ("UNBEKANNT", architectureOfMachine(""));
}

TEST(FactTables, AddressTexts)
{
    unsigned char mac[6] = {0x00, 0x0A, 0x10, 0xAB, 0x05, 0xFF};
    EXPECT_EQ("00.010.16.171.05.255", formatMacAddress(mac));
    unsigned char edge[6] = {15, 16, 9, 100, 1, 99};
    EXPECT_EQ("015.16.09.100.01.99", formatMacAddress(edge));
    unsigned char none[6] = {};
    EXPECT_EQ("00.00.00.00.00.00", formatMacAddress(none));

    unsigned char ip[4] = {192, 0, 2, 255};
    EXPECT_EQ("192.0.2.255", formatIPv4Address(ip));
    unsigned char zero[4] = {};
    EXPECT_EQ("0.0.0.0", formatIPv4Address(zero));
}

namespace {
struct Named {
    std::string name;
    std::string zusatz;
};

Named named(unsigned platform, unsigned major, unsigned minor, std::string const& servicePack = std::string(),
            bool extended = true, unsigned productType = 1, unsigned suiteMask = 0)
{
    WindowsVersion v;
    v.platform = platform;
    v.major = major;
    v.minor = minor;
    v.servicePack = servicePack;
    v.extended = extended;
    v.productType = productType;
    v.suiteMask = suiteMask;
    Named out{"x", "x"};
    nameWindowsVersion(v, out.name, out.zusatz);
    return out;
}

void expectNamed(Named const& actual, char const* name, char const* zusatz)
{
    EXPECT_EQ(name, actual.name);
    EXPECT_EQ(zusatz, actual.zusatz);
}
} // namespace

TEST(FactTables, WindowsNinetyFiveFamily)
{
    expectNamed(named(1, 4, 0, " C"), "Microsoft Windows 95", "OSR2");
    expectNamed(named(1, 4, 0, " B"), "Microsoft Windows 95", "OSR2");
    expectNamed(named(1, 4, 0, "B"), "Microsoft Windows 95", "");
    expectNamed(named(1, 4, 0, ""), "Microsoft Windows 95", "");
    expectNamed(named(1, 4, 10, " A "), "Microsoft Windows 98", "Second Edition");
    expectNamed(named(1, 4, 10, " B"), "Microsoft Windows 98", "");
    expectNamed(named(1, 4, 90), "Windows ME", "");
    expectNamed(named(1, 4, 50), "Unbekannt", "");
}

TEST(FactTables, WindowsNTFamily)
{
    expectNamed(named(2, 3, 51), "Microsoft Windows NT 3.51", "");
    expectNamed(named(2, 4, 0, "", true, 1), "Microsoft Windows NT 4.0 Workstation", "");
    expectNamed(named(2, 4, 0, "", true, 2), "Microsoft Windows NT 4.0 Workstation", "");
    expectNamed(named(2, 4, 0, "", true, 3, 0x2), "Microsoft Windows NT 4.0 Server", "Enterprise Edition");
    expectNamed(named(2, 4, 0, "", true, 3, 0), "Microsoft Windows NT 4.0 Server", "Standard Edition");
    expectNamed(named(2, 4, 0, "", false, 3, 0x2), "Microsoft Windows NT 4.0 Workstation", "");
    expectNamed(named(2, 5, 0, "", true, 3, 0x80), "Microsoft Windows 2000", "Datacenter Edition");
    expectNamed(named(2, 5, 0, "", true, 3, 0x2), "Microsoft Windows 2000", "Advanced Server");
    expectNamed(named(2, 5, 0, "", true, 1, 0), "Microsoft Windows 2000", "Professional");
    expectNamed(named(2, 5, 1, "", true, 1, 0x200), "Microsoft Windows XP", "Home Edition");
    expectNamed(named(2, 5, 1, "", true, 1, 0x100), "Microsoft Windows XP", "Professional");
    expectNamed(named(2, 5, 1, "", false, 1, 0x200), "Microsoft Windows XP", "");
    expectNamed(named(2, 5, 2, "", true, 3, 0x82), "Microsoft Windows Server 2003", "Enterprise Edition");
    expectNamed(named(2, 5, 2, "", true, 3, 0x480), "Microsoft Windows Server 2003", "Datacenter Edition");
    expectNamed(named(2, 5, 2, "", true, 3, 0x400), "Microsoft Windows Server 2003", "Web Edition");
    expectNamed(named(2, 5, 2, "", true, 3, 0), "Microsoft Windows Server 2003", "");
    expectNamed(named(2, 6, 0, "", true, 1, 0x200), "Microsoft Windows Vista", "Home/Home Premium Edition");
    expectNamed(named(2, 6, 0, "", true, 1, 0), "Microsoft Windows Vista", "Ultimate/Business Edition");
    expectNamed(named(2, 6, 0, "", true, 3, 0x2), "Microsoft Windows Server 2008", "Enterprise Edition");
    expectNamed(named(2, 6, 0, "", true, 2, 0x80), "Microsoft Windows Server 2008", "Datacenter Edition");
    expectNamed(named(2, 6, 0, "", true, 3, 0), "Microsoft Windows Server 2008", "");
    expectNamed(named(2, 6, 1), "Unbekannt", "");
    expectNamed(named(2, 10, 0), "Unbekannt", "");
    expectNamed(named(0, 3, 1), "Unbekannt", "");
}
