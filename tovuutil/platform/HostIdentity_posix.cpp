#include "tovuutil/platform/detail/HostIdentity.h"

#include <cstring>
#include <vector>

#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>
#if defined(__linux__)
#include <netpacket/packet.h>
#endif

namespace tovu {
namespace detail {

std::string hostComputerName()
{
    char name[256];
    if (gethostname(name, sizeof name) != 0)
        return std::string();
    name[sizeof name - 1] = '\0';
    return name;
}

bool hostIPv4Address(unsigned char (&address)[4])
{
    struct ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0)
        return false;
    bool found = false;
    for (struct ifaddrs* entry = list; entry != nullptr && !found; entry = entry->ifa_next) {
        if (entry->ifa_addr == nullptr || entry->ifa_addr->sa_family != AF_INET || (entry->ifa_flags & IFF_LOOPBACK))
            continue;
        struct sockaddr_in inet;
        std::memcpy(&inet, entry->ifa_addr, sizeof inet);
        unsigned char bytes[4];
        std::memcpy(bytes, &inet.sin_addr.s_addr, 4); // network order: first byte first
        if (bytes[0] == 127)
            continue;
        std::memcpy(address, bytes, 4);
        found = true;
    }
    freeifaddrs(list);
    return found;
}

bool hostMacAddress(unsigned char (&address)[6])
{
#if defined(__linux__)
    struct ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0)
        return false;
    // The first adapter that is up wins; failing that, the first one at all.
    bool found = false;
    bool foundUp = false;
    for (struct ifaddrs* entry = list; entry != nullptr && !foundUp; entry = entry->ifa_next) {
        if (entry->ifa_addr == nullptr || entry->ifa_addr->sa_family != AF_PACKET || (entry->ifa_flags & IFF_LOOPBACK))
            continue;
        struct sockaddr_ll link;
        std::memcpy(&link, entry->ifa_addr, sizeof link);
        static constexpr unsigned char kZero[6] = {};
        if (link.sll_halen != 6 || std::memcmp(link.sll_addr, kZero, 6) == 0)
            continue;
        bool up = (entry->ifa_flags & IFF_UP) != 0;
        if (!found || up)
            std::memcpy(address, link.sll_addr, 6);
        found = true;
        foundUp = up;
    }
    freeifaddrs(list);
    return found;
#else
    (void)address;
    return false;
#endif
}

std::string hostUserName()
{
    long size = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(size > 0 ? static_cast<std::size_t>(size) : 16384u);
    struct passwd entry;
    struct passwd* result = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &result) != 0 || result == nullptr ||
        result->pw_name == nullptr)
        return std::string();
    return result->pw_name;
}

} // namespace detail
} // namespace tovu
