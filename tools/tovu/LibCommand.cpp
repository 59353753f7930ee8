#include "Commands.h"

namespace tovu::cli {

int runLib(Args const&) { return kUsage; }

} // namespace tovu::cli
