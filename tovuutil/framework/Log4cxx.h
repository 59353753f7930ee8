#ifndef TOVUUTIL_FRAMEWORK_LOG4CXX_H
#define TOVUUTIL_FRAMEWORK_LOG4CXX_H

#include <string>

#include <tovuutil/export.h>

namespace log4cpp {
class Category;
class Appender;
}

namespace log4cxx {

// Log4cxx
//
// The logging facade over log4cpp. An object names one category and resolves
// it once, at construction: log4cpp keeps every category for the life of the
// process (a new set-up only replaces appenders), so the object behaves as if
// it resolved the name on every call. The first object (or getLog4cxx call) builds
// the default set-up:
//   - root category at INFO with the console appender "CONSOLE" ("%m%n");
//   - category "tovuLog" at DEBUG with the rolling file appender "TOVULOG"
//     writing "tovu.log" in the log directory ("%d : %m%n", rolls at
//     1,000,000 bytes, ten backups).
// error() also copies its message at DEBUG into "tovuLog", so every error
// lands in the log file.
//
// Threads: objects may log from any thread. Building the set-up and
// relocateLog are serialised on one lock, which is taken before any of
// log4cpp's own and never while a logger of this library is being created.
class TOVU_API Log4cxx {
public:
    // Builds the default set-up if needed, then binds the category "name".
    explicit Log4cxx(std::string const& name);
    // Copies share the same category.
    Log4cxx(Log4cxx const&) = default;
    // Takes over the other object's name and category.
    Log4cxx& operator=(Log4cxx const&) = default;
    virtual ~Log4cxx();

    // A new facade object for the category; the caller owns it.
    static Log4cxx* getLog4cxx(std::string const& name);
    // A new facade object for the category "root"; the caller owns it.
    static Log4cxx* getLog4cxx();
    // Same as getLog4cxx(): the category named "root"; the caller owns it.
    static Log4cxx* getRootLog4cxx();

    // True once the default configuration has been built.
    static bool isLog4cppInitialized;

    // Moves the log file: when oldDir and newDir differ, the default set-up is
    // rebuilt for newDir; then "tovu.log" in a non-empty oldDir is deleted.
    // Nothing is copied over.
    static void relocateLog(std::string const& configFile, std::string const& oldDir, std::string const& newDir);

    // The directory that holds "tovu.log".
    static std::string getLogDirectory();

    // The category name given at construction.
    std::string getName() const;
    // log4cpp's root category, whatever this object's own category is.
    log4cpp::Category& getCategory();
    // The log4cpp category of that name, created if it does not exist yet.
    log4cpp::Category& getCategory(std::string const& name);
    // The appender of that name attached to the category itself (an empty
    // category means root); null when it has none by that name.
    log4cpp::Appender* getAppender(std::string const& category, std::string const& appender);
    // Despite the name, looks in this object's own category, as getAppender(getName(), appender).
    log4cpp::Appender* getRootAppender(std::string const& appender);
    // Gives the root category's appender a new pattern layout; unknown names are ignored.
    void setLayout(std::string const& appender, std::string const& pattern);

    // Whether this object's category logs at DEBUG.
    bool isDebugEnabled() const;
    // Whether this object's category logs at INFO.
    bool isInfoEnabled() const;
    // Whether this object's category logs at NOTICE.
    bool isNoticeEnabled() const;
    // Whether this object's category logs at WARN.
    bool isWarnEnabled() const;
    // Whether this object's category logs at ERROR.
    bool isErrorEnabled() const;
    // Whether this object's category logs at FATAL.
    bool isFatalEnabled() const;

    // Logs at DEBUG in this object's category; nothing when the level is off.
    void debug(std::string const& message);
    // Logs at INFO in this object's category; nothing when the level is off.
    void info(std::string const& message);
    // Logs at NOTICE in this object's category; nothing when the level is off.
    void notice(std::string const& message);
    // Logs at WARN in this object's category; nothing when the level is off.
    void warn(std::string const& message);
    // Logs at ERROR in this object's category and, only then, copies the
    // message at DEBUG into "tovuLog".
    void error(std::string const& message);
    // Logs at FATAL in this object's category; nothing when the level is off.
    void fatal(std::string const& message);

    // DEBUG markers "<prefix><category>::<method>"; the prefixes' trailing
    // blanks align the colons.
    // Writes "Begin Method: <category>::<method>".
    void beginMethod(std::string const& method);
    // Writes "End Method  : <category>::<method>".
    void endMethod(std::string const& method);
    // Writes "Begin Construct: <category>::<method>".
    void beginConstruct(std::string const& method);
    // Writes "End Construct  : <category>::<method>".
    void endConstruct(std::string const& method);
    // Writes "Begin Destruct : <category>::<method>".
    void beginDestruct(std::string const& method);
    // Writes "End Destruct   : <category>::<method>".
    void endDestruct(std::string const& method);

    // The structured line at DEBUG on "tovuLog": message, then for each given
    // part five blanks and the part; 99 as level or returnCode means "not
    // given", as does an empty text. The return code is printed after
    // "\tReturncode = ".
    // Example: tovuLog("x", 3, "y", 5) writes "x     3     y     \tReturncode = 5".
    void tovuLog(std::string const& message, short level, std::string const& text, int returnCode);
    // Null pointers print as "NULL".
    void tovuLog(char const* message, short level, char const* text, int returnCode);
    // Another name for tovuLog with the same arguments.
    void doLogMe(std::string const& message, short level, std::string const& text, int returnCode);

private:
    std::string name_;
    log4cpp::Category* category_;
};

} // namespace log4cxx

#endif
