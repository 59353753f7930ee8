#include "Commands.h"

namespace tovu::cli {

int runIni(Args const&) { return kUsage; }

} // namespace tovu::cli
