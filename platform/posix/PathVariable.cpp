/// @file
/// Asked under the lock, as any thread may set variables for a child meanwhile.
#include "platform/posix/PathVariable.h"

#include <cstdlib>
#include <mutex>

#include "platform/posix/EnvironmentLock.h"

namespace vapp_platform {

std::string PathVariable(const char* name) {
    const std::lock_guard guard(EnvironmentLock());
    const char* value = std::getenv(name);
    return value != nullptr && *value == '/' ? value : std::string();
}

}  // namespace vapp_platform
