/// @file
/// By bytes: every character that is asked about is ASCII.
#include "platform/PathValid.h"

#include <algorithm>
#include <string>

#include "platform/PathNames.h"

namespace vapp_platform {
namespace {

bool HasForbidden(std::string_view part) noexcept {
    return part.find_first_of("\"*?<>|:") != cnNone;
}

/// The next part behind `at`, which moves behind it; empty at the end. Empty parts are passed over.
std::string_view NextPart(std::string_view path, std::size_t& at) noexcept {
    while (at < path.size() && IsSeparator(path[at]))
        ++at;
    const std::size_t first = at;
    at = std::min(FindSeparator(path, first), path.size());
    return path.substr(first, at - first);
}

/// An empty part inside of the path. In the world of Wine "\" is no separator to this test, so that it passes
/// where it separates.
bool HasEmptyPart(std::string_view path, World world) noexcept {
    const auto separates = [world](char byte) {
        return byte == '/' || (byte == '\\' && world == World::Windows);
    };
    if (path.empty()) return false;
    return std::adjacent_find(path.begin() + 1, path.end(), [separates](char left, char right) {
               return separates(left) && separates(right);
           }) != path.end();
}

bool IsDriveLetter(char byte) noexcept {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool IsValidFirstPart(const CStringU& path, std::string_view first) noexcept {
    if (IsUnixPath(path)) return true;
    if (DriveBytes(path) > 0) return first.size() == 2 && IsDriveLetter(first[0]);
    return !path.PayloadView().starts_with("\\\\") || !HasForbidden(first);
}

}  // namespace

bool IsValidPath(const CStringU& path, World world) {
    const std::string_view bytes = path.PayloadView();
    if (HasEmptyPart(bytes, world)) return false;
    std::size_t at = 0;
    const std::string_view first = NextPart(bytes, at);
    if (first.empty() || (world == World::Windows && !IsValidFirstPart(path, first))) return false;
    for (std::string_view part = NextPart(bytes, at); !part.empty(); part = NextPart(bytes, at)) {
        if (HasForbidden(part)) return false;
    }
    return true;
}

}  // namespace vapp_platform
