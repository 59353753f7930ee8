#include "tovuutil/platform/NetworkIdentity.h"

#include "tovuutil/platform/detail/HostIdentity.h"

std::string getLocalComputerName() { return tovu::detail::hostComputerName(); }

std::string getLocalIPAddress()
{
    unsigned char address[4] = {};
    if (!tovu::detail::hostIPv4Address(address))
        return "127.0.0.1";
    return tovu::detail::formatIPv4Address(address);
}

MacRetriever::MacRetriever() = default;
MacRetriever::~MacRetriever() = default;

std::string MacRetriever::getMacAddress()
{
    // Six zero bytes format as the "not found" text "00.00.00.00.00.00".
    unsigned char address[6] = {};
    if (!tovu::detail::hostMacAddress(address))
        for (unsigned char& byte : address)
            byte = 0;
    return tovu::detail::formatMacAddress(address);
}

std::string getMacAddress()
{
    static std::string const kept = MacRetriever().getMacAddress();
    return kept;
}
