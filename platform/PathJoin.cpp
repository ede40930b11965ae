/// @file
/// All by bytes: what is looked at is separators, colons and ASCII letters.
#include "platform/PathJoin.h"

#include <algorithm>
#include <string>

#include "platform/PathNames.h"
#include "platform/PathNormalize.h"

namespace vapp_platform {
namespace {

/// What is left of `base` in front of a path that starts with a separator.
std::string_view RootFor(const CStringU& base) {
    const std::string_view bytes = base.PayloadView();
    if (StartsWithTwoSeparators(bytes)) {
        const std::size_t behindServer = FindSeparator(bytes, 3);
        if (behindServer == cnNone) return bytes;
        return bytes.substr(0, FindSeparator(bytes, behindServer + 1));
    }
    if (const std::size_t drive = DriveBytes(base); drive > 0) return bytes.substr(0, drive);
    return EndsWithSeparator(bytes) ? bytes.substr(0, bytes.size() - 1) : bytes;
}

char ToUpperAscii(char byte) noexcept {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - ('a' - 'A')) : byte;
}

/// How far two paths go together.
struct CommonPart {
    std::size_t length = 0;              ///< bytes, all of them if one path begins with the other
    std::size_t lastSeparator = cnNone;  ///< the place of the last separator that both have
    std::size_t separators = 0;          ///< how many both have
};

CommonPart CompareFromStart(std::string_view base, std::string_view path) noexcept {
    CommonPart common;
    const std::size_t shorter = std::min(base.size(), path.size());
    for (std::size_t& at = common.length; at < shorter; ++at) {
        if (ToUpperAscii(base[at]) != ToUpperAscii(path[at])) break;
        if (IsSeparator(base[at])) {
            common.lastSeparator = at;
            ++common.separators;
        }
    }
    return common;
}

/// Whether there is a way at all between two paths with that much in common.
bool ShareRoot(const CStringU& base, const CommonPart& common, World world) {
    if (common.lastSeparator == cnNone || common.lastSeparator < 2) return false;
    if (DriveBytes(base) > 0) return true;
    if (world == World::Wine && IsUnixPath(base)) return true;
    return common.lastSeparator > 4 && common.separators > 3 && StartsWithTwoSeparators(base.PayloadView());
}

/// A step up for each folder of `rest`, which is what `base` has behind the last common separator.
std::size_t StepsUp(std::string_view rest) noexcept {
    const auto separators =
        static_cast<std::size_t>(std::count_if(rest.begin(), rest.end(), IsSeparator<char>));
    return separators + (rest.empty() || EndsWithSeparator(rest) ? 0U : 1U);
}

std::string WayBetween(const CStringU& baseText, const CStringU& pathText, World world) {
    const std::string_view base = baseText.PayloadView();
    const std::string_view path = pathText.PayloadView();
    const CommonPart common = CompareFromStart(base, path);
    if (common.length == base.size()) {
        if (EndsWithSeparator(base)) return std::string(path.substr(base.size()));
        if (StartsWithSeparator(path.substr(base.size()))) return std::string(path.substr(base.size() + 1));
    }
    if (!ShareRoot(baseText, common, world)) return std::string(path);
    const std::size_t first = common.lastSeparator + 1;
    const std::size_t steps = StepsUp(base.substr(first));
    std::string way;
    way.reserve(steps * 3 + path.size() - first);
    for (std::size_t step = 0; step < steps; ++step)
        way += world == World::Wine ? "../" : "..\\";
    return way.append(path.substr(first));
}

}  // namespace

CStringU JoinPath(const CStringU& base, const CStringU& relative, const PathRules& rules) {
    if (base.IsEmpty() || IsAbsolutePath(relative, rules)) return NormalizePath(relative, rules);
    const std::string_view behind = relative.PayloadView();
    std::string_view front = base.PayloadView();
    bool separate = false;
    if (StartsWithSeparator(behind)) {
        front = RootFor(base);
    } else {
        separate = !behind.empty() && !EndsWithSeparator(front) && !front.ends_with(':');
    }
    std::string joined;
    joined.reserve(front.size() + behind.size() + 1);
    joined.append(front).append(separate ? "\\" : "").append(behind);
    return NormalizePath(TextOf(joined), rules);
}

CStringU ResolvePath(const CStringU& base, const CStringU& path, const PathRules& rules) {
    return JoinPath(base, path, rules);
}

CStringU MakeRelativePath(const CStringU& base, const CStringU& path, const PathRules& rules) {
    const bool hasWay = !base.IsEmpty() && IsAbsolutePath(path, rules);
    if (!hasWay && rules.world == World::Windows) return path;
    std::string way = hasWay ? WayBetween(base, path, rules.world) : std::string(path.PayloadView());
    if (rules.world == World::Wine) std::replace(way.begin(), way.end(), '\\', '/');
    return TextOf(way);
}

}  // namespace vapp_platform
