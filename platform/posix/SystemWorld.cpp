/// @file
/// On native Linux the world is that of Wine.
#include "platform/World.h"

namespace vapp_platform {

bool IsWineSystem() noexcept {
    return true;
}

bool IsWindowsBuild() noexcept {
    return false;
}

}  // namespace vapp_platform
