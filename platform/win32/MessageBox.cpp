/// @file
/// The system's box, without an owner.
#include "platform/MessageBox.h"

#include <windows.h>

#include "platform/win32/BoxText.h"

namespace vapp_platform {

CString BoxText(const char* text) {
    return CStringU(text, TextEncoding::Utf8Auto).ToAnsi();
}

void ShowSystemMessageBox(const char* text, const char* caption, BoxStyle style) noexcept {
    MessageBoxA(nullptr, BoxText(text), BoxText(caption), style == BoxStyle::Error ? MB_ICONERROR : MB_OK);
}

}  // namespace vapp_platform
