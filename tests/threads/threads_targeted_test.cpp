// The cases the locking exists for, one at a time: a file unloaded while
// another thread reads it, a host callback that calls back into the library,
// and what calls see while the lifetime manager shuts down.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <tovuutil/tovuutil.h>

#include "threads/ScratchDir.h"
#include "tovuutil/framework/detail/CachedResource.h"

namespace {

PropertiesService* properties() { return static_cast<PropertiesService*>(UtilServiceFactory::getService(1)); }
GUIService* gui() { return static_cast<GUIService*>(UtilServiceFactory::getService(3)); }

class ThreadsTargeted : public ::testing::Test {
protected:
    void SetUp() override
    {
        startIniHome_ = getSystemPropertyIniHome();
        ASSERT_EQ(0, setSystemPropertyIniHome(home_.path()));
        tovutest::writeText(home_.file("shared.ini"), "[S]\r\nk=disk\r\n");
    }
    void TearDown() override { setSystemPropertyIniHome(startIniHome_); }
    tovutest::ScratchDir home_{"targeted_ini"};
    std::string startIniHome_;
};

TEST_F(ThreadsTargeted, ObjectTakenFromTheCacheOutlivesItsRemoval)
{
    PropertiesFileResourceManager manager;
    auto share = manager.acquireResource("shared.ini");
    ASSERT_NE(share, nullptr);
    auto* held = static_cast<Properties*>(share->object.get());
    EXPECT_TRUE(manager.removeResource("shared.ini"));
    EXPECT_TRUE(manager.getResourceMap().empty());
    // Still ours to use (the sanitizer builds catch a use after free here).
    EXPECT_EQ(held->getProperty("S.k"), "disk");
    held->setProperty("S.k", "memory");
    EXPECT_EQ(held->getProperty("S.k"), "memory");
    // A new load is a new object with the file's content.
    EXPECT_EQ(properties()->getProperty("shared.ini", "S.k"), "disk");
}

TEST_F(ThreadsTargeted, UnloadWhileAnotherThreadReadsAndWrites)
{
    std::atomic<bool> stop{false};
    std::atomic<int> wrong{0};
    std::thread reader([&] {
        while (!stop) {
            std::string const value = properties()->getProperty("shared.ini", "S.k");
            if (value != "disk" && value != "memory")
                ++wrong;
            properties()->setProperty("shared.ini", "S.k", "memory");
        }
    });
    for (int i = 0; i < 300; ++i)
        properties()->unloadProperties("shared.ini");
    stop = true;
    reader.join();
    EXPECT_EQ(wrong.load(), 0);
    // Unloading dropped the unsaved change: the file on disk is untouched.
    EXPECT_EQ(tovutest::readText(home_.file("shared.ini")), "[S]\r\nk=disk\r\n");
}

// The callback runs with no lock of the library held: it reads and writes
// properties, asks for services, re-registers and calls the GUI service
// again (a nested callback).
std::atomic<int> nestedCalls{0};
int TOVU_CALLBACK nestedClose() { return ++nestedCalls; }

int TOVU_CALLBACK reenteringMessageBox(char const* text, char const*, int type)
{
    properties()->setProperty("shared.ini", "S.from", text);
    setSystemProperty("CALLBACK.seen", text);
    gui()->registerCloseProgressDialog(&nestedClose);
    int const nested = gui()->closeProgressDialog();
    Logger::getInstance("tovuutil.Callback" + std::to_string(type))->debug("inside");
    return nested > 0 ? type : -1;
}

TEST_F(ThreadsTargeted, CallbackCallsBackIntoTheLibraryFromSeveralThreads)
{
    gui()->registerMessageBox(&reenteringMessageBox);
    EXPECT_EQ(gui()->messageBox(std::string("one"), std::string("caption"), 7), 7);
    EXPECT_EQ(properties()->getProperty("shared.ini", "S.from"), "one");
    EXPECT_EQ(getSystemProperty("CALLBACK.seen"), "one");

    std::vector<std::thread> threads;
    std::atomic<int> wrong{0};
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < 50; ++i)
                if (gui()->messageBox(std::string("many"), std::string("caption"), t) != t)
                    ++wrong;
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(wrong.load(), 0);
    EXPECT_EQ(nestedCalls.load(), 1 + 4 * 50);
    gui()->unregisterMessageBox();
    gui()->unregisterCloseProgressDialog();
    EXPECT_EQ(gui()->messageBox(std::string("none"), std::string("caption"), 1), 0);
}

// What a client object's destructor sees when shutdown deletes it: it is no
// longer found under its name, the services are still there; after shutdown
// the first call starts a fresh manager with fresh services.
struct Seen {
    bool found = true;
    bool service = false;
};

class Observer : public ManagedTovuObject {
public:
    explicit Observer(Seen& seen) : seen_(seen) {}
    ~Observer() override
    {
        seen_.found = ObjectLifetimeManager::instance()->getObject("observer") != nullptr;
        seen_.service = UtilServiceFactory::getService(1) != nullptr;
    }

private:
    Seen& seen_;
};

TEST(ThreadsShutdown, CallsDuringAndAfterShutdownGetDefinedAnswers)
{
    Seen seen;
    ObjectLifetimeManager::instance()->addObject("observer", new Observer(seen));
    Service* before = UtilServiceFactory::getService(1);
    ObjectLifetimeManager::fini();
    EXPECT_FALSE(seen.found);
    EXPECT_TRUE(seen.service);
    EXPECT_EQ(ObjectLifetimeManager::getPreAllocatedObject(TOVU_PROPERTIES_SERVICE), nullptr);
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 1);

    // Racing first calls after shutdown agree on one fresh manager.
    std::vector<std::thread> threads;
    std::vector<Service*> services(4, nullptr);
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] { services[static_cast<std::size_t>(t)] = UtilServiceFactory::getService(1); });
    for (auto& thread : threads)
        thread.join();
    for (Service* service : services) {
        EXPECT_NE(service, nullptr);
        EXPECT_EQ(service, services[0]);
    }
    EXPECT_EQ(ObjectLifetimeManager::shutting_down(), 0);
    (void)before;
}

} // namespace
