/// @file
/// The host's function goes before the system's box.
#include "platform/MessageBox.h"

#include <atomic>

namespace {

std::atomic<TShowMessageBox> gShow = nullptr;

}  // namespace

void gSetMessageBox(TShowMessageBox show) noexcept {
    gShow.store(show);
}

namespace vapp_platform {

void ShowMessageBox(const CString& text, const CString& caption, BoxStyle style) {
    const TShowMessageBox show = gShow.load();
    if (show != nullptr) {
        show(text, caption);
    } else {
        ShowSystemMessageBox(text, caption, style);
    }
}

}  // namespace vapp_platform
