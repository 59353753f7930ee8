#include <tovuutil/tovuutil.h>

#include "Commands.h"

int runVersion(std::ostream& out)
{
    out << "tovu " << TOVUUTIL_VERSION << '\n';
    return 0;
}
