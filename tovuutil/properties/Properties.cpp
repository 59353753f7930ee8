#include "tovuutil/properties/Properties.h"

#include <exception>

#include "tovuutil/files/FileOperation.h"
#include "tovuutil/framework/Logger.h"
#include "tovuutil/framework/detail/MethodMarker.h"
#include "tovuutil/text/StringUtil.h"

namespace {

constexpr char kUndefined[] = "_##undefined##_";
constexpr char kNotFound[] = "Folgende Datei kann nicht gefunden werden: ";

std::string quoted(std::string const& text) { return "\"" + text + "\""; }
std::string argument(std::string const& text) { return quoted(text); }
std::string argument(PropertyFileEnum type) { return std::to_string(type); }

// The marker "<method>(<arguments>)", texts quoted and separated by ", ";
// built only when DEBUG is on.
template <class... Args>
tovu::detail::MethodMarker marked(Logger* logger, char const* method, Args const&... args)
{
    return tovu::detail::MethodMarker(logger, [&] {
        std::string text = std::string(method) + "(";
        std::string separator;
        ((text += separator + argument(args), separator = ", "), ...);
        return text + ")";
    });
}

} // namespace

Properties::Properties() : logger(Logger::getInstance("tovuutil.Properties")) { init(); }

Properties::Properties(std::string const& name) : logger(Logger::getInstance("tovuutil.Properties"))
{
    init();
    loadProperties(name);
}

Properties::Properties(std::string const& name, PropertyFileEnum type)
    : logger(Logger::getInstance("tovuutil.Properties"))
{
    init();
    loadProperties(name, type);
}

Properties::Properties(Properties const& other) = default;

Properties& Properties::operator=(Properties const& other) = default;

Properties::~Properties() = default;

void Properties::init()
{
    dirty = false;
    type = PF_UNKNOWN;
    ini.clear();
}

std::string Properties::getName() { return name; }
void Properties::setName(std::string const& name) { this->name = name; }
PropertyFileEnum Properties::getType() const { return type; }
void Properties::setType(PropertyFileEnum type) { this->type = type; }
bool Properties::isDirty() const { return dirty; }
void Properties::setDirty(bool dirty) { this->dirty = dirty; }

bool Properties::loadProperties(std::string const& name)
{
    auto const marker = marked(logger, "loadProperties", name);
    type = PF_UNKNOWN;
    std::string const extension = tolower(right(name, "."));
    PropertyFileEnum chosen = PF_INI;
    if (extension == "properties")
        chosen = PF_PROPERTIES;
    else if (extension == "xml")
        chosen = PF_XML;
    if (logger->isDebugEnabled())
        logger->debug("Type of file is set to:" + std::to_string(chosen));
    return loadProperties(name, chosen);
}

bool Properties::loadProperties(std::string const& name, PropertyFileEnum type)
{
    auto const marker = marked(logger, "loadProperties", name, type);
    try {
        if (type < PF_NONE || type > PF_PROPERTIES) {
            this->type = PF_UNKNOWN;
            logger->error("Fehler beim Laden. Unbekannter Dateityp!");
            return false;
        }
        this->type = type;
        this->name = name;
        if (type == PF_NONE)
            return true;
        if (!fileExists(name)) {
            logger->error(kNotFound + name);
            return false;
        }
        switch (type) {
        case PF_INI:
            if (logger->isDebugEnabled())
                logger->debug("Lese INI Properties Datei: " + name);
            ini.Log::Open(name.c_str(), true, true, true);
            ini.Load();
            return true;
        case PF_PROPERTIES:
            if (logger->isDebugEnabled())
                logger->debug("Lese Properties Datei: " + name);
            return readPropertiesFile(name);
        default: // PF_XML: recognised, not parsed
            if (logger->isDebugEnabled())
                logger->debug("Lese XML Properties Datei: " + name);
            return true;
        }
    } catch (std::exception const& e) {
        logger->error("loadProperties: " + quoted(name) + " :" + e.what());
        return false;
    }
}

bool Properties::writeProperties() { return writeProperties(name, getType()); }

bool Properties::writeProperties(std::string const& name) { return writeProperties(name, getType()); }

bool Properties::writeProperties(std::string const& name, PropertyFileEnum type)
{
    auto const marker = marked(logger, "writeProperties", name, type);
    try {
        if (type != PF_INI && type != PF_XML) {
            logger->error("Fehler beim Schreiben der Properties Datei: " + name);
            return false;
        }
        this->type = type;
        if (type == PF_INI) {
            if (logger->isDebugEnabled())
                logger->debug("write INI file");
            ini.Save(); // to the file it was opened from; its result is not used
        } else if (logger->isDebugEnabled()) {
            logger->debug("write XML file");
        }
        dirty = false;
        return true;
    } catch (std::exception const& e) {
        logger->error("writeProperties: " + quoted(name) + e.what());
        return false;
    }
}

bool Properties::readPropertiesFile(std::string const& name)
{
    auto const marker = marked(logger, "readPropertiesFile", name);
    std::list<std::string> lines;
    bool const read = readStringFromFile(name, lines);
    for (std::string const& line : lines) {
        std::string const key = trim(left(line, "="), " \t\r\n");
        if (!key.empty() && key[0] == '#')
            continue;
        setProperty(key, trim(right(line, "="), " \t\r\n"));
    }
    return read;
}

bool Properties::writePropertiesFile()
{
    auto const marker = marked(logger, "writePropertiesFile");
    bool result = false;
    for (std::string const& section : ini.getSectionNames())
        for (std::string const& key : ini.getKeysOfSection(section))
            result = writeString2File(name, key + "=" + getProperty(key) + "\r\n");
    return result;
}

std::string Properties::getProperty(std::string const& key)
{
    auto const marker = marked(logger, "getProperty", key);
    return ini.get(key);
}

void Properties::setProperty(std::string const& key, std::string const& value)
{
    auto const marker = marked(logger, "setProperty", key, value);
    try {
        ini.put(key, value);
        dirty = true;
    } catch (std::exception const& e) {
        logger->error(std::string(e.what()) + ": set property " + key + " = " + quoted(value));
    } catch (...) {
        logger->error("Unbekannter Fehler aufgetreten.");
    }
}

bool Properties::removeProperty(std::string const& key)
{
    auto const marker = marked(logger, "removeProperty", key);
    if (!isAvailable(key))
        return false;
    std::string rest = key;
    std::string const section = extractLeftToken(rest, '.');
    ini.RemoveKey(section.c_str(), rest.c_str());
    dirty = true;
    return true;
}

bool Properties::isAvailable(std::string const& key)
{
    auto const marker = marked(logger, "isAvailable", key);
    return ini.get(key, kUndefined) != kUndefined;
}

std::list<std::string> Properties::getKeysOfSection(std::string const& section)
{
    auto const marker = marked(logger, "getKeysOfSection", section);
    return ini.getKeysOfSection(section);
}

std::list<std::string> Properties::getSectionNames()
{
    auto const marker = marked(logger, "getSectionNames");
    return ini.getSectionNames();
}

void Properties::log()
{
    if (!logger->isDebugEnabled())
        return;
    logger->debug("------ Properties --- (" + getName() + ")-----");
    for (std::string const& section : ini.getSectionNames()) {
        logger->debug("[" + section + "]");
        for (std::string const& key : ini.getKeysOfSection(section))
            logger->debug(key + " = " + getProperty(key));
    }
    logger->debug("-----------------------------------------");
}
