#ifndef TOVUUTIL_PLATFORM_DETAIL_VERSIONRESOURCE_H
#define TOVUUTIL_PLATFORM_DETAIL_VERSIONRESOURCE_H

#include <string>

namespace tovu {
namespace detail {

// The host's version block of a file, opaque to the caller; false when the
// file has none.
bool loadVersionBlock(std::string const& fileName, std::string& block);

// One string entry of a block, by its full key
// ("\\StringFileInfo\\040704b0\\ProductVersion"); false when absent.
bool queryVersionValue(std::string const& block, std::string const& key, std::string& value);

} // namespace detail
} // namespace tovu

#endif
