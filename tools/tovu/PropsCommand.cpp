#include <tovuutil/tovuutil.h>

#include "KeyValueCommand.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu props get FILE SECTION.KEY\n"
    "       tovu props set FILE SECTION.KEY VALUE\n"
    "       tovu props remove FILE SECTION.KEY\n"
    "       tovu props list FILE [SECTION]\n"
    "       tovu props sections FILE\n\n"
    "Reads and changes a properties file through the library's properties model.\n"
    "The kind of file follows its extension: .properties files (KEY=VALUE lines)\n"
    "are read-only, .xml files hold nothing, anything else is an INI file. The\n"
    "value \"_##undefined##_\" counts as absent. A change is saved at once and read\n"
    "back, with the checks of `tovu ini`. FILE \"-\" reads standard input as INI.\n\n"
    "example: tovu props get conf/app.properties SERVER.PORT\n";

class PropertiesFile : public KeyValueFile {
public:
    bool load(std::string const& path, std::string& reason) override
    {
        if (properties_.loadProperties(path))
            return true;
        reason = "cannot be loaded";
        return false;
    }
    bool has(std::string const& name) override { return properties_.isAvailable(name); }
    std::string get(std::string const& name) override { return properties_.getProperty(name); }
    void set(std::string const& name, std::string const& value) override { properties_.setProperty(name, value); }
    void remove(std::string const& name) override { properties_.removeProperty(name); }
    void removeSection(std::string const&) override {}
    bool isIni() const override { return properties_.getType() == PF_INI; }
    bool save(std::string& reason) override
    {
        if (properties_.writeProperties())
            return true;
        reason = properties_.getType() == PF_INI ? "cannot be written" : "files of this kind are not written";
        return false;
    }
    std::list<std::string> sections() override { return properties_.getSectionNames(); }
    std::list<std::string> keys(std::string const& section) override { return properties_.getKeysOfSection(section); }

private:
    Properties properties_;
};

} // namespace

int runProps(Args const& args)
{
    PropertiesFile file;
    return runKeyValueCommand("props", kHelp, file, args, false);
}

} // namespace tovu::cli
