#ifndef TOVUUTIL_FRAMEWORK_LOGGER_H
#define TOVUUTIL_FRAMEWORK_LOGGER_H

#include <string>

#include <tovuutil/framework/Log4cxx.h>

// Logger
//
// The managed logger of one category. getInstance hands out exactly one per
// name; the lifetime manager owns it and deletes every logger at shutdown,
// after the services. Each class fetches its logger once under
// "tovuutil.<ClassName>" and keeps the pointer. Test isDebugEnabled() before
// building a message string.
class TOVU_API Logger : public log4cxx::Log4cxx {
public:
    // The logger of the category "name", created and registered with the
    // lifetime manager on first request; never null. The manager owns it.
    static Logger* getInstance(std::string const& name);

    // A copy is not registered: its owner deletes it.
    Logger(Logger const&) = default;
    // Takes over the other logger's name and category.
    Logger& operator=(Logger const&) = default;
    virtual ~Logger();

private:
    explicit Logger(std::string const& name);
};

#endif
