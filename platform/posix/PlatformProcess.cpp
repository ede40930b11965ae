/// @file
/// The process as the kernel numbers it.
#include "text/PlatformProcess.h"

#include <unistd.h>

namespace vapp_platform {

unsigned long OwnProcessNumber() noexcept {
    return static_cast<unsigned long>(getpid());
}

}  // namespace vapp_platform
