#ifndef TOVU_TOOL_STANDARDSTREAMS_H
#define TOVU_TOOL_STANDARDSTREAMS_H

#include <string>

// The library starts while it is loaded, before main, and may log to standard
// output then and open tovu.log. Where the executable can run code before the
// libraries' start-up (ELF hosts), the tool first fills closed descriptors 0-2
// with /dev/null, so that tovu.log cannot take one of them, and catches
// standard output. `tovu --log-dir DIR COMMAND...` also starts the library in
// DIR, so that tovu.log is written there.
namespace tovu::cli {

// Called first in main. Gives standard output back (one the caller closed
// stays unwritable: writes fail with "Bad file descriptor"), passes the lines
// caught during start-up on to standard error as UTF-8, and after --log-dir
// makes the caller's directory the working directory again. True when
// "--log-dir DIR" was taken; false where the host cannot (then the option is
// refused).
bool finishStartup();

} // namespace tovu::cli

#endif
