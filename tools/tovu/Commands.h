#ifndef TOVU_TOOL_COMMANDS_H
#define TOVU_TOOL_COMMANDS_H

#include <ostream>

// One function per command of the `tovu` host; each returns the exit status.
int runVersion(std::ostream& out);
int runInfo(std::ostream& out);

#endif
