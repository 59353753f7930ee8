#include <gtest/gtest.h>

#include <log4cpp/Category.hh>
#include <log4cpp/RollingFileAppender.hh>

#include <tovuutil/tovuutil.h>

#include "LogCapture.h"
#include "TempDir.h"

using log4cxx::Log4cxx;
using tovutest::CapturedLog;
using tovutest::logMessages;
using tovutest::TempDir;

namespace {

// Every test starts with "tovu.log" in a directory of its own.
class LoggingTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        Log4cxx::relocateLog("", "", dir_.path() + tovutest::kSep);
        logger_ = Logger::getInstance("tovuutil.LoggingTest");
    }
    TempDir dir_;
    Logger* logger_ = nullptr;
};

} // namespace

TEST_F(LoggingTest, TovuLogJoinsTheGivenPartsWithFiveBlanks)
{
    logger_->tovuLog("x", 99, "", 99);
    logger_->tovuLog("x", 3, "y", 5);
    logger_->tovuLog("m", 99, "t", 99);
    logger_->tovuLog("m", -2, "", 0);
    logger_->tovuLog(static_cast<char const*>(nullptr), 99, static_cast<char const*>(nullptr), 99);
    logger_->doLogMe("d", 1, "", 99);
    EXPECT_EQ(logMessages(dir_.path()),
              (std::vector<std::string>{"x", "x     3     y     \tReturncode = 5", "m     t",
                                        "m     -2     \tReturncode = 0", "NULL     NULL", "d     1"}));
}

TEST_F(LoggingTest, ErrorsGoToTheConsoleAndAreCopiedIntoTheLogFile)
{
    testing::internal::CaptureStdout();
    logger_->error("kaputt");
    logger_->info("information");
    logger_->debug("not shown");
    logger_->warn("warnung");
    std::string console = testing::internal::GetCapturedStdout();
    EXPECT_EQ(console, "kaputt\ninformation\nwarnung\n");
    EXPECT_EQ(logMessages(dir_.path()), (std::vector<std::string>{"kaputt"}));
}

TEST_F(LoggingTest, LogFileLinesCarryTheDateThenTheMessage)
{
    logger_->tovuLog("zeile", 99, "", 99);
    std::string content = tovutest::readFile(tovutest::joinPath(dir_.path(), "tovu.log"));
    // "%d : %m%n" with log4cpp's ISO date: "YYYY-MM-DD hh:mm:ss,mmm : zeile\n"
    // (a text-mode file on Windows: CR LF)
#ifdef _WIN32
    std::string const lineEnd = "\r\n";
#else
    std::string const lineEnd = "\n";
#endif
    ASSERT_EQ(content.size(), 23u + 3u + 5u + lineEnd.size());
    EXPECT_EQ(content.substr(4, 1), "-");
    EXPECT_EQ(content.substr(19, 1), ",");
    EXPECT_EQ(content.substr(23), " : zeile" + lineEnd);
}

TEST_F(LoggingTest, DefaultLevelsAndAppenders)
{
    EXPECT_TRUE(Log4cxx::isLog4cppInitialized);
    EXPECT_FALSE(logger_->isDebugEnabled());
    EXPECT_TRUE(logger_->isInfoEnabled());
    EXPECT_TRUE(logger_->isNoticeEnabled());
    EXPECT_TRUE(logger_->isWarnEnabled());
    EXPECT_TRUE(logger_->isErrorEnabled());
    EXPECT_TRUE(logger_->isFatalEnabled());
    EXPECT_EQ(log4cpp::Category::getInstance("tovuLog").getPriority(), 700);
    EXPECT_EQ(log4cpp::Category::getRoot().getPriority(), 600);

    EXPECT_NE(logger_->getAppender("", "CONSOLE"), nullptr);
    EXPECT_EQ(logger_->getAppender("", "TOVULOG"), nullptr);
    auto* file = dynamic_cast<log4cpp::RollingFileAppender*>(logger_->getAppender("tovuLog", "TOVULOG"));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->getMaxFileSize(), 1000000u);
    EXPECT_EQ(file->getMaxBackupIndex(), 10u);
    EXPECT_EQ(file->getThreshold(), 700);
    EXPECT_TRUE(file->getAppend());
    EXPECT_EQ(file->getMode(), 0644u);
    EXPECT_EQ(logger_->getRootAppender("CONSOLE"), nullptr); // looked up on its own category
}

