#include <gtest/gtest.h>

#include <algorithm>
#include <log4cpp/Category.hh>

#include <tovuutil/tovuutil.h>

#include "LogCapture.h"

using tovutest::CapturedLog;

namespace {

std::vector<std::string>* deletions = nullptr;

// Records its deletion, and what the manager answered while it was deleted.
class Recorder : public ManagedTovuObject {
public:
    explicit Recorder(std::string name, bool reenter = false) : name_(std::move(name)), reenter_(reenter) {}
    ~Recorder() override
    {
        std::string entry = name_;
        if (reenter_)
            entry += " shutdown=" + std::to_string(ObjectLifetimeManager::instance()->shutdown());
        entry += ObjectLifetimeManager::getPreAllocatedObject(TOVU_GUI_SERVICE) ? " services" : " no-services";
        if (deletions)
            deletions->push_back(entry);
    }

private:
    std::string name_;
    bool reenter_;
};

std::vector<std::string> onlyShutdownLines(std::vector<std::string> const& lines)
{
    std::vector<std::string> kept;
    for (auto const& line : lines)
        if (line.rfind("Begin Destruct : ", 0) == 0 || line.rfind("Logger '", 0) == 0)
            kept.push_back(line);
    return kept;
}

} // namespace

TEST(Lifetime, RunsAfterLoad)
{
    EXPECT_EQ(ObjectLifetimeManager::starting_up(), 0);
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 0);
    ObjectLifetimeManager* manager = ObjectLifetimeManager::instance();
    EXPECT_EQ(manager, ObjectLifetimeManager::instance());
    EXPECT_EQ(manager->startup(), 1);
    for (int i = TOVU_SYSTEM_PROPERTIES_SERVICE; i <= TOVU_GUI_SERVICE; ++i)
        EXPECT_NE(ObjectLifetimeManager::getPreAllocatedObject(static_cast<Preallocated_Object>(i)), nullptr);
    EXPECT_EQ(ObjectLifetimeManager::getPreAllocatedObject(TOVU_PREALLOCATED_NONE), nullptr);
    EXPECT_EQ(ObjectLifetimeManager::getPreAllocatedObject(static_cast<Preallocated_Object>(5)), nullptr);
    EXPECT_EQ(ObjectLifetimeManager::getPreAllocatedObject(static_cast<Preallocated_Object>(-1)), nullptr);
}

TEST(Lifetime, ObjectsByNameAndTheFirstOfADuplicateWins)
{
    std::vector<std::string> log;
    deletions = &log;
    ObjectLifetimeManager* manager = ObjectLifetimeManager::instance();
    auto* first = new Recorder("first");
    auto* second = new Recorder("second");
    manager->addObject("same", first);
    manager->addObject("same", second);
    EXPECT_EQ(manager->getObject("same"), first);
    EXPECT_EQ(manager->getObject("other"), nullptr);

    ObjectLifetimeManager::fini();
    // Both were owned and deleted, in the order they were added, before the services.
    EXPECT_EQ(log, (std::vector<std::string>{"first services", "second services"}));
    deletions = nullptr;
}

