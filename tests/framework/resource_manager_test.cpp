#include <gtest/gtest.h>

#include <log4cpp/Category.hh>

#include <tovuutil/tovuutil.h>

#include "LogCapture.h"

namespace {

class Named : public Resource {
public:
    explicit Named(std::string name) : name_(std::move(name)) { ++alive; }
    ~Named() override { --alive; }
    std::string getName() override { return name_; }
    static int alive;

private:
    std::string name_;
};
int Named::alive = 0;

// Keys are the lower-cased names; "bad" cannot be loaded.
class CountingManager : public ResourceManager {
public:
    Resource* load(std::string const& key) override
    {
        loads.push_back(key);
        return key == "bad" ? nullptr : new Named(key);
    }
    bool unload(std::string const& key) override
    {
        unloads.push_back(key);
        return true;
    }
    std::string getFileName(std::string const& name) override
    {
        ++canonicalisations;
        return tolower(name);
    }
    ResourceMap& getResourceMap() override
    {
        static ResourceMap* map = new ResourceMap;
        return *map;
    }
    std::vector<std::string> loads, unloads;
    int canonicalisations = 0;
};

} // namespace

TEST(ResourceManager, LoadsOncePerCanonicalKeyAndSharesTheCache)
{
    CountingManager manager;
    Resource* a = manager.getResource("Alpha");
    EXPECT_EQ(manager.getResource("ALPHA"), a);
    EXPECT_EQ(manager.loads, std::vector<std::string>{"alpha"});
    CountingManager other; // one map per manager class
    EXPECT_TRUE(other.find("alpha"));
    EXPECT_EQ(other.getResource("alpha"), a);
    EXPECT_TRUE(other.loads.empty());

    // findResource looks under the name as passed: the asymmetry is deliberate.
    EXPECT_EQ(manager.findResource("Alpha"), nullptr);
    EXPECT_EQ(manager.findResource("alpha"), a);
}

TEST(ResourceManager, FailedLoadsAndEmptyNames)
{
    CountingManager manager;
    testing::internal::CaptureStdout();
    EXPECT_EQ(manager.getResource("bad"), nullptr);
    EXPECT_EQ(manager.getResource("bad"), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Ressource 'bad' kann nicht geladen werden.\nRessource 'bad' kann nicht geladen werden.\n");
    EXPECT_EQ(manager.loads, (std::vector<std::string>{"bad", "bad"}));
    EXPECT_TRUE(manager.getResourceMap().empty());

    EXPECT_EQ(manager.getResource(""), nullptr);
    EXPECT_FALSE(manager.removeResource(""));
    EXPECT_EQ(manager.canonicalisations, 2);
}

TEST(ResourceManager, RemoveUnloadsDestroysAndForgets)
{
    CountingManager manager;
    manager.getResource("x");
    EXPECT_EQ(Named::alive, 1);
    EXPECT_TRUE(manager.removeResource("X"));
    EXPECT_EQ(manager.unloads, std::vector<std::string>{"x"});
    EXPECT_EQ(Named::alive, 0);
    EXPECT_FALSE(manager.removeResource("x"));
    EXPECT_EQ(manager.unloads.size(), 1u);
    manager.getResource("x");
    EXPECT_EQ(manager.loads, (std::vector<std::string>{"x", "x"}));
}

TEST(ResourceManager, DebugLinesAndTheDump)
{
    log4cpp::Category::getInstance("tovuutil.ResourceManager").setPriority(700);
    CountingManager manager;
    tovutest::CapturedLog captured("tovuutil.ResourceManager");
    manager.logResources();
    manager.getResource("k");
    manager.removeResource("none");
    std::vector<std::string> lines = captured.lines();
    ASSERT_GE(lines.size(), 9u);
    EXPECT_EQ(lines[0], "------ Resource Manager --- (0 Elements)-----");
    EXPECT_EQ(lines[1], "-----------------------------------------");
    EXPECT_EQ(lines[2], "Begin Method: tovuutil.ResourceManager::getResource(k)");
    EXPECT_EQ(lines[3], "Begin Method: tovuutil.ResourceManager::find(k)");
    EXPECT_EQ(lines[4], "Ressource 'k' im ResourceManager nicht gefunden.");
    EXPECT_EQ(lines[5], "End Method  : tovuutil.ResourceManager::find(k)");
    EXPECT_EQ(lines[6], "------ Resource Manager --- (1 Elements)-----");
    EXPECT_EQ(lines[7].substr(0, 7), "1: k  #");
    EXPECT_EQ(lines[8], "-----------------------------------------");
    EXPECT_EQ(lines[9], "End Method  : tovuutil.ResourceManager::getResource(k)");
    EXPECT_EQ(lines.back(), "End Method  : tovuutil.ResourceManager::removeResource(none)");
    EXPECT_NE(std::find(lines.begin(), lines.end(), "success=false"), lines.end());
}
