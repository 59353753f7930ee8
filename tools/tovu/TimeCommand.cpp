#include "Commands.h"

namespace tovu::cli {

int runTime(Args const&) { return kUsage; }

} // namespace tovu::cli
