#ifndef TOVUUTIL_PROPERTIES_DETAIL_SYSTEMPROPERTIESVERSION_H
#define TOVUUTIL_PROPERTIES_DETAIL_SYSTEMPROPERTIESVERSION_H

namespace tovu {
namespace detail {

// Changes whenever the system properties table may have changed (a write, a
// removal, a new or deleted service): what was derived from it under an
// unchanged version still holds.
unsigned long systemPropertiesVersion();

} // namespace detail
} // namespace tovu

#endif
