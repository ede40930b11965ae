/// @file
/// Children that nobody waits for any more. Each stays a zombie from its end until it is collected, so they
/// are kept here by their descriptors and collected in passing.
#pragma once

#include "platform/OwnedHandle.h"

namespace vapp_platform {

/// Keeps a child's descriptor until the child has ended and is collected.
void LeaveChild(OwnedHandle process);

/// Collects those that have ended meanwhile. Costs nothing where there are none.
void CollectLeftChildren();

}  // namespace vapp_platform
