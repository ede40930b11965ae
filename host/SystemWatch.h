#pragma once
/// What the system itself tells of changes below folders. It says that something changed, and neither what
/// nor whether it matters; who hears of it looks for himself. Each system has its twin in `posix/` and
/// `win32/`.
///
/// The surprise: opening a file for writing and closing it untouched is no change. The host does that itself,
/// to learn whether a file is locked, and would answer itself for ever.

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "host/DisplayName.h"

namespace navigator {

struct WatchedFolders {
    /// Folders that are watched with all that is below them, where the system can do that with one handle.
    std::vector<std::filesystem::path> trees;
    /// Folders that are watched for themselves, the most important first: where the system takes no whole
    /// trees, and where it limits the count, the last ones are left out.
    std::vector<std::filesystem::path> folders;
};

class SystemWatch {
public:
    /// Names of files that are looked at; where the system tells no names, all are.
    using TNameTest = std::function<bool(const NativeName& name, bool isFolder)>;

    /// @param matters  asked for the name of what changed
    /// @param changed  called on the window thread, many times for many changes
    SystemWatch(TNameTest matters, std::function<void()> changed);
    ~SystemWatch();
    SystemWatch(const SystemWatch&) = delete;
    SystemWatch& operator=(const SystemWatch&) = delete;

    /// Watches these from now on, and nothing else. Folders that cannot be watched are left out. True if some
    /// were not watched before: what happened in them until now was told by nobody.
    bool Watch(const WatchedFolders& folders);

private:
    class Twin;
    std::unique_ptr<Twin> m_twin;
};

}  // namespace navigator
