#include "tovuutil/framework/Log4cxx.h"

#include <atomic>
#include <iostream>
#include <mutex>

#include <log4cpp/Category.hh>
#include <log4cpp/OstreamAppender.hh>
#include <log4cpp/PatternLayout.hh>
#include <log4cpp/Priority.hh>
#include <log4cpp/RollingFileAppender.hh>

#include "tovuutil/files/FileOperation.h"
#include "tovuutil/files/PathUtil.h"
#include "tovuutil/framework/detail/Constants.h"
#include "tovuutil/framework/detail/LoggingSetup.h"

namespace log4cxx {

bool Log4cxx::isLog4cppInitialized = false;

namespace {

constexpr char kConsoleAppender[] = "CONSOLE";
constexpr char kFileAppender[] = "TOVULOG";
constexpr char kTovuLogCategory[] = "tovuLog";
constexpr char kLogFileName[] = "tovu.log";

// Created on first use and never destroyed: the log directory must outlive
// every static destructor that might still log.
std::string& logDirectory()
{
    static std::string* directory = new std::string;
    return *directory;
}

// Builds the default set-up for a log directory ("" means the working directory).
void configure(std::string directory)
{
    if (directory.empty())
        directory = getCurrentDirectory();
    logDirectory() = directory;
    // The configuration file is named but never read: the set-up is built here.
    std::string configFile = getFullFilename(directory, "log4cpp.properties");
    (void)configFile;

    log4cpp::Category& root = log4cpp::Category::getRoot();
    log4cpp::Category::shutdown();
    root.setPriority(log4cpp::Priority::INFO);

    auto* console = new log4cpp::OstreamAppender(kConsoleAppender, &std::cout);
    auto* consoleLayout = new log4cpp::PatternLayout();
    consoleLayout->setConversionPattern("%m%n");
    console->setLayout(consoleLayout);
    console->setThreshold(log4cpp::Priority::INFO);
    root.addAppender(console);

    // Built with 10 MiB and one backup, then set to 1,000,000 bytes and ten
    // backups: the later settings are the ones in force.
    auto* file = new log4cpp::RollingFileAppender(kFileAppender, getFullFilename(directory, kLogFileName),
                                                  10 * 1024 * 1024, 1, true, 420);
    auto* fileLayout = new log4cpp::PatternLayout();
    fileLayout->setConversionPattern("%d : %m%n");
    file->setLayout(fileLayout);
    file->setMaximumFileSize(1000000);
    file->setMaxBackupIndex(10);
    file->setThreshold(log4cpp::Priority::DEBUG);
    file->setAppend(true);

    log4cpp::Category& tovuLog = log4cpp::Category::getInstance(kTovuLogCategory);
    tovuLog.setPriority(log4cpp::Priority::DEBUG);
    tovuLog.addAppender(file);
}

// Serialises building the set-up and relocating it; never destroyed.
std::mutex& setupMutex()
{
    static std::mutex* mutex = new std::mutex;
    return *mutex;
}

// Set (with release) after the first set-up, so a thread that sees it also
// sees the public flag's write and the set-up itself.
std::atomic<bool> setupDone{false};

void ensureConfigured()
{
    // The public flag is still honoured: a host that clears it gets a new set-up.
    if (setupDone.load(std::memory_order_acquire) && Log4cxx::isLog4cppInitialized)
        return;
    std::lock_guard<std::mutex> lock(setupMutex());
    if (!Log4cxx::isLog4cppInitialized) {
        configure(std::string());
        Log4cxx::isLog4cppInitialized = true;
    }
    setupDone.store(true, std::memory_order_release);
}

log4cpp::Category& tovuLogCategory()
{
    static log4cpp::Category& category = log4cpp::Category::getInstance(kTovuLogCategory);
    return category;
}

void logAt(log4cpp::Category& category, log4cpp::Priority::Value priority, std::string const& message)
{
    if (category.isPriorityEnabled(priority))
        category.log(priority, message);
}

} // namespace

Log4cxx::Log4cxx(std::string const& name) : name_(name), category_(nullptr)
{
    ensureConfigured();
    category_ = &log4cpp::Category::getInstance(name_);
}

Log4cxx::~Log4cxx() = default;

Log4cxx* Log4cxx::getLog4cxx(std::string const& name)
{
    ensureConfigured();
    return new Log4cxx(name);
}

Log4cxx* Log4cxx::getLog4cxx() { return getLog4cxx("root"); }

Log4cxx* Log4cxx::getRootLog4cxx() { return getLog4cxx("root"); }

void Log4cxx::relocateLog(std::string const& configFile, std::string const& oldDir, std::string const& newDir)
{
    (void)configFile;
    if (oldDir == newDir)
        return;
    {
        std::lock_guard<std::mutex> lock(setupMutex());
        configure(newDir);
        if (!isLog4cppInitialized)
            isLog4cppInitialized = true;
        setupDone.store(true, std::memory_order_release);
    }
    // Outside the lock: deleting may log through a logger of its own.
    if (!oldDir.empty()) {
        std::string oldLog = getFullFilename(oldDir, kLogFileName);
        if (fileExists(oldLog))
            deleteFile(oldLog);
    }
}

std::string Log4cxx::getLogDirectory()
{
    std::lock_guard<std::mutex> lock(setupMutex());
    return logDirectory();
}

std::string Log4cxx::getName() const { return name_; }

log4cpp::Category& Log4cxx::getCategory() { return log4cpp::Category::getRoot(); }

log4cpp::Category& Log4cxx::getCategory(std::string const& name) { return log4cpp::Category::getInstance(name); }

log4cpp::Appender* Log4cxx::getAppender(std::string const& category, std::string const& appender)
{
    log4cpp::Category& c = category.empty() ? log4cpp::Category::getRoot() : log4cpp::Category::getInstance(category);
    // Only the category's own appenders: log4cpp's lookup by name is process-wide.
    for (log4cpp::Appender* candidate : c.getAllAppenders())
        if (candidate->getName() == appender)
            return candidate;
    return nullptr;
}

log4cpp::Appender* Log4cxx::getRootAppender(std::string const& appender) { return getAppender(name_, appender); }

void Log4cxx::setLayout(std::string const& appender, std::string const& pattern)
{
    log4cpp::Appender* found = getAppender(std::string(), appender);
    if (found == nullptr)
        return;
    auto* layout = new log4cpp::PatternLayout();
    layout->setConversionPattern(pattern);
    found->setLayout(layout);
}

bool Log4cxx::isDebugEnabled() const { return category_->isPriorityEnabled(log4cpp::Priority::DEBUG); }
bool Log4cxx::isInfoEnabled() const { return category_->isPriorityEnabled(log4cpp::Priority::INFO); }
bool Log4cxx::isNoticeEnabled() const { return category_->isPriorityEnabled(log4cpp::Priority::NOTICE); }
bool Log4cxx::isWarnEnabled() const { return category_->isPriorityEnabled(log4cpp::Priority::WARN); }
bool Log4cxx::isErrorEnabled() const { return category_->isPriorityEnabled(log4cpp::Priority::ERROR); }
bool Log4cxx::isFatalEnabled() const { return category_->isPriorityEnabled(log4cpp::Priority::FATAL); }

// log4cpp writes each event through at once; the per-priority stream that
// could be flushed afterwards is always empty here, so no flush is needed.
void Log4cxx::debug(std::string const& message) { logAt(*category_, log4cpp::Priority::DEBUG, message); }
void Log4cxx::info(std::string const& message) { logAt(*category_, log4cpp::Priority::INFO, message); }
void Log4cxx::notice(std::string const& message) { logAt(*category_, log4cpp::Priority::NOTICE, message); }
void Log4cxx::warn(std::string const& message) { logAt(*category_, log4cpp::Priority::WARN, message); }
void Log4cxx::fatal(std::string const& message) { logAt(*category_, log4cpp::Priority::FATAL, message); }

void Log4cxx::error(std::string const& message)
{
    if (!isErrorEnabled())
        return;
    category_->error(message);
    tovuLog(message, 99, std::string(), 99);
}

namespace {
void marker(Log4cxx* self, char const* prefix, std::string const& method)
{
    if (self == nullptr || !self->isDebugEnabled())
        return;
    std::string line = prefix;
    line += self->getName();
    line += "::";
    line += method;
    self->debug(line);
}
} // namespace

void Log4cxx::beginMethod(std::string const& method) { marker(this, "Begin Method: ", method); }
void Log4cxx::endMethod(std::string const& method) { marker(this, "End Method  : ", method); }
void Log4cxx::beginConstruct(std::string const& method) { marker(this, "Begin Construct: ", method); }
void Log4cxx::endConstruct(std::string const& method) { marker(this, "End Construct  : ", method); }
void Log4cxx::beginDestruct(std::string const& method) { marker(this, "Begin Destruct : ", method); }
void Log4cxx::endDestruct(std::string const& method) { marker(this, "End Destruct   : ", method); }

void Log4cxx::tovuLog(std::string const& message, short level, std::string const& text, int returnCode)
{
    log4cpp::Category& category = tovuLogCategory();
    if (!category.isPriorityEnabled(log4cpp::Priority::DEBUG))
        return;
    if (level == 99 && text.empty() && returnCode == 99) {
        category.debug(message); // nothing to add: no copy
        return;
    }
    std::string line = message;
    if (level != 99) {
        line += "     ";
        line += std::to_string(level);
    }
    if (!text.empty()) {
        line += "     ";
        line += text;
    }
    if (returnCode != 99) {
        line += "     ";
        line += tovu::text::kReturncodeLabel;
        line += std::to_string(returnCode);
    }
    category.debug(line);
}

void Log4cxx::tovuLog(char const* message, short level, char const* text, int returnCode)
{
    tovuLog(std::string(message ? message : "NULL"), level, std::string(text ? text : "NULL"), returnCode);
}

void Log4cxx::doLogMe(std::string const& message, short level, std::string const& text, int returnCode)
{
    tovuLog(message, level, text, returnCode);
}

} // namespace log4cxx

void tovu::detail::ensureLoggingConfigured() { log4cxx::ensureConfigured(); }
