/// @file
/// Functions of the system that not every version of it has, and that must therefore be looked up.
#pragma once

#include <windows.h>

namespace vapp_platform {

/// A function of KERNEL32 by its name; null where this system lacks it. KERNEL32 stays loaded as long as the
/// process runs.
template <typename Function>
[[nodiscard]] Function KernelEntryPoint(const char* name) noexcept {
    const HMODULE kernel = GetModuleHandleA("KERNEL32");
    if (kernel == nullptr) return nullptr;
    // Function pointers convert by way of the plainest one.
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(kernel, name)));
}

}  // namespace vapp_platform
