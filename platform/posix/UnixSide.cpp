/// @file
/// On native Linux the Unix side is the process itself: a name is its own name on either side, told with the
/// separators of Unix, and the environment is the process's own.
#include "platform/UnixSide.h"

#include <cstdlib>
#include <string>
#include <string_view>

namespace vapp_platform {

namespace {

class TNativeUnixSide final : public TUnixSide {
public:
    // NATIVE: names of files come in the active code page.
    [[nodiscard]] std::optional<CStringU> DosFileName(const char* unixPath) const override {
        return CStringU(unixPath);
    }
    // Byte by byte, so that a name keeps bytes that are not valid UTF-8.
    [[nodiscard]] std::optional<CString> UnixFileName(const CStringU& dosPath) const override {
        CString name = dosPath.StripMarker();
        name.Replace('\\', '/');
        return name;
    }
    [[nodiscard]] std::optional<CString> GetVariable(const char* name) const override {
        return CString(std::getenv(name));
    }
    [[nodiscard]] std::optional<int> SetVariable(const char* name, const char* value,
                                                 int overwrite) const override {
        return setenv(name, value, overwrite);
    }
    [[nodiscard]] std::optional<int> UnsetVariable(const char* name) const override { return unsetenv(name); }
    // Not putenv, which would go on using the caller's memory. As there, a name alone removes the variable.
    [[nodiscard]] std::optional<int> PutVariable(const char* assignment) const override {
        const std::string_view text(assignment);
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
