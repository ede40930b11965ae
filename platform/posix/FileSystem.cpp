/// @file
/// Files by stat, faccessat and mkdir. Links are followed everywhere: an entry is what it leads to, and a
/// link that leads nowhere is no entry.
#include "platform/FileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "platform/SystemError.h"
#include "platform/posix/FileFacts.h"
#include "platform/posix/NativePath.h"

namespace vapp_platform {

namespace {

// From the year 1601 to 1970.
constexpr std::int64_t cnSecondsToUnixEpoch = 11644473600;
constexpr std::int64_t cnFileTimesInSecond = 10000000;
constexpr std::int64_t cnNanosecondsInFileTime = 100;

}  // namespace

unsigned AttributesOf(mode_t mode) noexcept {
    if (S_ISDIR(mode)) return cnDirectoryAttribute;
    return S_ISREG(mode) ? 0 : cnDeviceAttribute;
}

std::uint64_t FileTimeOf(const timespec& time) noexcept {
    std::int64_t ticks = 0;
    if (__builtin_add_overflow(time.tv_sec, cnSecondsToUnixEpoch, &ticks) ||
        __builtin_mul_overflow(ticks, cnFileTimesInSecond, &ticks) ||
        __builtin_add_overflow(ticks, time.tv_nsec / cnNanosecondsInFileTime, &ticks)) {
        return time.tv_sec < 0 ? 0 : INT64_MAX;
    }
    return ticks < 0 ? 0 : static_cast<std::uint64_t>(ticks);
}

std::optional<TFileFacts> FindFile(const CStringU& path) {
    struct stat found {};
    if (stat(ToNativePath(path).c_str(), &found) != 0) return std::nullopt;
    return TFileFacts{AttributesOf(found.st_mode), FileTimeOf(found.st_mtim)};
}

bool PathExists(const CStringU& path) {
    // By the user whose rights count, as with all other calls here.
    return faccessat(AT_FDCWD, ToNativePath(path).c_str(), F_OK, AT_EACCESS) == 0;
}

std::int64_t FileSize(const CStringU& path) {
    struct stat found {};
    if (stat(ToNativePath(path).c_str(), &found) != 0) return -1;
    // What a folder itself takes on the disk is no size of anything that a caller could read.
    return S_ISDIR(found.st_mode) ? 0 : static_cast<std::int64_t>(found.st_size);
}

std::uint32_t CreateFolder(const CStringU& path) {
    constexpr mode_t cnAsTheUmaskAllows = 0777;
    if (mkdir(ToNativePath(path).c_str(), cnAsTheUmaskAllows) == 0) return 0;
    return errno == EEXIST ? cnAlreadyExistsError : LastErrorCode();
}

}  // namespace vapp_platform
