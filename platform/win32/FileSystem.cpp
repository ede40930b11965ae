/// @file
/// Files by the wide Win32 calls. NATIVE: all paths go out in UTF-16, that of FileSize in the ANSI code page.
#include "platform/FileSystem.h"

#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <string>

namespace vapp_platform {

namespace {

std::uint64_t FileTimeOf(const FILETIME& time) {
    return std::uint64_t{time.dwHighDateTime} << 32U | time.dwLowDateTime;
}

}  // namespace

std::optional<TFileFacts> FindFile(const CStringU& path) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(path.ToStdWstring().c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return std::nullopt;
    FindClose(search);
    return TFileFacts{found.dwFileAttributes, FileTimeOf(found.ftLastWriteTime)};
}

bool PathExists(const CStringU& path) {
    return _waccess(path.ToStdWstring().c_str(), 0) == 0;
}

std::int64_t FileSize(const CStringU& path) {
    struct __stat64 found {};
    return _stat64(path.ToAnsi(GetACP()).GetString(), &found) == 0 ? found.st_size : -1;
}

std::uint32_t CreateFolder(const CStringU& path) {
    return CreateDirectoryW(path.ToStdWstring().c_str(), nullptr) != 0 ? 0 : GetLastError();
}

}  // namespace vapp_platform
