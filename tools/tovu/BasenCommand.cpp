#include "Commands.h"

namespace tovu::cli {

int runBasen(Args const&) { return kUsage; }

} // namespace tovu::cli
