#ifndef TOVUUTIL_PLATFORM_NETWORKIDENTITY_H
#define TOVUUTIL_PLATFORM_NETWORKIDENTITY_H

#include <string>

#include <tovuutil/export.h>

// The network identity of the machine, asked once at load for the system
// properties. None of these functions fails loudly: a failing query gives
// the fallback text.

// The host name; "" when the host does not tell.
TOVU_API std::string getLocalComputerName();

// The local IPv4 address in dotted form "%u.%u.%u.%u" (on a POSIX host the
// first address that is not a loopback address); "127.0.0.1" when none is found.
TOVU_API std::string getLocalIPAddress();

// MacRetriever
//
// Asks the host for the hardware address of the network adapter (on a POSIX
// host the first adapter that is up and not a loopback adapter, else the
// first one that is not a loopback adapter) and gives it as six
// decimal groups joined by ".", a "0" put in front of values up to 15.
// Decimal, not hexadecimal, on purpose: hosts compare this text.
// Example: the bytes 02:fc:00:0a:10:ab give "02.252.00.010.16.171".
// "00.00.00.00.00.00" when no adapter is found.
class TOVU_API MacRetriever {
public:
    MacRetriever();
    virtual ~MacRetriever();

    // Asks the host on every call.
    std::string getMacAddress();
};

// MacRetriever().getMacAddress() computed once per process; later calls give
// the kept text.
TOVU_API std::string getMacAddress();

#endif