TEST(Lifetime, ShutdownOrderObjectsThenServicesThenLoggers)
{
    log4cpp::Category::getRoot().setPriority(700);
    CapturedLog captured;
    std::vector<std::string> log;
    deletions = &log;
    ObjectLifetimeManager::instance()->addObject("r", new Recorder("r"));

    ObjectLifetimeManager::fini();

    EXPECT_EQ(log, (std::vector<std::string>{"r services"}));
    std::vector<std::string> lines = onlyShutdownLines(captured.lines());
    // The services go in reverse order of creation, each before any logger.
    std::vector<std::string> services;
    for (auto const& line : lines)
        if (line.rfind("Begin Destruct : ", 0) == 0)
            services.push_back(line.substr(17, line.find("::") - 17));
    std::vector<std::string> expected = {"tovuutil.GUIServiceImpl", "tovuutil.SharedLibServiceImpl"};
    for (char const* name : {"tovuutil.PropertiesServiceImpl", "tovuutil.SystemPropertiesServiceImpl"})
        if (std::find(services.begin(), services.end(), name) != services.end())
            expected.push_back(name);
    EXPECT_EQ(services, expected);
    ASSERT_FALSE(lines.empty());
    auto firstLogger = std::find_if(lines.begin(), lines.end(), [](auto const& l) { return l[0] == 'L'; });
    ASSERT_NE(firstLogger, lines.end());
    EXPECT_TRUE(std::all_of(firstLogger, lines.end(), [](auto const& l) { return l.rfind("Logger '", 0) == 0; }));
    // Loggers go in the order of their creation; the first ones are the services'.
    EXPECT_EQ(*firstLogger, "Logger 'tovuutil.SystemPropertiesServiceImpl' entfernt.");
    deletions = nullptr;
}

TEST(Lifetime, ShutdownCodesAndReentrantShutdown)
{
    std::vector<std::string> log;
    deletions = &log;
    ObjectLifetimeManager* manager = ObjectLifetimeManager::instance();
    manager->addObject("reenter", new Recorder("reenter", true));
    EXPECT_EQ(manager->shutdown(), 0);
    EXPECT_EQ(log, (std::vector<std::string>{"reenter shutdown=-1 services"}));
    // The load-time manager is gone as the instance; queries stay safe.
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 1);
    EXPECT_EQ(ObjectLifetimeManager::starting_up(), 1);
    EXPECT_EQ(ObjectLifetimeManager::getPreAllocatedObject(TOVU_GUI_SERVICE), nullptr);
    EXPECT_EQ(manager->shutdown(), 1);
    EXPECT_EQ(manager->startup(), 1);
    deletions = nullptr;
}

TEST(Lifetime, AManagerAskedForAfterShutdownStartsAfreshAndDeletesItself)
{
    ObjectLifetimeManager::fini();
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 1);

    ObjectLifetimeManager* fresh = ObjectLifetimeManager::instance();
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 0);
    EXPECT_NE(ObjectLifetimeManager::getPreAllocatedObject(TOVU_SYSTEM_PROPERTIES_SERVICE), nullptr);
    EXPECT_EQ(fresh->getObject("anything"), nullptr);
    Logger* logger = Logger::getInstance("tovuutil.Fresh");
    EXPECT_EQ(fresh->getLogger("tovuutil.Fresh", nullptr), logger);

    std::vector<std::string> log;
    deletions = &log;
    fresh->addObject("x", new Recorder("x"));
    EXPECT_EQ(fresh->shutdown(), 0); // deletes the manager itself
    EXPECT_EQ(log, (std::vector<std::string>{"x services"}));
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 1);
    deletions = nullptr;
}

TEST(Lifetime, ASecondManagerNeverRunsButItsEndShutsTheInstanceDown)
{
    ObjectLifetimeManager* running = ObjectLifetimeManager::instance();
    {
        ObjectLifetimeManager second;
        EXPECT_EQ(second.startup(), 0); // stays "starting up", owns nothing
        EXPECT_EQ(ObjectLifetimeManager::instance(), running);
        EXPECT_NE(ObjectLifetimeManager::getPreAllocatedObject(TOVU_PROPERTIES_SERVICE), nullptr);
    }
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 1);
    ObjectLifetimeManager::init(); // the process goes on with a new one
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 0);
}

TEST(Lifetime, LoggersAreRegisteredWithTheManager)
{
    ObjectLifetimeManager* manager = ObjectLifetimeManager::instance();
    Logger* logger = Logger::getInstance("tovuutil.Registered");
    EXPECT_EQ(manager->getLogger("tovuutil.Registered"), logger);
    EXPECT_EQ(manager->getLogger("tovuutil.Unknown"), nullptr);
}
