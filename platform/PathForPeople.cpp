/// @file
/// The path as a user of this world knows it.
#include "platform/WineNames.h"
#include "platform/World.h"
#include "text/PlatformPaths.h"

namespace vapp_platform {

CStringU PathForPeople(const CStringU& path) {
    const CStringU windows = gToWindowsSeparators(path);
    return gIsWine() ? gGetUnixPathOf(windows) : windows;
}

}  // namespace vapp_platform
