#include "tovuutil/files/detail/FileReport.h"

#include "tovuutil/framework/Logger.h"
#include "tovuutil/text/StringUtil.h"

namespace tovu {
namespace detail {

Logger* fileOperationLog() { return Logger::getInstance("tovuutil.fileoperation"); }

void reportErrno(char const* function, std::string const& path, ErrnoTable table, int error)
{
    Logger* logger = fileOperationLog();
    if (logger->isErrorEnabled())
        logger->error(std::string(function) + "(" + path + "): " + errnoText(table, error));
}

void report(char const* function, char const* message, std::string const& path)
{
    Logger* logger = fileOperationLog();
    if (logger->isErrorEnabled())
        logger->error(std::string(function) + ": " + replacePattern(message, "%1", path));
}

} // namespace detail
} // namespace tovu
