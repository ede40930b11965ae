/// @file
/// The wide environment of the C runtime, which is the one that a host fills by _wputenv.
#include "platform/Environment.h"

#include <cstdlib>

namespace vapp_platform {

std::optional<std::u16string> GetEnvironmentValue(std::u16string_view name) {
    using namespace std::string_view_literals;
    if (name.empty() || name.find_first_of(u"=\0"sv) != std::u16string_view::npos) return std::nullopt;
    const std::wstring wideName(name.begin(), name.end());
    const wchar_t* value = _wgetenv(wideName.c_str());
    if (value == nullptr) return std::nullopt;
    const std::wstring_view wide(value);
    return std::u16string(wide.begin(), wide.end());
}

}  // namespace vapp_platform
