/// @file
/// The environment that CreateProcess takes; the C runtime keeps a copy of its own, which is left alone.
#include "platform/ChildEnvironment.h"

#include <windows.h>

#include <cwchar>

namespace vapp_platform {

void SetEnvironmentValue(const CString& name, const CString& value) {
    SetEnvironmentVariableA(name, value);
}

void UnsetEnvironmentValue(const CString& name) {
    SetEnvironmentVariableA(name, nullptr);
}

std::vector<wchar_t> EnvironmentSnapshot() {
    std::vector<wchar_t> snapshot;
    wchar_t* const block = GetEnvironmentStringsW();
    if (block == nullptr) return snapshot;
    const wchar_t* end = block;
    while (*end != L'\0')
        end += std::wcslen(end) + 1;
    snapshot.assign(static_cast<const wchar_t*>(block), end);
    FreeEnvironmentStringsW(block);
    return snapshot;
}

}  // namespace vapp_platform
