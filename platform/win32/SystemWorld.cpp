/// @file
/// Wine shows itself by an entry point that Windows lacks.
#include "platform/World.h"

#include <windows.h>

namespace vapp_platform {

bool IsWineSystem() noexcept {
    const HMODULE ntdll = GetModuleHandleA("ntdll");
    return ntdll != nullptr && GetProcAddress(ntdll, "wine_get_version") != nullptr;
}

bool IsWindowsBuild() noexcept {
    return true;
}

}  // namespace vapp_platform
