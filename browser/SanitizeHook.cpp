/// @file
/// Keeps the host's one hook and applies it to single names.
#include "browser/SanitizeHook.h"

#include "vapp/browser/TclBridge.h"

namespace {

vapp_library_browser::TSanitizeHook s_hook = nullptr;

}  // namespace

void vapp::gSetTclSanitizeInputUPointer(CStringU (*hook)(const CStringU&)) {
    s_hook = hook;
}

namespace vapp_library_browser {

TSanitizeHook GetSanitizeHook() noexcept {
    return s_hook;
}

CStringU SanitizeTclInput(const CStringU& name) {
    return s_hook == nullptr ? name : s_hook(CStringU(name));
}

}  // namespace vapp_library_browser
