/// @file
/// The agent is known by its window: class and title are the same word.
#include "platform/Agent.h"

#include <windows.h>

namespace vapp_platform {

bool IsAgentWindowOpen() noexcept {
    return FindWindowA("Pageant", "Pageant") != nullptr;
}

}  // namespace vapp_platform
