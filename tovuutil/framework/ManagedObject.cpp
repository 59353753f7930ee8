#include "tovuutil/framework/ManagedObject.h"

CleanupAdapter::~CleanupAdapter() = default;

void CleanupAdapter::cleanup() {}

ManagedTovuObject::~ManagedTovuObject() = default;
