#ifndef TOVUUTIL_PLATFORM_DETAIL_HOSTIDENTITY_H
#define TOVUUTIL_PLATFORM_DETAIL_HOSTIDENTITY_H

// Host leaves for the network identity and the user name: standard types only,
// one definition per host (HostIdentity_posix.cpp, HostIdentity_win32.cpp).
// None of them throws; a failure gives "" or false.

#include <string>

namespace tovu {
namespace detail {

// The host name, or "".
std::string hostComputerName();

// The first IPv4 address of the host that is not a loopback address.
bool hostIPv4Address(unsigned char (&address)[4]);

// The hardware address of the first adapter that is up and not a loopback
// adapter; failing that, of the first one that is not a loopback adapter.
bool hostMacAddress(unsigned char (&address)[6]);

// The name of the user the process runs as, or "".
std::string hostUserName();

// "%u.%u.%u.%u".
std::string formatIPv4Address(unsigned char const (&address)[4]);

// Each byte in decimal, a "0" put in front of values up to 15, joined by ".":
// {0x00, 0x0A, 0x10, 0xAB, 0x05, 0xFF} gives "00.010.16.171.05.255".
std::string formatMacAddress(unsigned char const (&address)[6]);

} // namespace detail
} // namespace tovu

#endif
