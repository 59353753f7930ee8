#include <gtest/gtest.h>

#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <tovuutil/tovuutil.h>

#include "HostPaths.h"
#include "framework/LogCapture.h"
#include "framework/TempDir.h"

namespace {

SharedLibService* service() { return static_cast<SharedLibService*>(UtilServiceFactory::getService(2)); }

std::string pluginDir() { return tovutest::hostPath(std::getenv("TOVU_TEST_PLUGIN_DIR")) + tovutest::kSep; }

#ifdef _WIN32
char const* const kLibSuffix = ".dll";
char const* const kForeignSuffix = ".so";
char const* const kMathLibrary = "msvcrt.dll";
#else
char const* const kLibSuffix = ".so";
char const* const kForeignSuffix = ".dll";
char const* const kMathLibrary = "libm.so.6";
#endif

} // namespace

TEST(SharedLib, NamesAreNormalisedToTheHostsLibraryFiles)
{
    SharedLibResourceManager manager;
#ifdef _WIN32
    EXPECT_EQ(manager.getFileName("x"), "libx.dll");
    EXPECT_EQ(manager.getFileName("x.dll"), "x.dll");
    EXPECT_EQ(manager.getFileName("x.dylib"), "libx.dll");
    EXPECT_EQ(manager.getFileName("libx.so"), "libx.dll");
    EXPECT_EQ(manager.getFileName("X.SO"), "libX.dll");
    EXPECT_EQ(manager.getFileName("X.DLL"), "X.dll");
    EXPECT_EQ(manager.getFileName("libm.so.6"), "libm.so.6");
    EXPECT_EQ(manager.getFileName("/opt/a/plug"), "\\opt\\a\\libplug.dll");
    EXPECT_EQ(manager.getFileName("dir/plug.dll"), "dir\\plug.dll");
#else
    EXPECT_EQ(manager.getFileName("x"), "libx.so");
    EXPECT_EQ(manager.getFileName("x.dll"), "libx.so");
    EXPECT_EQ(manager.getFileName("x.dylib"), "libx.so");
    EXPECT_EQ(manager.getFileName("libx.so"), "libx.so");
    EXPECT_EQ(manager.getFileName("X.SO"), "X.so");
    EXPECT_EQ(manager.getFileName("X.DLL"), "libX.so");
    EXPECT_EQ(manager.getFileName("libm.so.6"), "libm.so.6");
    EXPECT_EQ(manager.getFileName("/opt/a/plug"), "/opt/a/libplug.so");
    EXPECT_EQ(manager.getFileName("dir\\plug.dll"), "dir/libplug.so");
#endif
}

TEST(SharedLib, LoadsOnceUnderItsNormalisedNameAndFindsSymbols)
{
    std::string const expected = pluginDir() + "libtovu_test_plugin" + kLibSuffix;
    EXPECT_EQ(service()->loadSharedLib(pluginDir() + "tovu_test_plugin"), expected);
    EXPECT_EQ(service()->loadSharedLib(expected), expected);

    SharedLibResourceManager manager; // sees the service's cache
    EXPECT_EQ(manager.getResourceMap().size(), 1u);
    auto* library = static_cast<SharedLib*>(manager.findResource(expected));
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library->getError(), "Unknown Error");

    auto answer = reinterpret_cast<int (*)()>(service()->getSymbol(pluginDir() + "libtovu_test_plugin" + kForeignSuffix,
                                                                   "tovuTestPluginAnswer"));
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer(), 42);

    EXPECT_TRUE(service()->unloadSharedLib(expected));
    EXPECT_EQ(manager.getResourceMap().size(), 0u);
    EXPECT_FALSE(service()->unloadSharedLib(expected));
}

TEST(SharedLib, FailuresAreLoggedAndNotCached)
{
    tovutest::TempDir dir;
    log4cxx::Log4cxx::relocateLog("", "", dir.path() + tovutest::kSep);
    testing::internal::CaptureStdout();
    EXPECT_EQ(service()->loadSharedLib(tovutest::hostPath("/nowhere/missing")), "");
    EXPECT_EQ(service()->getSymbol(tovutest::hostPath("/nowhere/missing"), "f"), nullptr);
    EXPECT_EQ(service()->getSymbol(pluginDir() + "tovu_test_plugin", "noSuchSymbol"), nullptr);
    testing::internal::GetCapturedStdout();
    std::string const plugin = pluginDir() + "libtovu_test_plugin" + kLibSuffix;
    std::string const missing = tovutest::hostPath("/nowhere/libmissing") + kLibSuffix;
    EXPECT_EQ(tovutest::logMessages(dir.path()),
              (std::vector<std::string>{
                  "Shared Library '" + missing + "' konnte nicht geladen werden.",
                  "Ressource '" + missing + "' kann nicht geladen werden.",
                  "Shared Library '" + missing + "' konnte nicht geladen werden.",
                  "Ressource '" + missing + "' kann nicht geladen werden.",
                  "Symbol 'noSuchSymbol' konnte in Shared Library '" + plugin + "' nicht gefunden werden.",
              }));
    EXPECT_FALSE(service()->unloadSharedLib("never"));
}

TEST(SharedLib, ASingleLibraryObject)
{
    SharedLib library;
    EXPECT_EQ(library.getName(), "");
    EXPECT_FALSE(library.unload() && false);
    EXPECT_EQ(library.getSymbol("malloc"), nullptr); // not loaded: nothing found, not the process's symbols
    EXPECT_TRUE(library.load(kMathLibrary));
    EXPECT_TRUE(library.load()); // already loaded
    EXPECT_NE(library.getSymbol("cos"), nullptr);
    EXPECT_TRUE(library.unload());
    EXPECT_EQ(library.getSymbol("cos"), nullptr);
}

TEST(SharedLib, TheMathLibraryByEquivalentNames)
{
    // Only versioned names load the system's libraries: the plain "libm.so" is
    // a linker script, not a library.
    std::string const direct = service()->loadSharedLib(kMathLibrary);
    EXPECT_EQ(direct, kMathLibrary);
    EXPECT_EQ(service()->loadSharedLib(kMathLibrary), direct);
    auto cosine = reinterpret_cast<double (*)(double)>(service()->getSymbol(kMathLibrary, "cos"));
    ASSERT_NE(cosine, nullptr);
    EXPECT_EQ(cosine(0.0), 1.0);

    // A path to the same file is another name, cached on its own.
#ifdef _WIN32
    char file[MAX_PATH];
    ASSERT_NE(GetModuleFileNameA(GetModuleHandleA(kMathLibrary), file, MAX_PATH), 0u);
    std::string const path = file;
#else
    Dl_info info{};
    ASSERT_NE(dladdr(reinterpret_cast<void*>(cosine), &info), 0);
    std::string const path = info.dli_fname;
#endif
    EXPECT_EQ(service()->loadSharedLib(path), path);
    EXPECT_EQ(service()->getSymbol(path, "cos"), reinterpret_cast<void*>(cosine));
    SharedLibResourceManager manager;
    EXPECT_EQ(manager.getResourceMap().size(), 2u);
}
