/// @file
/// Codes are errno numbers. Their texts are those of the C library, untranslated: they need no locale, no
/// buffer that threads share, and no encoding.
#include "platform/SystemError.h"

#include <cerrno>
#include <climits>
#include <cstring>

namespace vapp_platform {

std::uint32_t LastErrorCode() noexcept {
    return static_cast<std::uint32_t>(errno);
}

CStringU SystemErrorText(std::uint32_t code) {
    if (code > INT_MAX) return {};
    const int number = code == cnAlreadyExistsError ? EEXIST : static_cast<int>(code);
    return strerrordesc_np(number);
}

}  // namespace vapp_platform
