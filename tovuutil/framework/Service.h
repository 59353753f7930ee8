#ifndef TOVUUTIL_FRAMEWORK_SERVICE_H
#define TOVUUTIL_FRAMEWORK_SERVICE_H

#include <tovuutil/export.h>

// Service
//
// Common base of the four service interfaces. The only virtual operation is
// the destructor; the services themselves are owned by the lifetime manager.
class TOVU_API Service {
public:
    virtual ~Service();

    // Always true.
    bool isAvailable() { return true; }
};

#endif
