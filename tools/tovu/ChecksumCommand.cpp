#include "Commands.h"

namespace tovu::cli {

int runChecksum(Args const&) { return kUsage; }

} // namespace tovu::cli
