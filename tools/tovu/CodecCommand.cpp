#include "Commands.h"

namespace tovu::cli {

int runEncode(Args const&) { return kUsage; }
int runDecode(Args const&) { return kUsage; }

} // namespace tovu::cli
