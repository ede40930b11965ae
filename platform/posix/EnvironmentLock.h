/// @file
/// Held while the library changes or reads the environment of this process: setenv moves what getenv has
/// found. A host that changes it by itself doesn't hold it, and has to see that no thread is in here.
#pragma once

#include <mutex>

namespace vapp_platform {

std::mutex& EnvironmentLock();

}  // namespace vapp_platform
