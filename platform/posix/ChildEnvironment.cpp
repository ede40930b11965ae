/// @file
/// NATIVE: the environment is bytes; wide text of it is UTF-8 with a way back for every byte.
#include "platform/ChildEnvironment.h"

#include <unistd.h>

#include <cstdlib>
#include <string>

#include "platform/posix/EnvironmentLock.h"
#include "platform/posix/NativeText.h"

namespace vapp_platform {

std::mutex& EnvironmentLock() {
    static std::mutex lock;
    return lock;
}

void SetEnvironmentValue(const CString& name, const CString& value) {
    const std::lock_guard guard(EnvironmentLock());
    setenv(name, value, 1);
}

void UnsetEnvironmentValue(const CString& name) {
    const std::lock_guard guard(EnvironmentLock());
    unsetenv(name);
}

std::vector<wchar_t> EnvironmentSnapshot() {
    std::vector<wchar_t> snapshot;
    const std::lock_guard guard(EnvironmentLock());
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        // An empty entry would end the block for its reader.
        if (**entry == '\0') continue;
        const std::wstring wide = WideFromNative(*entry);
        snapshot.insert(snapshot.end(), wide.begin(), wide.end());
        snapshot.push_back(L'\0');
    }
    return snapshot;
}

}  // namespace vapp_platform
