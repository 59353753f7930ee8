#ifndef TOVUUTIL_FRAMEWORK_DETAIL_METHODMARKER_H
#define TOVUUTIL_FRAMEWORK_DETAIL_METHODMARKER_H

#include <string>
#include <type_traits>
#include <utility>

#include "tovuutil/framework/Logger.h"

namespace tovu {
namespace detail {

// Brackets one operation with the DEBUG begin and end method markers. The
// text is a string, or a callable that builds it: then it is built only when
// DEBUG is on, so a disabled logger costs no string work.
class MethodMarker {
public:
    template <class Text>
    MethodMarker(Logger* logger, Text&& text) : logger_(logger)
    {
        if (logger_->isDebugEnabled()) {
            if constexpr (std::is_invocable_v<Text>)
                text_ = std::forward<Text>(text)();
            else
                text_ = std::forward<Text>(text);
            logger_->beginMethod(text_);
            active_ = true;
        }
    }
    ~MethodMarker()
    {
        if (active_)
            logger_->endMethod(text_);
    }
    MethodMarker(MethodMarker const&) = delete;
    MethodMarker& operator=(MethodMarker const&) = delete;

private:
    Logger* logger_;
    std::string text_;
    bool active_ = false;
};

} // namespace detail
} // namespace tovu

#endif
