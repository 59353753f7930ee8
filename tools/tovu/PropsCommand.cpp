#include "Commands.h"

namespace tovu::cli {

int runProps(Args const&) { return kUsage; }

} // namespace tovu::cli
