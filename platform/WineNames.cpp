/// @file
/// The rules of translation; the names of the process's own world are one line each.
#include "platform/WineNames.h"

#include <algorithm>
#include <string>

#include "platform/PathNames.h"
#include "platform/PathNormalize.h"

namespace vapp_platform {

namespace {

// No system takes a longer path, in characters.
constexpr std::size_t cnLongestPath = 32767;
constexpr std::size_t cnMostBytesOfCharacter = 3;

CStringU WithSeparators(std::string_view payload, char from, char into) {
    std::string bytes(payload);
    std::ranges::replace(bytes, from, into);
    return TextOf(bytes);
}

// IsAbsolutePath in the world of Wine, at once for a path that needs no normalising to tell: probing asks for
// every head of a path.
bool IsAbsoluteUnderWine(const CStringU& path, const PathRules& rules) {
    const std::string_view text = path.PayloadView();
    const bool hasRoot =
        StartsWithSeparator(text) || (text.size() >= 3 && text[1] == ':' && IsSeparator(text[2]));
    if (hasRoot && text.find_first_of("$%") == std::string_view::npos) return true;
    return IsAbsolutePath(path, rules);
}

bool IsUnixCandidate(const char* path) {
    const std::string_view text = CString::ViewOf(path);
    return !text.empty() && text.front() != '\\' && !(text.size() >= 2 && text[1] == ':');
}

}  // namespace

CStringU DosName(const char* path, const TNameWorld& world) {
    if (world.rules.world == World::Wine && IsUnixCandidate(path)) {
        if (std::optional<CStringU> name = world.unixSide.DosFileName(path)) return *std::move(name);
    }
    return gToWindowsSeparators(path);
}

CString UnixName(const CStringU& path, const TNameWorld& world) {
    if (world.rules.world == World::Wine) {
        if (!IsAbsoluteUnderWine(path, world.rules)) {
            return WithSeparators(path.PayloadView(), '\\', '/').StripMarker();
        }
        if (std::optional<CString> name = world.unixSide.UnixFileName(path)) return *std::move(name);
    }
    return path.StripMarker();
}

CStringU UnixNameU(const CStringU& path, const TNameWorld& world) {
    return TextOf(UnixName(gToWindowsSeparators(path), world).View());
}

// Each turn cuts the head at a separator further left. The first asks for the whole, as long as it may be;
// heads that are longer than any name are passed over, for asking for every one of a path of a million
// separators would not end in anybody's lifetime.
CStringU UnixPathOf(const CStringU& path, const TNameWorld& world) {
    if (IsUnixPath(path)) return path;
    const std::string_view whole = path.PayloadView();
    const std::size_t longestHead =
        path.HasNonAscii() ? cnLongestPath * cnMostBytesOfCharacter : cnLongestPath;
    CStringU translation = UnixNameU(path, world);
    std::size_t cut = whole.size();
    while (translation.IsEmpty() && cut > 0) {
        const std::size_t separator = whole.rfind('\\', std::min(cut - 1, longestHead));
        if (separator == std::string_view::npos) break;
        cut = separator;
        translation = UnixNameU(PieceOf(path, whole.substr(0, cut)), world);
    }
    if (cut + 1 >= whole.size()) return translation;
    return translation + "/" + WithSeparators(whole.substr(cut + 1), '\\', '/');
}

}  // namespace vapp_platform

namespace {

template <typename Rule, typename Path>
auto InThisWorld(Rule rule, const Path& path) {
    const vapp_platform::PathRules rules = vapp_platform::CurrentPathRules();
    return rule(path, {.rules = rules, .unixSide = vapp_platform::SystemUnixSide()});
}

}  // namespace

CStringU gGetDosName(const char* path) {
    return InThisWorld(vapp_platform::DosName, path);
}

CString gGetUnixName(const CStringU& path) {
    return InThisWorld(vapp_platform::UnixName, path);
}

CStringU gGetUnixNameU(const CStringU& path) {
    return InThisWorld(vapp_platform::UnixNameU, path);
}

CStringU gGetUnixPathOf(const CStringU& path) {
    return InThisWorld(vapp_platform::UnixPathOf, path);
}

CStringU gToWindowsSeparators(const CStringU& path) {
    return vapp_platform::WithSeparators(path.PayloadView(), '/', '\\');
}
