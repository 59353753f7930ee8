#include <gtest/gtest.h>

#include <log4cpp/Category.hh>

#include <tovuutil/tovuutil.h>

#include "LogCapture.h"
#include "TempDir.h"

using log4cxx::Log4cxx;
using tovutest::CapturedLog;

TEST(Factory, HandsOutTheServicesOfTheLifetimeManager)
{
    Service* system = UtilServiceFactory::getService(0);
    ASSERT_NE(system, nullptr);
    EXPECT_EQ(system, UtilServiceFactory::getService(0));
    EXPECT_NE(dynamic_cast<SystemPropertiesService*>(system), nullptr);
    EXPECT_NE(dynamic_cast<PropertiesService*>(UtilServiceFactory::getService(1)), nullptr);
    EXPECT_NE(dynamic_cast<SharedLibService*>(UtilServiceFactory::getService(2)), nullptr);
    EXPECT_NE(dynamic_cast<GUIService*>(UtilServiceFactory::getService(3)), nullptr);
    for (int type = 0; type < 4; ++type)
        EXPECT_TRUE(UtilServiceFactory::getService(type)->isAvailable());

    auto* adapter = static_cast<ManagedObject<GUIServiceImpl>*>(
        ObjectLifetimeManager::getPreAllocatedObject(TOVU_GUI_SERVICE));
    EXPECT_EQ(static_cast<Service*>(adapter->get()), UtilServiceFactory::getService(3));
}

TEST(Factory, NamesTheServiceItHandsOutExceptTheSystemProperties)
{
    UtilServiceFactory::getService(0); // creates the factory's logger
    log4cpp::Category::getInstance("tovuutil.UtilServiceFactory").setPriority(700);
    CapturedLog captured("tovuutil.UtilServiceFactory");
    for (int type = 0; type < 4; ++type)
        UtilServiceFactory::getService(type);
    UtilServiceFactory::getService(0);
    EXPECT_EQ(captured.lines(), (std::vector<std::string>{"Erzeuge Service: PropertiesServiceImpl",
                                                          "Erzeuge Service: SharedLibServiceImpl",
                                                          "Erzeuge Service: GUIServiceImpl"}));
}

TEST(Factory, UnknownTypesGiveNullAndAnErrorLineInTheLogFile)
{
    tovutest::TempDir dir;
    Log4cxx::relocateLog("", "", dir.path() + tovutest::kSep);
    testing::internal::CaptureStdout();
    EXPECT_EQ(UtilServiceFactory::getService(4), nullptr);
    EXPECT_EQ(UtilServiceFactory::getService(-1), nullptr);
    EXPECT_EQ(UtilServiceFactory::getService(0), UtilServiceFactory::getService(0));
    std::string const text = "Unbekanntes Service. Kann Service von diesem Typ nicht erzeugen: ";
    EXPECT_EQ(testing::internal::GetCapturedStdout(), text + "4\n" + text + "-1\n");
    EXPECT_EQ(tovutest::logMessages(dir.path()), (std::vector<std::string>{text + "4", text + "-1"}));
}
