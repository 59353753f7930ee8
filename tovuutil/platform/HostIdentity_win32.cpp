#include "tovuutil/platform/detail/HostIdentity.h"

#include <cstring>
#include <vector>

#include <winsock2.h>
#include <windows.h>
#include <iphlpapi.h>

namespace tovu {
namespace detail {

namespace {
// Winsock started for the length of one query.
class WinsockSession {
public:
    WinsockSession() { started_ = WSAStartup(MAKEWORD(1, 1), &data_) == 0; }
    ~WinsockSession()
    {
        if (started_)
            WSACleanup();
    }
    bool started() const { return started_; }

private:
    WSADATA data_;
    bool started_;
};
} // namespace

std::string hostComputerName()
{
    WinsockSession session;
    if (!session.started())
        return std::string();
    char name[256] = {};
    if (gethostname(name, sizeof name) != 0)
        return std::string();
    name[sizeof name - 1] = '\0';
    return name;
}

bool hostIPv4Address(unsigned char (&address)[4])
{
    WinsockSession session;
    if (!session.started())
        return false;
    char name[256] = {};
    if (gethostname(name, sizeof name) != 0)
        return false;
    name[sizeof name - 1] = '\0';
    hostent* host = gethostbyname(name);
    if (host == nullptr || host->h_addrtype != AF_INET || host->h_length != 4 || host->h_addr_list == nullptr ||
        host->h_addr_list[0] == nullptr)
        return false;
    std::memcpy(address, host->h_addr_list[0], 4);
    return true;
}

bool hostMacAddress(unsigned char (&address)[6])
{
    ULONG size = 0;
    if (GetAdaptersInfo(nullptr, &size) != ERROR_BUFFER_OVERFLOW || size == 0)
        return false;
    std::vector<unsigned char> buffer(size);
    auto* adapters = reinterpret_cast<IP_ADAPTER_INFO*>(buffer.data());
    if (GetAdaptersInfo(adapters, &size) != ERROR_SUCCESS)
        return false;
    for (IP_ADAPTER_INFO* adapter = adapters; adapter != nullptr; adapter = adapter->Next) {
        if (adapter->Type == MIB_IF_TYPE_LOOPBACK || adapter->AddressLength != 6)
            continue;
        std::memcpy(address, adapter->Address, 6);
        return true;
    }
    return false;
}

std::string hostUserName()
{
    // Starts out empty: a failed call leaves an empty name. The call's own
    // result is not consulted.
    std::vector<char> buffer(8192, '\0');
    DWORD size = static_cast<DWORD>(buffer.size());
    GetUserNameA(buffer.data(), &size);
    buffer.back() = '\0';
    return buffer.data();
}

} // namespace detail
} // namespace tovu
