/// @file
/// The search is done before the child is born: there it could not allocate.
#include "platform/posix/ProgramSearch.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <string_view>
#include <system_error>

#include "platform/posix/EnvironmentLock.h"

namespace vapp_platform {

namespace {

// What the C library searches for a process without a PATH.
constexpr std::string_view csUsualFolders = "/bin:/usr/bin";

std::string SearchedFolders() {
    const std::lock_guard guard(EnvironmentLock());
    const char* const path = std::getenv("PATH");
    return std::string(path != nullptr ? std::string_view(path) : csUsualFolders);
}

std::string Absolute(const std::string& path) {
    std::error_code failure;
    std::filesystem::path whole = std::filesystem::absolute(path, failure);
    return failure ? path : whole.string();
}

}  // namespace

std::vector<std::string> ProgramPaths(const std::string& program, bool absolute) {
    std::vector<std::string> paths;
    if (program.find('/') != std::string::npos) {
        paths.push_back(program);
    } else if (!program.empty()) {
        const std::string folders = SearchedFolders();
        for (std::size_t at = 0; at <= folders.size();) {
            const std::size_t end = std::min(folders.find(':', at), folders.size());
            // An empty folder stands for the working folder.
            const std::string folder = end > at ? folders.substr(at, end - at) : ".";
            paths.push_back(folder + '/' + program);
            at = end + 1;
        }
    }
    if (absolute) {
        for (std::string& path : paths)
            path = Absolute(path);
    }
    return paths;
}

}  // namespace vapp_platform
