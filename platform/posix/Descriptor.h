/// @file
/// A handle in the width that the system's calls take.
#pragma once

#include "platform/OwnedHandle.h"

namespace vapp_platform {

/// The descriptor that `handle` owns; -1 without one.
[[nodiscard]] inline int Descriptor(const OwnedHandle& handle) noexcept {
    return static_cast<int>(handle.Get());
}

}  // namespace vapp_platform
