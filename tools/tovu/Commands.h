#ifndef TOVU_TOOL_COMMANDS_H
#define TOVU_TOOL_COMMANDS_H

#include "Terminal.h"

// One function per command of the `tovu` host. Each gets the arguments after
// its name, answers --help itself and returns the exit status.
namespace tovu::cli {

int runInfo(Args const& args);
int runCheck(Args const& args);
int runEncode(Args const& args);
int runDecode(Args const& args);
int runBasen(Args const& args);
int runChecksum(Args const& args);
int runTime(Args const& args);
int runDate(Args const& args);
int runIni(Args const& args);
int runProps(Args const& args);
int runLib(Args const& args);
int runRandom(Args const& args);

} // namespace tovu::cli

#endif
