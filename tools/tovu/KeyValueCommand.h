#ifndef TOVU_TOOL_KEYVALUECOMMAND_H
#define TOVU_TOOL_KEYVALUECOMMAND_H

#include <list>
#include <string>

#include "Terminal.h"

namespace tovu::cli {

// A configuration file as `tovu ini` and `tovu props` see it: values under
// "SECTION.KEY" names, in Windows-1252.
class KeyValueFile {
public:
    virtual ~KeyValueFile() = default;
    // Loads the file; false with a reason when it cannot be read.
    virtual bool load(std::string const& path, std::string& reason) = 0;
    virtual bool has(std::string const& name) = 0;
    virtual std::string get(std::string const& name) = 0;
    virtual void set(std::string const& name, std::string const& value) = 0;
    virtual void remove(std::string const& name) = 0;
    // Only where runKeyValueCommand is told that sections can be removed.
    virtual void removeSection(std::string const& section) = 0;
    // True when the file is read and written by the INI engine, with its
    // line rules.
    virtual bool isIni() const = 0;
    // Writes the file back; false with a reason when it cannot be written.
    virtual bool save(std::string& reason) = 0;
    virtual std::list<std::string> sections() = 0;
    virtual std::list<std::string> keys(std::string const& section) = 0;
};

// get|set|remove|remove-section|list|sections over one file (or standard
// input for the reading actions): the shared body of both commands. Changes
// are saved at once and read back; a file that does not hold them afterwards
// is reported.
int runKeyValueCommand(char const* command, char const* help, KeyValueFile& file, Args const& args,
                       bool sectionsRemovable);

} // namespace tovu::cli

#endif
