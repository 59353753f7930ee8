#ifndef TOVU_TOOL_TERMINAL_H
#define TOVU_TOOL_TERMINAL_H

#include <ostream>
#include <string>
#include <vector>

// What every command of `tovu` shares: its exit statuses, its output streams
// and the translation between the terminal's UTF-8 and the library's
// Windows-1252.
namespace tovu::cli {

using Args = std::vector<std::string>;

constexpr int kOk = 0;      // done; every value valid
constexpr int kInvalid = 1; // an invalid value, undecodable input, a failed read or write
constexpr int kUsage = 2;   // the command line itself is wrong

// The tool's own standard output. The library's console log lines are sent to
// standard error instead, so that they never mix into data on standard output.
std::ostream& out();
std::ostream& err();

// Terminal text to library text: valid UTF-8 is converted to Windows-1252
// (characters it lacks become '?'); anything else is taken as Windows-1252
// bytes already.
std::string fromTerminal(std::string const& text);
// Library text to terminal text: Windows-1252 to UTF-8.
std::string toTerminal(std::string const& text);

// Prints "tovu: <command>: <message>" and the hint to --help on standard
// error; returns kUsage.
int usageError(std::string const& command, std::string const& message);
// Prints "tovu: <command>: <message>" on standard error; returns kInvalid.
int failure(std::string const& command, std::string const& message);

// Flushes standard output; reports a failed write (a full device) and returns
// kInvalid, otherwise returns status unchanged. A reader that went away
// (EPIPE) gives kInvalid without a word.
int finish(int status);

} // namespace tovu::cli

#endif
