/// @file
/// A process without a window system of its own says it on standard error.
#include "platform/MessageBox.h"

#include <cstdio>

namespace vapp_platform {

void ShowSystemMessageBox(const char* text, const char* caption, BoxStyle /*style*/) noexcept {
    std::fprintf(stderr, "%s: %s\n", caption, text);
}

}  // namespace vapp_platform
