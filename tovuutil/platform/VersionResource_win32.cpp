#include "tovuutil/platform/detail/VersionResource.h"

#include <windows.h>

namespace tovu {
namespace detail {

bool loadVersionBlock(std::string const& fileName, std::string& block)
{
    DWORD handle = 0;
    DWORD size = GetFileVersionInfoSizeA(fileName.c_str(), &handle);
    if (size == 0)
        return false;
    block.assign(size, '\0');
    return GetFileVersionInfoA(fileName.c_str(), 0, size, &block[0]) != 0;
}

bool queryVersionValue(std::string const& block, std::string const& key, std::string& value)
{
    LPVOID data = nullptr;
    UINT length = 0;
    if (!VerQueryValueA(block.data(), key.c_str(), &data, &length) || data == nullptr || length == 0)
        return false;
    char const* text = static_cast<char const*>(data);
    value.assign(text, strnlen(text, length));
    return true;
}

} // namespace detail
} // namespace tovu
