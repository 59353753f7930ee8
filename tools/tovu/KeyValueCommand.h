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
    // Writes the file back; false with a reason when it cannot be written.
    virtual bool save(std::string& reason) = 0;
    virtual std::list<std::string> sections() = 0;
    virtual std::list<std::string> keys(std::string const& section) = 0;
};

// get|set|list|sections over one file: the shared body of both commands.
int runKeyValueCommand(char const* command, char const* help, KeyValueFile& file, Args const& args);

} // namespace tovu::cli

#endif
