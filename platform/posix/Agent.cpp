/// @file
/// Keys are kept elsewhere on Linux: an agent is a socket, and has no window.
#include "platform/Agent.h"

namespace vapp_platform {

bool IsAgentWindowOpen() noexcept {
    return false;
}

}  // namespace vapp_platform
