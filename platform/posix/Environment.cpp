/// @file
/// The environment is bytes here, and read as names of files are: as UTF-8 whatever the locale, other bytes
/// as lone halves of surrogate pairs. So a folder that comes from a variable opens, however its name is
/// written. Only "\" is a character as any other here, which in a name of a file would be escaped.
#include "platform/Environment.h"

#include <cstdlib>
#include <mutex>

#include "platform/posix/EnvironmentLock.h"
#include "platform/posix/NativeText.h"

namespace vapp_platform {
namespace {

// Copied under the lock: the memory that getenv points to belongs to whoever sets the variable next.
std::optional<std::string> ValueOf(const std::string& name) {
    const std::lock_guard guard(EnvironmentLock());
    const char* const value = std::getenv(name.c_str());
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

}  // namespace

std::optional<std::u16string> GetEnvironmentValue(std::u16string_view name) {
    using namespace std::string_view_literals;
    if (name.empty() || name.find_first_of(u"=\0"sv) != std::u16string_view::npos) return std::nullopt;
    // NATIVE: a name goes out and a value comes in.
    const std::optional<std::string> value = ValueOf(NativeFromUtf16(name));
    if (!value) return std::nullopt;
    return TextFromNative(*value).ToWide();
}

}  // namespace vapp_platform
