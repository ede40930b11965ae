/// @file
/// Numbers with dots between them; what doesn't go on so is the rest.
#include "platform/posix/KernelRelease.h"

#include <charconv>

namespace vapp_platform {

TKernelRelease ParseKernelRelease(std::string_view text) noexcept {
    TKernelRelease release;
    const char* const end = text.data() + text.size();
    const char* at = text.data();
    for (std::uint32_t* const number : {&release.major, &release.minor, &release.patch}) {
        const bool first = number == &release.major;
        if (!first && (at == end || *at != '.')) break;
        const auto read = std::from_chars(first ? at : at + 1, end, *number);
        if (read.ec != std::errc()) break;
        at = read.ptr;
    }
    release.rest = {at, static_cast<std::size_t>(end - at)};
    return release;
}

}  // namespace vapp_platform
