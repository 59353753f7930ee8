#include <tovuutil/tovuutil.h>

#include "KeyValueCommand.h"

namespace tovu::cli {

namespace {

constexpr char kHelp[] =
    "usage: tovu ini get FILE SECTION.KEY\n"
    "       tovu ini set FILE SECTION.KEY VALUE\n"
    "       tovu ini remove FILE SECTION.KEY\n"
    "       tovu ini remove-section FILE SECTION\n"
    "       tovu ini list FILE [SECTION]\n"
    "       tovu ini sections FILE\n\n"
    "Reads and changes an INI file (\"[SECTION]\" and \"KEY=VALUE\" lines) with the\n"
    "library's INI engine. A change is saved at once (set creates the file if\n"
    "needed) and read back; status 1 when the file does not hold it. The saved\n"
    "file has CR LF line ends. A file with bare LF line ends is misread by the\n"
    "engine: it is never changed (convert it with sed -i 's/$/\\r/' FILE or\n"
    "unix2dos) and reading it warns. A value that the file cannot hold (with '#'\n"
    "or ';', a line end, blanks at its ends, or a KEY=VALUE line longer than 4998\n"
    "characters) is refused. FILE \"-\" reads standard input. list prints\n"
    "SECTION.KEY=VALUE lines.\n\n"
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
        std::string const section = name.substr(0, name.find('.'));
        return ini_.KeyExists(section, name.substr(section.size() + 1));
    }
    std::string get(std::string const& name) override { return ini_.get(name); }
    void set(std::string const& name, std::string const& value) override { ini_.put(name, value); }
    void remove(std::string const& name) override
    {
        std::string const section = name.substr(0, name.find('.'));
        ini_.RemoveKey(section, name.substr(section.size() + 1));
    }
    void removeSection(std::string const& section) override { ini_.RemoveSection(section); }
    bool isIni() const override { return true; }
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
    return runKeyValueCommand("ini", kHelp, file, args, true);
}

} // namespace tovu::cli
