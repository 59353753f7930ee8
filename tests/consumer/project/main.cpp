// A host of the library, built against the installed package through the
// umbrella header only: it reads and saves a setting, shows the library's
// messages in its own way, and calls into a shared library.
#include <tovuutil/tovuutil.h>

#include <cstdio>

namespace {

int TOVU_CALLBACK showMessage(char const* text, char const* caption, int /*type*/)
{
    std::printf("host dialog: %s - %s\n", caption, text);
    return 1;
}

} // namespace

int main()
{
    // The library started when it was loaded; its services come from the factory.
    auto* system = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0));
    auto* properties = static_cast<PropertiesService*>(UtilServiceFactory::getService(1));
    auto* libraries = static_cast<SharedLibService*>(UtilServiceFactory::getService(2));
    auto* gui = static_cast<GUIService*>(UtilServiceFactory::getService(3));
    if (system == nullptr || properties == nullptr || libraries == nullptr || gui == nullptr)
        return 1;
    std::printf("tovuutil %s, INI files in %s\n", TOVUUTIL_VERSION, system->getIniHome().c_str());

    // A bare name is looked for in the INI home; the file is cached by name.
    std::string const app = properties->loadProperties("app.ini");
    properties->setProperty(app, "SERVER.PORT", "8080");
    if (!properties->saveProperties(app))
        return 2;

    gui->registerMessageBox(showMessage);
    if (messageBox("Port " + properties->getProperty(app, "SERVER.PORT"), "Info", 0) != 1)
        return 3;
    gui->unregisterMessageBox();

#ifdef _WIN32
    char const* const mathLibrary = "msvcrt.dll";
#else
    char const* const mathLibrary = "libm.so.6";
#endif
    auto cosine = reinterpret_cast<double (*)(double)>(libraries->getSymbol(mathLibrary, "cos"));
    if (cosine == nullptr || cosine(0.0) != 1.0)
        return 4;

    // Form fields are checked the German way.
    return isFormatP("12,50") && !isFormatP("12.50") ? 0 : 5;
}
