#include "tovuutil/properties/detail/BuiltInSystemProperties.h"

namespace tovu {
namespace detail {

// Placeholder until the system properties table lands.
void fillBuiltInSystemProperties() {}

} // namespace detail
} // namespace tovu
