#ifndef TOVUUTIL_PROPERTIES_INI_H
#define TOVUUTIL_PROPERTIES_INI_H

#include <list>
#include <string>
#include <unordered_map>
#include <vector>

#include <tovuutil/export.h>

namespace msvc_tovu_ini_wrapper {

// Log
//
// A thin wrapper over a low-level file handle in text mode: a "\n" written
// becomes CR LF, a CR LF read becomes "\n" (on every host, so files are
// byte-identical everywhere). A copy does not share the open handle.
class TOVU_API Log {
public:
    Log();
    // Copies the path only; the copy is not open.
    Log(Log const& other);
    // Closes this file and takes the other's path; the other's handle is not shared.
    Log& operator=(Log const& other);
    virtual ~Log();

    // Closes any open file, then opens path: read-only at its start, or
    // write-only (created with owner read/write if missing) at the end when
    // append, else truncated. The fourth argument is ignored.
    bool Open(char const* path, bool readOnly, bool append, bool flag);
    // Closes the file and resets its attributes to normal.
    void Close();
    // false when not open; otherwise writes (the write's own result is
    // ignored) and returns true.
    bool Write(char const* buffer, unsigned long length);
    // printf-style; at most 4999 characters. An empty or longer text writes
    // nothing and gives false.
    bool Write(char const* format, ...);
    // Commits the file's buffers to the disk.
    void Flush();
    // Whether a file is open.
    bool IsOpen() const;
    // The path last passed to Open (kept after Close).
    std::string GetPath() const;

protected:
    // The low-level file handle, -1 when not open.
    int handle;
    // The path last passed to Open.
    std::string path;
};

// Ini
//
// An INI file in memory: sections and keys in file order. Duplicates from a
// file are kept as separate records and every lookup finds the first record
// of a name (names compare exactly). Lookups cost O(1) on average.
//
// Load's line rules, kept as hosts know them:
//   - reading continues at the handle's position (a second Load sees nothing);
//   - a "#" or ";" anywhere starts a comment (no quoting);
//   - "[name]" starts a section, the name untrimmed; without "]" the line is
//     ignored; a line with blanks before "[" is a key line;
//   - "key = value" is trimmed on both sides of the first "="; lines without
//     "=" or starting with it are ignored, as are keys before the first section;
//   - every line is taken to end with two bytes (CR LF): after a bare line
//     feed the next line loses its first character;
//   - a line is read in pieces of at most 19999 bytes; a NUL byte ends it.
//
// Note the argument orders: ReadKey(key, section, ...) but
// WriteKey(section, key, ...). RemoveSection answers true for a missing
// section, RemoveKey false for a missing key.
//
// Example:
//   Ini ini;
//   ini.Open("tm.ini");
//   ini.Load();
//   std::string host = ini.get("SERVER.HOST", "localhost");
//   ini.put("SERVER.PORT", "8080");
//   ini.Save();
class TOVU_API Ini : public Log {
public:
    // One "key = value" record.
    struct Key {
        std::string name;                   ///< The key, trimmed.
        std::string value;                  ///< The value, trimmed.
        std::list<std::string> unusedLines; ///< Never filled.
        std::string unusedText;             ///< Never filled.
    };
    // One "[name]" record and its keys in file order.
    struct Section {
        std::string name;                   ///< The name between the brackets, untrimmed.
        std::vector<Key> keys;              ///< The keys in file order, duplicates kept.
        std::list<std::string> unusedLines; ///< Never filled.
        std::string unusedText;             ///< Never filled.
    };

    Ini();
    ~Ini() override;

    // Opens read-only.
    bool Open(char const* path);
    // Closes the file; the sections in memory stay.
    void Close();
    // Replaces the sections by what is read from the handle's position; true.
    bool Load();
    // Writes "[section]" and "key=value" lines (CR LF) to the path, then
    // reopens it read-only at its start. The file is replaced as a whole (a
    // new file beside it, forced to disk, renamed over it), so a failure never
    // leaves it half written; where no file can be created beside it, it is
    // written in place. A formatted line of more than 4999 characters is left
    // out. False only when the file cannot be opened for writing.
    bool Save();
    // Forgets every section in memory (the file is untouched); true.
    bool clear();

