/// @file
/// Places are bytes, lengths are characters: the one becomes the other by counting the bytes between.
#include "platform/PathCompact.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "platform/PathNames.h"

namespace vapp_platform {
namespace {

constexpr int cnDots = 4;  ///< the characters of "\..."

int CountOf(const CStringU& path, std::string_view piece) {
    return path.HasNonAscii() ? PieceOf(path, piece).GetCharCount() : static_cast<int>(piece.size());
}

/// The place of the next separator at or behind `from`; the end of the path without one.
std::size_t NextSeparator(std::string_view path, std::size_t from) noexcept {
    return std::min(FindSeparator(path, from), path.size());
}

/// Where the root ends: in front of a separator, or at the end of a path that has none there.
std::size_t RootEnd(const CStringU& path, bool isUnix, int charsBeforeName) {
    const std::string_view bytes = path.PayloadView();
    std::size_t root = isUnix ? 0 : StartOfThird(path);
    if (StartsWithTwoSeparators(bytes)) root = std::min(bytes.find('\\', root), bytes.size());
    if (charsBeforeName > 3) root = NextSeparator(bytes, root + 1);
    return root;
}

}  // namespace

CStringU CompactPath(const CStringU& path, int maximum, bool keepName) {
    const int length = path.GetCharCount();
    if (length <= maximum) return path;
    const CStringU name = GetFileName(path);
    const int nameLength = name.GetCharCount();
    if (maximum < nameLength) return keepName ? name : CStringU();

    const bool isUnix = IsUnixPath(path);
    const std::string_view bytes = path.PayloadView();
    const std::size_t rootEnd = RootEnd(path, isUnix, length - nameLength);
    const int rootLength = CountOf(path, bytes.substr(0, rootEnd));
    if (maximum < std::int64_t{rootLength} + nameLength + cnDots + 1) return name;

    // Counted away from the whole, part by part, so that no character is counted twice.
    int restLength = length - rootLength;
    std::size_t rest = rootEnd;
    while (rest < bytes.size() && rootLength + cnDots + restLength > maximum) {
        const std::size_t next = NextSeparator(bytes, rest + 1);
        restLength -= CountOf(path, bytes.substr(rest, next - rest));
        rest = next;
    }
    // A name behind a colon has no separator in front of it from which it could be shown.
    if (rest == bytes.size()) return name;
    std::string shortened(bytes.substr(0, rootEnd));
    shortened.append(isUnix ? "/..." : "\\...").append(bytes.substr(rest));
    return TextOf(shortened);
}

}  // namespace vapp_platform
