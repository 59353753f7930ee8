#ifndef TOVU_TESTS_FRAMEWORK_LOGCAPTURE_H
#define TOVU_TESTS_FRAMEWORK_LOGCAPTURE_H

// Helpers to observe what the logging facade writes.

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <log4cpp/Category.hh>
#include <log4cpp/PatternLayout.hh>
#include <log4cpp/StringQueueAppender.hh>

#include "HostPaths.h"

namespace tovutest {

// The messages of "tovu.log" in a directory, without the "<date> : " prefix.
// On Windows the file is written in text mode: every line must end in CR LF
// (a line without its CR keeps a visible mark, so the comparison fails).
inline std::vector<std::string> logMessages(std::string const& directory = ".")
{
    std::ifstream in(joinPath(directory, "tovu.log"), std::ios::binary);
    std::vector<std::string> messages;
    std::string line;
    while (std::getline(in, line)) {
#ifdef _WIN32
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        else
            line += "<no CR>";
#endif
        std::string::size_type cut = line.find(" : ");
        messages.push_back(cut == std::string::npos ? line : line.substr(cut + 3));
    }
    return messages;
}

// Collects the messages ("%m") of a category and of every category below it.
class CapturedLog {
public:
    explicit CapturedLog(std::string const& category = std::string())
        : category_(category.empty() ? log4cpp::Category::getRoot() : log4cpp::Category::getInstance(category)),
          appender_(new log4cpp::StringQueueAppender("CAPTURE"))
    {
        auto* layout = new log4cpp::PatternLayout();
        layout->setConversionPattern("%m");
        appender_->setLayout(layout);
        category_.addAppender(appender_);
    }
    ~CapturedLog() { category_.removeAppender(appender_); }

    std::vector<std::string> lines()
    {
        std::vector<std::string> result;
        auto& queue = appender_->getQueue();
        while (!queue.empty()) {
            result.push_back(queue.front());
            queue.pop();
        }
        return result;
    }

private:
    log4cpp::Category& category_;
    log4cpp::StringQueueAppender* appender_;
};

inline std::string readFile(std::string const& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

} // namespace tovutest

#endif
