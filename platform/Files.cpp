/// @file
/// The rules of one file; what is asked of the disk stands in FileSystem.h.
#include "platform/Files.h"

#include "platform/FileSystem.h"

using vapp_platform::TFileFacts;

bool gFileExists(const CStringU& path) {
    const std::optional<TFileFacts> found = vapp_platform::FindFile(path);
    return found && (found->attributes &
                     (vapp_platform::cnDirectoryAttribute | vapp_platform::cnDeviceAttribute)) == 0;
}

std::int64_t gGetFileSize(const CStringU& path) {
    return vapp_platform::FileSize(path);
}

std::uint64_t gGetFileWriteTime(const CStringU& path) {
    const std::optional<TFileFacts> found = vapp_platform::FindFile(path);
    return found ? found->writeTime : 0;
}

CStringU gResolveShortcut(const CStringU& path) {
    if (path.IsEmpty()) return {};
    CStringU target = vapp_platform::ShortcutTarget(path);
    return target.IsEmpty() ? path : target;
}
