/// @file
/// Held while the library changes or reads the environment of this process.
#pragma once

#include <mutex>

namespace vapp_platform {

std::mutex& EnvironmentLock();

}  // namespace vapp_platform
