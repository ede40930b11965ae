/// @file
/// The rules of translation; the names of the process's own world are one line each.
#include "platform/WineNames.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "platform/PathNames.h"
#include "platform/PathNormalize.h"
#include "text/Codec.h"

namespace vapp_platform {

namespace {

// Characters of a head that can have a name: in the end it is one of Linux, which takes at most as many
// bytes.
constexpr int cnLongestHead = 4096;

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

// In the side's own bytes; nothing where nobody can be asked.
std::optional<CString> NameOnUnixSide(const CStringU& path, const TNameWorld& world) {
    if (world.rules.world != World::Wine) return std::nullopt;
    if (IsAbsoluteUnderWine(path, world.rules)) return world.unixSide.UnixFileName(path);
    return world.unixSide.UnixNameOfText(WithSeparators(path.PayloadView(), '\\', '/'));
}

bool IsUnixCandidate(const char* path) {
    const std::string_view text = CString::ViewOf(path);
    return !text.empty() && text.front() != '\\' && !(text.size() >= 2 && text[1] == ':');
}

// The place behind that many characters, or the end.
std::size_t BehindCharacters(std::string_view text, int count) {
    std::int64_t place = 0;
    for (; count > 0 && static_cast<std::size_t>(place) < text.size(); --count)
        place = vapp_text::StepForward(text.data(), place);
    return static_cast<std::size_t>(place);
}

// The next cut to the left: the last `\` in front of `cut`, at most at `limit`. Of several in a row only the
// outer two are cuts, for the heads that end between them are names of the same.
std::size_t NextCut(std::string_view whole, std::size_t cut, std::size_t limit) {
    if (cut == 0) return std::string_view::npos;
    std::size_t separator = whole.rfind('\\', std::min(cut - 1, limit));
    if (separator != std::string_view::npos && separator + 1 == cut) {
        while (separator > 0 && whole[separator - 1] == '\\')
            --separator;
    }
    return separator;
}

}  // namespace

CStringU DosName(const char* path, const TNameWorld& world) {
    if (world.rules.world == World::Wine && IsUnixCandidate(path)) {
        if (std::optional<CStringU> name = world.unixSide.DosFileName(path)) return *std::move(name);
    }
    return gToWindowsSeparators(world.unixSide.TextOfPlainPath(path));
}

CString UnixName(const CStringU& path, const TNameWorld& world) {
    return NameOnUnixSide(path, world).value_or(path.StripMarker());
}

CStringU UnixNameU(const CStringU& path, const TNameWorld& world) {
    const CStringU dosPath = gToWindowsSeparators(path);
    const std::optional<CString> name = NameOnUnixSide(dosPath, world);
    return name ? world.unixSide.TextOfUnixName(*name) : dosPath;
}

// Each turn cuts the head at a separator further left. The first asks for the whole, as long as it may be;
// heads that are longer than any name are passed over, for asking for every one of a path of a million
// separators would not end in anybody's lifetime.
CStringU UnixPathOf(const CStringU& path, const TNameWorld& world) {
    if (IsUnixPath(path)) return path;
    const std::string_view whole = path.PayloadView();
    const std::size_t limit = BehindCharacters(whole, cnLongestHead);
    CStringU translation = UnixNameU(path, world);
    std::size_t cut = whole.size();
    while (translation.IsEmpty()) {
        const std::size_t next = NextCut(whole, cut, limit);
        if (next == std::string_view::npos) break;
        cut = next;
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
