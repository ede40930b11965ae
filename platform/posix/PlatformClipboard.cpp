/// @file
/// There is no clipboard here but that of a toolkit.
#include "text/PlatformClipboard.h"

namespace vapp_platform {

bool HasSystemClipboard() noexcept {
    return false;
}

bool SetSystemClipboardText(std::u16string_view /*wide*/,
                            std::optional<std::string_view> /*narrow*/) noexcept {
    return false;
}

std::u16string GetSystemClipboardText() {
    return {};
}

}  // namespace vapp_platform
