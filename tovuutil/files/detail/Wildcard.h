#ifndef TOVUUTIL_FILES_DETAIL_WILDCARD_H
#define TOVUUTIL_FILES_DETAIL_WILDCARD_H

#include <string>

namespace tovu {
namespace detail {

// Windows wildcard rules for directory searches: "*" any run, "?" one
// character, letters compared without case; "*.*" and "*" match every name;
// a pattern ending in "." also matches names without an extension.
bool matchesWildcard(std::string const& name, std::string const& pattern);

} // namespace detail
} // namespace tovu

#endif
