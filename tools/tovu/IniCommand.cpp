#include <tovuutil/tovuutil.h>

#include "KeyValueCommand.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu ini get FILE SECTION.KEY\n"
    "       tovu ini set FILE SECTION.KEY VALUE\n"
    "       tovu ini list FILE [SECTION]\n"
    "       tovu ini sections FILE\n\n"
    "Reads and changes an INI file (\"[SECTION]\" and \"KEY=VALUE\" lines) with the\n"
    "library's INI engine. A set saves the file at once, creating it if needed;\n"
    "the saved file has CR LF line ends. list prints SECTION.KEY=VALUE lines.\n\n"
    "example: tovu ini set app.ini SERVER.PORT 8080\n"
    "         tovu ini get app.ini SERVER.PORT          prints 8080\n";

class IniFile : public KeyValueFile {
public:
    bool load(std::string const& path, std::string& reason) override
    {
        if (!ini_.Open(path)) {
            reason = "cannot be opened";
            return false;
        }
        ini_.Load();
        return true;
    }
    bool has(std::string const& name) override
    {
        std::string key = name;
        std::string const section = key.substr(0, key.find('.'));
        return ini_.KeyExists(section, key.substr(section.size() + 1));
    }
    std::string get(std::string const& name) override { return ini_.get(name); }
    void set(std::string const& name, std::string const& value) override { ini_.put(name, value); }
    bool save(std::string& reason) override
    {
        if (ini_.Save())
            return true;
        reason = "cannot be written";
        return false;
    }
    std::list<std::string> sections() override { return ini_.getSectionNames(); }
    std::list<std::string> keys(std::string const& section) override { return ini_.getKeysOfSection(section); }

private:
    msvc_tovu_ini_wrapper::Ini ini_;
};

} // namespace

int runIni(Args const& args)
{
    IniFile file;
    return runKeyValueCommand("ini", kHelp, file, args);
}

} // namespace tovu::cli
