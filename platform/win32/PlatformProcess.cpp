/// @file
/// The process as Windows numbers it.
#include "text/PlatformProcess.h"

#include <windows.h>

namespace vapp_platform {

unsigned long OwnProcessNumber() noexcept {
    return GetCurrentProcessId();
}

}  // namespace vapp_platform
