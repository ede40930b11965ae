/// @file
/// Where shortcuts lead on a system without a shell: shell links by their bytes, symbolic links by the
/// system.
///
/// A shell link names places of another machine. Of those that mean something here the first that exists
/// counts: the network path (a shell prefers it too), the local path, the path as seen from the shortcut's
/// own folder, which is what still holds after a folder was copied to this machine. If none exists it is the
/// first one.
#include <sys/stat.h>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/PathNormalize.h"
#include "platform/PathRules.h"
#include "platform/ShellLinkFile.h"
#include "platform/WineNames.h"
#include "platform/posix/NativePath.h"
#include "platform/posix/SmallFile.h"

namespace vapp_platform {

namespace {

// Real ones have a few hundred bytes; the bound keeps a big file of another kind from being read.
constexpr std::size_t cnMostBytes = 1U << 20U;

struct TFree {
    void operator()(char* text) const noexcept { std::free(text); }
};

// The path as seen from the shortcut's folder. Names are names: nothing in them is expanded.
CStringU SeenFrom(const CStringU& shortcut, const CStringU& relativePath) {
    const vapp_text::EnvironmentLookup nothingSet = [](std::u16string_view) {
        return std::optional<std::u16string>();
    };
    const std::string_view path = shortcut.PayloadView();
    const std::size_t slash = path.find_last_of(cnSeparators);
    const std::string_view folder = path.substr(0, slash == std::string_view::npos ? 0 : slash + 1);
    return NormalizePath(PieceOf(shortcut, folder) + relativePath, {World::Wine, nothingSet});
}

std::vector<CStringU> PlacesOf(const TShellLink& link, const CStringU& shortcut) {
    std::vector<CStringU> places;
    if (!link.networkPath.IsEmpty()) places.push_back(gGetUnixPathOf(link.networkPath));
    if (!link.localPath.IsEmpty()) places.push_back(gGetUnixPathOf(link.localPath));
    if (!link.relativePath.IsEmpty()) places.push_back(SeenFrom(shortcut, link.relativePath));
    return places;
}

CStringU TargetOfShellLink(const TShellLink& link, const CStringU& shortcut) {
    const std::vector<CStringU> places = PlacesOf(link, shortcut);
    for (const CStringU& place : places) {
        if (PathExists(place)) return place;
    }
    return places.empty() ? CStringU() : places.front();
}

CStringU TargetOfSymbolicLink(const std::string& path) {
    struct stat found {};
    if (lstat(path.c_str(), &found) != 0 || !S_ISLNK(found.st_mode)) return {};
    const std::unique_ptr<char, TFree> target(realpath(path.c_str(), nullptr));
    return target != nullptr ? FromNativePath(target.get()) : CStringU();
}

}  // namespace

CStringU ShortcutTarget(const CStringU& path) {
    const std::string native = ToNativePath(path);
    if (const auto bytes = ReadSmallFile(native, cnMostBytes)) {
        if (const auto link = ReadShellLink(*bytes)) return TargetOfShellLink(*link, path);
    }
    return TargetOfSymbolicLink(native);
}

}  // namespace vapp_platform
