#pragma once
/// The folders that were opened last, kept in the application's settings, the newest first. A folder is here
/// once, however its path was written. Whether it still exists shows when it is opened.
///
/// Folders whose names are no UTF-8 are not kept: settings are texts.

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

class CWinAppEx;

namespace navigator {

class RecentFolders {
public:
    static constexpr std::size_t cnMostKept = 8;

    /// Reads them anew: another instance may have opened one since.
    void Load(const CWinAppEx& app);
    void Store(CWinAppEx& app) const;
    /// Puts the folder in front, as an absolute path.
    void Add(const std::filesystem::path& folder);
    /// Takes out every spelling of the folder.
    void Remove(const std::filesystem::path& folder);
    /// Absolute paths, in UTF-8.
    [[nodiscard]] const std::vector<std::string>& Paths() const { return m_paths; }

private:
    std::vector<std::string> m_paths;
};

/// The path as the text of the menu's item number 1 and so on: with the number as its key, each `&` of the
/// path shown, control characters made visible, and a long path without its middle.
[[nodiscard]] std::string gRecentFolderText(int number, const std::string& path);

}  // namespace navigator
