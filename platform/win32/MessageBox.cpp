/// @file
/// The system's box, without an owner.
#include "platform/MessageBox.h"

#include <windows.h>

namespace vapp_platform {

void ShowSystemMessageBox(const char* text, const char* caption) noexcept {
    MessageBoxA(nullptr, text, caption, MB_OK);
}

}  // namespace vapp_platform
