/// @file
/// The environment is bytes here, and read as names of files are: as UTF-8 whatever the locale, other bytes
/// as lone halves of surrogate pairs. So a folder that comes from a variable opens, however its name is
/// written.
#include "platform/Environment.h"

#include <cstdlib>

#include "platform/posix/NativePath.h"

namespace vapp_platform {
namespace {

/// Calls `take` with each piece between backslashes and, between two pieces, `putBackslash`: names of files
/// are converted with another meaning of "\", but in a variable it is a character as any other.
template <typename Char, typename Take, typename PutBackslash>
void ForEachPiece(std::basic_string_view<Char> text, const Take& take, const PutBackslash& putBackslash) {
    for (;;) {
        const std::size_t end = text.find(Char('\\'));
        take(text.substr(0, end));
        if (end == std::basic_string_view<Char>::npos) return;
        putBackslash();
        text.remove_prefix(end + 1);
    }
}

std::string ToNative(std::u16string_view name) {
    std::string native;
    ForEachPiece(
        name, [&native](std::u16string_view piece) { native += ToNativePath(CStringU(piece)); },
        [&native] { native += '\\'; });
    return native;
}

std::u16string FromNative(std::string_view value) {
    std::u16string units;
    ForEachPiece(
        value, [&units](std::string_view piece) { units += FromNativePath(piece).ToWide(); },
        [&units] { units += u'\\'; });
    return units;
}

}  // namespace

std::optional<std::u16string> GetEnvironmentValue(std::u16string_view name) {
    using namespace std::string_view_literals;
    if (name.empty() || name.find_first_of(u"=\0"sv) != std::u16string_view::npos) return std::nullopt;
    // NATIVE: a name goes out and a value comes in.
    const char* value = std::getenv(ToNative(name).c_str());
    if (value == nullptr) return std::nullopt;
    return FromNative(value);
}

}  // namespace vapp_platform
