/// @file
/// The numbers in the name of a kernel's release, such as "6.1.0-13-amd64".
#pragma once

#include <cstdint>
#include <string_view>

namespace vapp_platform {

/// Up to three numbers, 0 where there are fewer, and the text behind them.
struct TKernelRelease {
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::uint32_t patch = 0;
    std::string_view rest;
};

/// Takes a release apart. The rest looks into `text`.
[[nodiscard]] TKernelRelease ParseKernelRelease(std::string_view text) noexcept;

}  // namespace vapp_platform