    // Whether a section of that name exists; null means "".
    bool SectionExists(char const* section);
    // Whether the section exists and holds the key; null means "".
    bool KeyExists(char const* section, char const* key);
    // Found: value = the key's value, true. Otherwise value = defaultValue, false.
    bool ReadKey(char const* key, char const* section, std::string& value, char const* defaultValue);
    // Replaces the first key's value, or appends the key (and the section).
    bool WriteKey(char const* section, char const* key, char const* value);
    // Appends an empty section unless one of that name exists; true.
    bool AddSection(char const* section);
    // Removes the first section of that name with its keys; true, also when
    // there was none.
    bool RemoveSection(char const* section);
    // Removes the first key of that name from the first such section; false
    // when either is missing.
    bool RemoveKey(char const* section, char const* key);

    // The same with standard strings.
    bool Open(std::string const& path) { return Open(path.c_str()); }
    // SectionExists(section.c_str()).
    bool SectionExists(std::string const& section) { return SectionExists(section.c_str()); }
    // KeyExists(section.c_str(), key.c_str()).
    bool KeyExists(std::string const& section, std::string const& key) { return KeyExists(section.c_str(), key.c_str()); }
    // ReadKey with C strings: note key before section.
    bool ReadKey(std::string const& key, std::string const& section, std::string& value,
                 std::string const& defaultValue)
    {
        return ReadKey(key.c_str(), section.c_str(), value, defaultValue.c_str());
    }
    // WriteKey with C strings: section before key.
    bool WriteKey(std::string const& section, std::string const& key, std::string const& value)
    {
        return WriteKey(section.c_str(), key.c_str(), value.c_str());
    }
    // AddSection(section.c_str()).
    bool AddSection(std::string const& section) { return AddSection(section.c_str()); }
    // RemoveSection(section.c_str()): true also when missing.
    bool RemoveSection(std::string const& section) { return RemoveSection(section.c_str()); }
    // RemoveKey(section.c_str(), key.c_str()): false when missing.
    bool RemoveKey(std::string const& section, std::string const& key) { return RemoveKey(section.c_str(), key.c_str()); }

    // "section.key": the section is the text before the first "." (a name
    // without one is a section with the empty key); "" when missing.
    std::string get(std::string const& name);
    // As get(name), but defaultValue when the key is missing.
    std::string get(std::string const& name, std::string const& defaultValue);
    // WriteKey for "section.key", split as in get.
    void put(std::string const& name, std::string const& value);
    // The key names of the first section of that name, in file order with
    // duplicates; empty when the section is missing.
    std::list<std::string> getKeysOfSection(std::string const& section);
    // Every section name in file order, duplicates included.
    std::list<std::string> getSectionNames();

    // Removes leading " \t" + left characters, then cuts the text before its
    // last character not in " \t" + right unless that is the final character,
    // so that character goes too ("ab  " becomes "a"): deliberate, hosts rely
    // on it. An empty or all-blank text raises std::out_of_range.
    static bool Trim(std::string& text, char const* left, char const* right);

protected:
    // found = the first section of that name (null means ""), or null; true when found.
    // The pointer is valid until the sections change.
    bool FindSection(char const* section, Section*& found);
    // found = the first key of that name in the first such section, or null;
    // true when found. The pointer is valid until the sections change.
    bool FindKey(char const* section, char const* key, Key*& found);
    // One line from the handle's position, by the rules above.
    bool ReadLine(std::string& line);
    // Splits off a comment starting at the first "#" or ";".
    static bool StripComment(std::string& line, std::string& comment);

private:
    Section* firstSection(std::string const& name);
    Key* firstKey(Section& section, std::string const& name);
    void dropIndexes();
    bool parse(std::string const& text, long long& consumed);
    bool writeFile(std::string const& content, bool& opened);

    std::vector<Section> sections;
    // First record of each name, built on demand and kept in step with
    // every insertion; a removal drops it to be rebuilt.
    std::unordered_map<std::string, std::size_t> sectionIndex_;
    bool sectionIndexValid_ = false;
    std::vector<std::unordered_map<std::string, std::size_t>> keyIndex_;
    std::vector<bool> keyIndexValid_;
};

} // namespace msvc_tovu_ini_wrapper

#endif
