#include "tovuutil/platform/detail/HostIdentity.h"

namespace tovu {
namespace detail {

std::string formatIPv4Address(unsigned char const (&address)[4])
{
    std::string text;
    for (int i = 0; i < 4; ++i) {
        if (i > 0)
            text += '.';
        text += std::to_string(static_cast<unsigned>(address[i]));
    }
    return text;
}

std::string formatMacAddress(unsigned char const (&address)[6])
{
    std::string text;
    for (int i = 0; i < 6; ++i) {
        if (i > 0)
            text += '.';
        if (address[i] <= 15)
            text += '0';
        text += std::to_string(static_cast<unsigned>(address[i]));
    }
    return text;
}

} // namespace detail
} // namespace tovu
