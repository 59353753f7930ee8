#include "tovuutil/platform/detail/VersionResource.h"

#include <climits>
#include <cstdlib>

namespace tovu {
namespace detail {

namespace {
// "6", "1.2" or "1.2.3" after ".so." at the end of a file name; "" otherwise.
std::string sonameVersion(std::string const& file)
{
    std::string::size_type at = file.rfind(".so.");
    if (at == std::string::npos)
        return std::string();
    std::string version = file.substr(at + 4);
    int numbers = 0;
    bool expectDigit = true;
    for (unsigned char c : version) {
        if (c >= '0' && c <= '9') {
            if (expectDigit)
                ++numbers;
            expectDigit = false;
        } else if (c == '.' && !expectDigit) {
            expectDigit = true;
        } else {
            return std::string();
        }
    }
    return (expectDigit || numbers > 3) ? std::string() : version;
}
} // namespace

bool loadVersionBlock(std::string const& fileName, std::string& block)
{
    char* real = realpath(fileName.c_str(), nullptr);
    if (real == nullptr)
        return false;
    std::string path(real);
    std::free(real);
    std::string::size_type slash = path.rfind('/');
    block = sonameVersion(slash == std::string::npos ? path : path.substr(slash + 1));
    return !block.empty();
}

bool queryVersionValue(std::string const& block, std::string const&, std::string& value)
{
    // An ELF library has one number for every table and entry.
    value = block;
    return true;
}

} // namespace detail
} // namespace tovu
