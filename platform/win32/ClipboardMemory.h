/// @file
/// The memory that a text on the clipboard takes: how it is asked for, and how much of it.
///
/// Apart from the calls, because the system hands out copies, which don't tell how the block was asked for.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string_view>

namespace vapp_platform {

/// The system's memory, as bytes. The flag GMEM_DDESHARE is 0x2000; old readers of the clipboard ask for it.
inline constexpr UINT cnClipboardMemory = GMEM_MOVEABLE | 0x2000;

/// The bytes of a text with its NUL, and none more: readers that take a block's size for the text's would
/// show them.
template <typename Unit>
[[nodiscard]] constexpr std::size_t ClipboardBytes(std::basic_string_view<Unit> text) noexcept {
    return (text.size() + 1) * sizeof(Unit);
}

}  // namespace vapp_platform
