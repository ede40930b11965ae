/// @file
/// What a read or a write came to.
#pragma once

#include <cstdint>

namespace vapp_platform {

/// Bytes moved, or the reason why none were.
struct Transfer {
    /// Bytes; 0 can also be the end of a socket's stream.
    std::int64_t count = 0;
    /// 0, or the system's own number of what failed; `count` is 0 then.
    int code = 0;

    [[nodiscard]] bool Failed() const noexcept { return code != 0; }
};

}  // namespace vapp_platform
