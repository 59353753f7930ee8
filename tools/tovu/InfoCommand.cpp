#include <tovuutil/tovuutil.h>

#include <cstdio>
#include <utility>

#include "CommandLine.h"
#include "Commands.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu info [--json]\n\n"
    "Prints the library's versions, its services, every system property and the\n"
    "facts about this machine, as a table or (--json) as one JSON object of\n"
    "sections.\n";

using Section = std::pair<std::string, std::vector<std::pair<std::string, std::string>>>;

char const* const kServiceNames[] = {"SystemPropertiesService", "PropertiesService", "SharedLibService",
                                     "GUIService"};

Section library()
{
    char product[32] = {0};
    char file[32] = {0};
    getTovuSharedLibProductversion(product);
    getTovuSharedLibFileversion(file);
    return {"library",
            {{"version", TOVUUTIL_VERSION},
             {"product version", product},
             {"file version", file},
             {"log directory", log4cxx::Log4cxx::getLogDirectory()}}};
}

Section services()
{
    Section section{"services", {}};
    for (int type = 0; type < 4; ++type) {
        Service* service = UtilServiceFactory::getService(type);
        bool const available = service != nullptr && service->isAvailable();
        section.second.emplace_back(std::to_string(type), std::string(kServiceNames[type]) + (available ? "" : " (missing)"));
    }
    return section;
}

Section systemProperties()
{
    Section section{"system properties", {}};
    if (auto* service = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0)))
        section.second = service->getAllSystemProperties();
    return section;
}

Section machine()
{
    TovuSystemInformation info;
    return {"machine",
            {{"operating system", info.getOsName()},
             {"edition", info.getOsZusatz()},
             {"patch level", info.getPatchLevel()},
             {"version", info.getOsVersion()},
             {"kernel version", info.getKernelVersion()},
             {"build", info.getBuildNumber()},
             {"system type", info.getOsTypeAsString()},
             {"architecture", info.getArchitecture()},
             {"processors", std::to_string(info.getNumProcessors())},
             {"total memory", std::to_string(info.getTotalMemory())},
             {"free memory", std::to_string(info.getFreeMemory())},
             {"total swap", std::to_string(info.getTotalSwap())},
             {"free swap", std::to_string(info.getFreeSwap())},
             {"computer name", getLocalComputerName()},
             {"ip address", getLocalIPAddress()},
             {"mac address", getMacAddress()}}};
}

void printTable(std::vector<Section> const& sections)
{
    for (auto const& section : sections) {
        std::size_t width = 0;
        for (auto const& entry : section.second)
            width = std::max(width, entry.first.size());
        out() << '[' << section.first << "]\n";
        for (auto const& entry : section.second)
            out() << "  " << toTerminal(entry.first) << std::string(width - entry.first.size(), ' ') << "  "
                  << toTerminal(entry.second) << '\n';
    }
}

std::string jsonString(std::string const& text)
{
    std::string result = "\"";
    for (char c : toTerminal(text)) {
        unsigned char const byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            result += '\\';
            result += c;
        } else if (byte < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", byte);
            result += escape;
        } else {
            result += c;
        }
    }
    return result + '"';
}

void printJson(std::vector<Section> const& sections)
{
    out() << "{";
    char const* sectionSeparator = "\n";
    for (auto const& section : sections) {
        out() << sectionSeparator << "  " << jsonString(section.first) << ": {";
        char const* separator = "\n";
        for (auto const& entry : section.second) {
            out() << separator << "    " << jsonString(entry.first) << ": " << jsonString(entry.second);
            separator = ",\n";
        }
        out() << "\n  }";
        sectionSeparator = ",\n";
    }
    out() << "\n}\n";
}

} // namespace

int runInfo(Args const& args)
{
    CommandLine line;
    if (auto const done = parseCommandLine("info", kHelp, args, {{"--json"}}, line))
        return *done;
    bool const json = line.has("--json");
    if (!line.operands.empty())
        return usageError("info", "unexpected argument '" + line.operands[0] + "'");
    std::vector<Section> const sections = {library(), services(), systemProperties(), machine()};
    if (json)
        printJson(sections);
    else
        printTable(sections);
    return kOk;
}

} // namespace tovu::cli
