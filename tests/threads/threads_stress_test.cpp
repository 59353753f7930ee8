// Eight threads mixing calls over every process-wide registry and cache for
// a bounded time. Run in the ThreadSanitizer variant too, where any data race
// fails the run; here the results themselves are checked: one logger per
// name, no torn value, every registered object found.
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <tovuutil/tovuutil.h>

#include "threads/ScratchDir.h"

namespace {

constexpr int kThreads = 8;
constexpr int kLoggerNames = 40;
constexpr std::size_t kValueLength = 48;
constexpr auto kRunTime = std::chrono::milliseconds(1500);
constexpr int kMaxRounds = 20000;

PropertiesService* properties() { return static_cast<PropertiesService*>(UtilServiceFactory::getService(1)); }
SharedLibService* libraries() { return static_cast<SharedLibService*>(UtilServiceFactory::getService(2)); }
GUIService* gui() { return static_cast<GUIService*>(UtilServiceFactory::getService(3)); }

std::atomic<int> messageBoxCalls{0};
int TOVU_CALLBACK countingMessageBox(char const*, char const*, int) { return ++messageBoxCalls; }

// A value is whole when it is the initial one or kValueLength copies of one letter.
bool whole(std::string const& value)
{
    if (value == "init")
        return true;
    return value.size() == kValueLength && value.find_first_not_of(value[0]) == std::string::npos;
}

class Tracked : public ManagedTovuObject {
};

struct Shared {
    std::array<std::atomic<Logger*>, kLoggerNames> loggers{};
    std::atomic<int> failures{0};
    std::vector<std::string> files; // 0 is saved, never unloaded; the others the reverse
    std::string logHomes[2];
    void fail() { ++failures; }
};

void work(Shared& shared, int id)
{
    auto const end = std::chrono::steady_clock::now() + kRunTime;
    std::string const mine(kValueLength, static_cast<char>('a' + id));
    std::string const sysKey = "STRESS.k" + std::to_string(id);
    for (int round = 0; round < kMaxRounds && std::chrono::steady_clock::now() < end; ++round) {
        // Loggers: one object per name, whichever thread made it.
        int const slot = (round * 7 + id) % kLoggerNames;
        Logger* logger = Logger::getInstance("tovuutil.Stress" + std::to_string(slot));
        Logger* expected = nullptr;
        if (!shared.loggers[slot].compare_exchange_strong(expected, logger) && expected != logger)
            shared.fail();
        logger->debug("disabled");

        // Properties: atomic reads and writes, loads and unloads racing users.
        std::string const& file = shared.files[static_cast<std::size_t>(round + id) % shared.files.size()];
        if (!whole(properties()->getProperty(file, "S.k")))
            shared.fail();
        if (round % 3 == 0)
            properties()->setProperty(file, "S.k", mine);
        if (round % 11 == 0 && file != shared.files[0])
            properties()->unloadProperties(file);
        if (round % 97 == 0 && file == shared.files[0])
            properties()->saveProperties(file);
        if (round % 29 == 0)
            for (auto const& pair : properties()->getAllProperties(file, false))
                // Read back by the bare key, as hosts expect: "" or a whole value.
                if (pair.first == "k" && !pair.second.empty() && !whole(pair.second))
                    shared.fail();

        // System properties: a thread's own key reads back, the INI home stays.
        setSystemProperty(sysKey, mine);
        if (getSystemProperty(sysKey) != mine)
            shared.fail();
        std::string other;
        if (getSystemProperty("STRESS.k" + std::to_string((id + 1) % kThreads), other) && !whole(other))
            shared.fail();
        if (getSystemPropertyIniHome().empty())
            shared.fail();

        // Client objects.
        if (round % 5 == 0) {
            std::string const name = "stress." + std::to_string(id) + "." + std::to_string(round);
            auto* object = new Tracked;
            ObjectLifetimeManager::instance()->addObject(name, object);
            if (ObjectLifetimeManager::instance()->getObject(name) != object)
                shared.fail();
        }

        // Host callbacks, registered and called from many threads.
        if (round % 41 == 0) {
            gui()->registerMessageBox(&countingMessageBox);
            gui()->messageBox(std::string("t"), std::string("c"), 0);
            if (id == 0)
                gui()->unregisterMessageBox();
        }

#ifndef _WIN32
        if (round % 17 == 0) {
            if (libraries()->getSymbol("libm.so.6", "cos") == nullptr)
                shared.fail();
            if (round % 51 == 0)
                libraries()->unloadSharedLib("libm.so.6");
        }
#endif
        if (UtilServiceFactory::getService(0) == nullptr)
            shared.fail();

        // The log moves now and then while everybody logs.
        if (id == 0 && round % 400 == 0)
            if (setSystemPropertyLogHome(shared.logHomes[(round / 400) % 2]) != 0)
                shared.fail();
        if (round % 200 == 0)
            logger->tovuLog("stress", static_cast<short>(id), "round", round);
    }
}

TEST(ThreadsStress, MixedCallsOnEveryRegistryFromEightThreads)
{
    tovutest::ScratchDir home("stress_ini");
    tovutest::ScratchDir logA("stress_logA");
    tovutest::ScratchDir logB("stress_logB");
    std::string const startLogHome = getSystemPropertyLogHome();
    std::string const startIniHome = getSystemPropertyIniHome();
    ASSERT_EQ(0, setSystemPropertyIniHome(home.path()));

    Shared shared;
    shared.logHomes[0] = logA.path();
    shared.logHomes[1] = logB.path();
    for (char const* name : {"one.ini", "two.ini", "three.ini"}) {
        tovutest::writeText(home.file(name), "[S]\r\nk=init\r\n");
        shared.files.push_back(name);
    }

    std::vector<std::thread> threads;
    for (int id = 0; id < kThreads; ++id)
        threads.emplace_back(work, std::ref(shared), id);
    for (auto& thread : threads)
        thread.join();

    EXPECT_EQ(shared.failures.load(), 0);
    EXPECT_GT(messageBoxCalls.load(), 0);
    // Everything still answers on one thread afterwards.
    EXPECT_TRUE(whole(properties()->getProperty("one.ini", "S.k")));
    EXPECT_EQ(getSystemPropertyIniHome(), home.path());
    EXPECT_EQ(0, setSystemPropertyLogHome(startLogHome));
    EXPECT_EQ(0, setSystemPropertyIniHome(startIniHome));
}

} // namespace
