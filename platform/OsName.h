/// @file
/// What the system is called: by its display, since a program under Wine claims no edition of Windows.
#pragma once

#include <string_view>

#include "platform/WindowsName.h"

namespace vapp_platform {

/// Whether a display's device name is one that Wine gives: "Wine" and whatever follows, in these letters.
[[nodiscard]] constexpr bool IsWineDeviceName(std::string_view deviceName) noexcept {
    return deviceName.starts_with("Wine");
}

/// "Linux" where the display is Wine's, otherwise WindowsName.
[[nodiscard]] inline CStringU OsName(bool isWineDisplay, const TWindowsFacts& facts) {
    return isWineDisplay ? CStringU("Linux") : WindowsName(facts);
}

}  // namespace vapp_platform
