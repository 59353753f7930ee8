#include <gtest/gtest.h>

#include <cstdio>
#include <stdexcept>

#include <tovuutil/tovuutil.h>

#include "framework/LogCapture.h"
#include "framework/TempDir.h"

namespace {

struct Calls {
    int count = 0;
    std::string first, second, all;
    int type = 0;
};
Calls calls;

int TOVU_CALLBACK recordMessage(char const* first, char const* second, int type)
{
    ++calls.count;
    calls.first = first;
    calls.second = second;
    calls.type = type;
    return 7;
}
int TOVU_CALLBACK otherMessage(char const*, char const*, int) { return 8; }
int TOVU_CALLBACK throwingMessage(char const*, char const*, int) { throw std::runtime_error("host"); }

int TOVU_CALLBACK recordProgress(char const* a, char const* b, char const* c, char const* d, char const* e,
                                 char const* f, char const* g, char const* h, char const* i, char const* j, short m,
                                 short n)
{
    ++calls.count;
    for (char const* t : {a, b, c, d, e, f, g, h, i, j})
        calls.all += std::string(t) + "|";
    calls.all += std::to_string(m) + "|" + std::to_string(n);
    return 3;
}
int TOVU_CALLBACK closeProgress() { return ++calls.count; }

GUIService* gui() { return static_cast<GUIService*>(UtilServiceFactory::getService(3)); }

} // namespace

TEST(HostDialogs, WithoutCallbacksNothingHappens)
{
    EXPECT_EQ(messageBox("text", "caption", 1), 0);
    EXPECT_EQ(initDialog("1", "2", "3", "4", "5", "6", "7", "8", "9", "10", 1, 2), 0);
    EXPECT_EQ(updateDialog("1", "2", "3", "4", "5", "6", "7", "8", "9", "10", 1, 2), 0);
    EXPECT_EQ(closeDialog(), 0);
    EXPECT_TRUE(isDialogEnabled());
}

TEST(HostDialogs, MessageBoxCallsTheHostAndLogsCaptionFirst)
{
    gui()->registerMessageBox(otherMessage);
    gui()->registerMessageBox(recordMessage); // replaces the first
    testing::internal::CaptureStdout();
    EXPECT_EQ(messageBox("Datei fehlt", "Fehler", 16), 7);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[Fehler]: Datei fehlt\n");
    EXPECT_EQ(calls.count, 1);
    EXPECT_EQ(calls.first, "Datei fehlt");
    EXPECT_EQ(calls.second, "Fehler");
    EXPECT_EQ(calls.type, 16);

    // Null texts reach the host as empty strings.
    testing::internal::CaptureStdout();
    EXPECT_EQ(gui()->messageBox(static_cast<char const*>(nullptr), nullptr, 2), 7);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[]: \n");
    EXPECT_EQ(calls.first, "");
    EXPECT_EQ(calls.second, "");

    gui()->unregisterMessageBox();
    testing::internal::CaptureStdout();
    EXPECT_EQ(messageBox("a", "b", 0), 0);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(calls.count, 2);
}

TEST(HostDialogs, AThrowingCallbackGivesZeroAndAnErrorLine)
{
    tovutest::TempDir dir;
    log4cxx::Log4cxx::relocateLog("", "", dir.path() + tovutest::kSep);
    gui()->registerMessageBox(throwingMessage);
    testing::internal::CaptureStdout();
    EXPECT_EQ(messageBox("m", "c", 0), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "[c]: m\nFehler beim Aufruf von messageBox()!\n");
    EXPECT_EQ(tovutest::logMessages(dir.path()), (std::vector<std::string>{"Fehler beim Aufruf von messageBox()!"}));
}

TEST(HostDialogs, ProgressArgumentsPassThroughInOrder)
{
    gui()->registerInitProgressDialog(recordProgress);
    gui()->registerUpdateProgressDialog(recordProgress);
    gui()->registerCloseProgressDialog(closeProgress);
    EXPECT_EQ(initDialog("a", "b", "c", "d", "e", "f", "g", "h", "i", "j", 1, -2), 3);
    EXPECT_EQ(calls.all, "a|b|c|d|e|f|g|h|i|j|1|-2");
    calls.all.clear();
    EXPECT_EQ(updateDialog("k", "l", "m", "n", "o", "p", "q", "r", "s", "t", 50, 100), 3);
    EXPECT_EQ(calls.all, "k|l|m|n|o|p|q|r|s|t|50|100");
    EXPECT_EQ(closeDialog(), 3);

    gui()->unregisterInitProgressDialog();
    gui()->unregisterUpdateProgressDialog();
    gui()->unregisterCloseProgressDialog();
    EXPECT_EQ(initDialog("a", "b", "c", "d", "e", "f", "g", "h", "i", "j", 1, 2), 0);
    EXPECT_EQ(closeDialog(), 0);
    EXPECT_EQ(calls.count, 3);
}

TEST(HostDialogs, MarkersNameTheOperations)
{
    log4cpp::Category::getInstance("tovuutil.GUIServiceImpl").setPriority(700);
    tovutest::CapturedLog captured("tovuutil.GUIServiceImpl");
    gui()->registerMessageBox(recordMessage);
    testing::internal::CaptureStdout();
    messageBox("t", "c", 4);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(captured.lines(), (std::vector<std::string>{
                                    "Begin Method: tovuutil.GUIServiceImpl::registerMessageBox",
                                    "End Method  : tovuutil.GUIServiceImpl::registerMessageBox",
                                    "Begin Method: tovuutil.GUIServiceImpl::messageBox(t, c, 4)",
                                    "[c]: t",
                                    "End Method  : tovuutil.GUIServiceImpl::messageBox(t, c, 4)",
                                }));
}

TEST(HostDialogs, TheTestSwitchInTdfDiiTurnsDialogsOff)
{
    tovutest::TempDir home;
    auto* system = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0));
    ASSERT_EQ(system->setIniHome(home.path()), 0);
    std::FILE* file = std::fopen((home.path() + tovutest::kSep + "tdf.dii").c_str(), "wb");
    ASSERT_NE(file, nullptr);
    std::fputs("[TEST]\r\nNO_DIALOG=TRUE\r\n", file);
    std::fclose(file);

    gui()->registerMessageBox(recordMessage);
    gui()->registerCloseProgressDialog(closeProgress);
    testing::internal::CaptureStdout();
    EXPECT_FALSE(isDialogEnabled());
    EXPECT_EQ(messageBox("m", "c", 0), 0);
    EXPECT_EQ(closeDialog(), 0);
    EXPECT_EQ(calls.count, 0);

    // Only the exact upper-case value counts; the file is asked on every call.
    auto* properties = static_cast<PropertiesService*>(UtilServiceFactory::getService(1));
    for (char const* value : {"true", "TRUE ", ""}) {
        properties->setProperty("tdf.dii", "TEST.NO_DIALOG", value);
        EXPECT_TRUE(isDialogEnabled()) << '"' << value << '"';
    }
    EXPECT_EQ(messageBox("m", "c", 0), 7);
    EXPECT_EQ(calls.count, 1);
    testing::internal::GetCapturedStdout();
}
