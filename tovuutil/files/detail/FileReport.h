#ifndef TOVUUTIL_FILES_DETAIL_FILEREPORT_H
#define TOVUUTIL_FILES_DETAIL_FILEREPORT_H

#include <string>

#include "tovuutil/files/detail/ErrnoText.h"

class Logger;

namespace tovu {
namespace detail {

// The category of the file operations.
Logger* fileOperationLog();
// "<function>(<path>): <text of errno>"
void reportErrno(char const* function, std::string const& path, ErrnoTable table, int error);
// "<function>: <message with %1 = path>"
void report(char const* function, char const* message, std::string const& path = std::string());

} // namespace detail
} // namespace tovu

#endif
