#ifndef TOVUUTIL_FRAMEWORK_DETAIL_LOGGINGSETUP_H
#define TOVUUTIL_FRAMEWORK_DETAIL_LOGGINGSETUP_H

namespace tovu {
namespace detail {

// Builds the default logging set-up unless it is in force. Cheap once it is.
void ensureLoggingConfigured();

} // namespace detail
} // namespace tovu

#endif
