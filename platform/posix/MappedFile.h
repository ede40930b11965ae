/// @file
/// Which file a piece of this process's memory comes from, as the kernel tells it: by an absolute path,
/// however the file was named when it was loaded.
#pragma once

#include <string>

namespace vapp_platform {

/// The path, in bytes; empty for memory that is no file's, and where the kernel doesn't tell. The name of a
/// file that was removed meanwhile has " (deleted)" behind it.
[[nodiscard]] std::string MappedFile(const void* address);

}  // namespace vapp_platform
