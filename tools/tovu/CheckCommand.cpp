#include "Commands.h"

namespace tovu::cli {

int runCheck(Args const&) { return kUsage; }

} // namespace tovu::cli
