#ifndef TOVUUTIL_PROPERTIES_DETAIL_BUILTINSYSTEMPROPERTIES_H
#define TOVUUTIL_PROPERTIES_DETAIL_BUILTINSYSTEMPROPERTIES_H

namespace tovu {
namespace detail {

// Fills the built-in system properties (homes from the environment and the
// working directory, then the machine facts). Called once by the load-time
// object, right after the lifetime manager has started.
void fillBuiltInSystemProperties();

} // namespace detail
} // namespace tovu

#endif
