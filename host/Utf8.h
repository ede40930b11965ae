#pragma once
/// What a byte of UTF-8 is, for texts that are cut.

namespace navigator {

/// Whether a byte goes on with the character that another one began.
[[nodiscard]] constexpr bool gIsContinuation(char byte) noexcept {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace navigator
