/// @file
/// The environment is bytes here.
#include "platform/Environment.h"

#include <cstdlib>

#include "text/PlatformText.h"

namespace vapp_platform {

std::optional<std::u16string> GetEnvironmentValue(std::u16string_view name) {
    using namespace std::string_view_literals;
    if (name.empty() || name.find_first_of(u"=\0"sv) != std::u16string_view::npos) return std::nullopt;
    // NATIVE: a name goes out and a value comes in, both in the active code page.
    const char* value = std::getenv(Utf16ToCodePage(0, name).c_str());
    if (value == nullptr) return std::nullopt;
    return CodePageToUtf16(0, value);
}

}  // namespace vapp_platform
