/// @file
/// On native Linux the Unix side is the process itself: a name is its own name on either side, told with the
/// separators of Unix, and the environment is the process's own.
///
/// NATIVE: names of files cross here as everywhere (NativePath.h), values of variables as plain bytes.
#include "platform/UnixSide.h"

#include <cstdlib>
#include <mutex>
#include <string>
#include <string_view>

#include "platform/posix/EnvironmentLock.h"
#include "platform/posix/NativePath.h"
#include "platform/posix/NativeText.h"

namespace vapp_platform {

namespace {

class TNativeUnixSide final : public TUnixSide {
public:
    [[nodiscard]] std::optional<CStringU> DosFileName(const char* unixPath) const override {
        return FromNativePath(unixPath);
    }
    [[nodiscard]] std::optional<CString> UnixFileName(const CStringU& dosPath) const override {
        return UnixNameOfText(dosPath);
    }
    // A `\` is a separator here, where DosFileName takes it for a character of a name.
    [[nodiscard]] CStringU TextOfPlainPath(const char* path) const override {
        return TextFromNative(CString::ViewOf(path));
    }
    [[nodiscard]] CStringU TextOfUnixName(const CString& name) const override {
        return FromNativePath(name.View());
    }
    [[nodiscard]] CString UnixNameOfText(const CStringU& text) const override {
        return CString(ToNativePath(text));
    }

    [[nodiscard]] std::optional<CString> GetVariable(const char* name) const override {
        const std::lock_guard guard(EnvironmentLock());
        return CString(std::getenv(name));
    }
    [[nodiscard]] std::optional<int> SetVariable(const char* name, const char* value,
                                                 int overwrite) const override {
        const std::lock_guard guard(EnvironmentLock());
        return setenv(name, value, overwrite);
    }
    [[nodiscard]] std::optional<int> UnsetVariable(const char* name) const override {
        const std::lock_guard guard(EnvironmentLock());
        return unsetenv(name);
    }
    // Not putenv, which would go on using the caller's memory. As there, a name alone removes the variable.
    [[nodiscard]] std::optional<int> PutVariable(const char* assignment) const override {
        const std::string_view text(assignment);
        const std::lock_guard guard(EnvironmentLock());
        const std::size_t equals = text.find('=');
        if (equals == std::string_view::npos) return unsetenv(assignment);
        return setenv(std::string(text.substr(0, equals)).c_str(), assignment + equals + 1, 1);
    }
};

}  // namespace

const TUnixSide& SystemUnixSide() noexcept {
    static const TNativeUnixSide side;
    return side;
}

}  // namespace vapp_platform
