#ifndef TOVU_TOOL_KEYVALUECHECKS_H
#define TOVU_TOOL_KEYVALUECHECKS_H

#include <string>

// What `tovu ini` and `tovu props` find out about a file and a value before
// they let the library's INI engine read or write them.
namespace tovu::cli {

// Reads the whole file; false with errno (and its text in reason) when it
// cannot, a directory included.
bool readWhole(std::string const& path, std::string& content, std::string& reason, int& error);

// True when a line feed without a CR before it occurs: the engine reads
// every line end as two bytes and would lose a character after it.
bool hasBareLineFeed(std::string const& content);

// Why the INI writer and reader would not give SECTION.KEY and value back
// unchanged ("#", ";", line ends, blanks at either end, "=" in the key, a
// line too long), or "" when they would.
std::string whyNotStorable(std::string const& name, std::string const& value);

} // namespace tovu::cli

#endif
