/// @file
/// Keeps the host's one hook and applies it to single names.
#include "browser/SanitizeHook.h"

#include "vapp/browser/HostCallScope.h"
#include "vapp/browser/TclBridge.h"

namespace {

CStringU (*s_hook)(const CStringU&) = nullptr;

}  // namespace

void vapp::gSetTclSanitizeInputUPointer(CStringU (*hook)(const CStringU&)) {
    s_hook = hook;
}

namespace vapp_library_browser {

bool HasSanitizeHook() noexcept {
    return s_hook != nullptr;
}

CStringU CallSanitizeHook(const CStringU& name) {
    const HostCallScope scope;
    return s_hook(CStringU(name));
}

CStringU SanitizeTclInput(const CStringU& name) {
    return HasSanitizeHook() ? CallSanitizeHook(name) : name;
}

}  // namespace vapp_library_browser
