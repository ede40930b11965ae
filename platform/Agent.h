/// @file
/// The agent that keeps the keys for logins on remote machines.
#pragma once

namespace vapp_platform {

/// Whether the agent's window is there. Only Windows has one; elsewhere there is none.
[[nodiscard]] bool IsAgentWindowOpen() noexcept;

}  // namespace vapp_platform
