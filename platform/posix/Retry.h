/// @file
/// A system call again as long as a signal interrupts it.
#pragma once

#include <cerrno>

namespace vapp_platform {

/// The call's result, never an interruption.
template <typename Call>
auto Retry(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

}  // namespace vapp_platform
