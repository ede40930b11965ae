/// @file
/// The system's error codes: what the last call of this thread failed with, and the text of a code.
/// Implemented once for each system. On Linux a code is an errno, but for the one below.
#pragma once

#include <cstdint>

#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// Something of that name is there already: the one code that has the same number on both systems, since
/// callers ask for it by number.
inline constexpr std::uint32_t cnAlreadyExistsError = 183;

/// The code of this thread's last failed call.
[[nodiscard]] std::uint32_t LastErrorCode() noexcept;

/// The system's own text of a code; empty where it has none. On Linux in English always.
[[nodiscard]] CStringU SystemErrorText(std::uint32_t code);

}  // namespace vapp_platform
