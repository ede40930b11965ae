/// @file
/// Writing to a pipe without a signal in the host when nobody can read any more.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace vapp_platform {

/// write, with SIGPIPE kept from the thread and taken back if this call has raised it. The host's handler and
/// what was pending before stay as they are.
ssize_t QuietWrite(int descriptor, const void* data, std::size_t size);

}  // namespace vapp_platform