TEST_F(LoggingTest, MarkersKeepTheirAligningBlanks)
{
    log4cpp::Category::getInstance("tovuutil.LoggingTest").setPriority(700);
    CapturedLog captured("tovuutil.LoggingTest");
    logger_->beginMethod("run(\"a\")");
    logger_->endMethod("run");
    logger_->beginConstruct("C");
    logger_->endConstruct("C");
    logger_->beginDestruct("~C");
    logger_->endDestruct("~C");
    EXPECT_EQ(captured.lines(), (std::vector<std::string>{
                                    "Begin Method: tovuutil.LoggingTest::run(\"a\")",
                                    "End Method  : tovuutil.LoggingTest::run",
                                    "Begin Construct: tovuutil.LoggingTest::C",
                                    "End Construct  : tovuutil.LoggingTest::C",
                                    "Begin Destruct : tovuutil.LoggingTest::~C",
                                    "End Destruct   : tovuutil.LoggingTest::~C",
                                }));
}

TEST_F(LoggingTest, MarkersAreSilentWithoutDebug)
{
    log4cpp::Category::getInstance("tovuutil.LoggingTest").setPriority(600);
    CapturedLog captured("tovuutil.LoggingTest");
    logger_->beginMethod("run");
    logger_->endDestruct("~C");
    EXPECT_TRUE(captured.lines().empty());
}

TEST_F(LoggingTest, OneLoggerPerNameButANewFacadePerRequest)
{
    EXPECT_EQ(Logger::getInstance("tovuutil.A"), Logger::getInstance("tovuutil.A"));
    EXPECT_NE(Logger::getInstance("tovuutil.A"), Logger::getInstance("tovuutil.B"));
    EXPECT_EQ(Logger::getInstance("tovuutil.A")->getName(), "tovuutil.A");

    std::unique_ptr<Log4cxx> a(Log4cxx::getLog4cxx("x"));
    std::unique_ptr<Log4cxx> b(Log4cxx::getLog4cxx("x"));
    EXPECT_NE(a.get(), b.get());
    std::unique_ptr<Log4cxx> root(Log4cxx::getRootLog4cxx());
    EXPECT_EQ(root->getName(), "root");
    EXPECT_EQ(&root->getCategory(), &log4cpp::Category::getRoot());
}

TEST_F(LoggingTest, NewLoggersAnnounceThemselvesAtDebug)
{
    log4cpp::Category::getInstance("tovuutil.Fresh").setPriority(700);
    CapturedLog captured("tovuutil.Fresh");
    Logger::getInstance("tovuutil.Fresh");
    Logger::getInstance("tovuutil.Fresh");
    EXPECT_EQ(captured.lines(), (std::vector<std::string>{"Logger 'tovuutil.Fresh' initialisiert."}));
}

TEST_F(LoggingTest, SetLayoutChangesTheConsolePatternAndIgnoresUnknownNames)
{
    logger_->setLayout("NOSUCH", "%p %m%n");
    logger_->setLayout("CONSOLE", "[%p] %m%n");
    testing::internal::CaptureStdout();
    logger_->warn("w");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[WARN] w\n");
}

TEST(Relocation, MovesTheLogFileAndDeletesTheOldOne)
{
    TempDir first;
    TempDir second;
    std::string const firstDir = first.path() + tovutest::kSep;
    std::string const secondDir = second.path() + tovutest::kSep;
    Logger* logger = Logger::getInstance("tovuutil.Relocation");

    Log4cxx::relocateLog("", "", firstDir);
    logger->tovuLog("eins", 99, "", 99);
    EXPECT_EQ(logMessages(firstDir), (std::vector<std::string>{"eins"}));

    // The same directory again changes nothing.
    Log4cxx::relocateLog("", firstDir, firstDir);
    logger->tovuLog("zwei", 99, "", 99);
    EXPECT_EQ(logMessages(firstDir), (std::vector<std::string>{"eins", "zwei"}));

    Log4cxx::relocateLog("", firstDir, secondDir);
    logger->tovuLog("drei", 99, "", 99);
    EXPECT_EQ(access((firstDir + "tovu.log").c_str(), F_OK), -1);
    EXPECT_EQ(logMessages(secondDir), (std::vector<std::string>{"drei"}));
    EXPECT_EQ(Log4cxx::getLogDirectory(), secondDir);
}

TEST(Relocation, FromNowhereReconfiguresButDeletesNothing)
{
    TempDir dir;
    std::string const start = Log4cxx::getLogDirectory();
    Logger::getInstance("tovuutil.Relocation")->tovuLog("vorher", 99, "", 99);
    Log4cxx::relocateLog("", "", dir.path() + tovutest::kSep);
    EXPECT_EQ(access((start + tovutest::kSepText + "tovu.log").c_str(), F_OK), 0);
    Logger::getInstance("tovuutil.Relocation")->tovuLog("danach", 99, "", 99);
    EXPECT_EQ(logMessages(dir.path()), (std::vector<std::string>{"danach"}));
}

TEST(DefaultSetUp, LogsIntoTheWorkingDirectoryAtLoad)
{
    char* cwd = getcwd(nullptr, 0);
    // The log home set at load: the working directory without a trailing separator.
    std::string expected = std::string(cwd);
    std::free(cwd);
    EXPECT_EQ(Log4cxx::getLogDirectory(), expected);
}
