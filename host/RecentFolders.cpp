/// The list, its folding by path, and its place in the settings.

#include "host/RecentFolders.h"

#include <algorithm>

#include "host/DisplayName.h"
#include "host/PathText.h"
#include "host/Utf8.h"
#include "vapp/toolkit/CWinAppEx.h"

namespace navigator {

namespace fs = std::filesystem;

namespace {

constexpr char csRecentFoldersSection[] = "RecentFolders";
/// Characters of a path that a menu shows at most, and how many of them stand in front of the gap.
constexpr std::size_t cnLongestShown = 60;
constexpr std::size_t cnShownInFront = 20;

CString KeyOf(std::size_t index) {
    return ("Folder" + std::to_string(index + 1)).c_str();
}

fs::path Absolute(const fs::path& folder) {
    std::error_code error;
    fs::path path = fs::absolute(folder, error);
    path = (error ? folder : path).lexically_normal();
    // "lib/" is "lib": the last name of the first is empty.
    return path.has_filename() || !path.has_parent_path() ? path : path.parent_path();
}

/// What is equal for all spellings of one folder; a folder that is gone is known by its path alone.
fs::path IdentityOf(const fs::path& folder) {
    std::error_code error;
    const fs::path path = fs::weakly_canonical(folder, error);
    return error ? Absolute(folder) : Absolute(path);
}

std::size_t CountCharacters(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !gIsContinuation(byte); }));
}

/// Where the character with this number begins.
std::size_t BeginOf(const std::string& text, std::size_t character) {
    std::size_t at = 0;
    for (std::size_t passed = 0; at < text.size(); ++at) {
        if (!gIsContinuation(text[at]) && passed++ == character) break;
    }
    return at;
}

std::string WithoutMiddle(const std::string& path) {
    const std::size_t count = CountCharacters(path);
    if (count <= cnLongestShown) return path;
    const std::size_t behind = cnLongestShown - cnShownInFront - 1;
    return path.substr(0, BeginOf(path, cnShownInFront)) + "\xE2\x80\xA6" +
           path.substr(BeginOf(path, count - behind));
}

}  // namespace

void RecentFolders::Load(const CWinAppEx& app) {
    m_paths.clear();
    for (std::size_t index = cnMostKept; index-- > 0;) {
        const std::string path = app.GetProfileString(csRecentFoldersSection, KeyOf(index)).GetString();
        if (!path.empty()) Add(gPathOf(path));
    }
}

void RecentFolders::Store(CWinAppEx& app) const {
    for (std::size_t index = 0; index < cnMostKept; ++index)
        app.WriteProfileString(csRecentFoldersSection, KeyOf(index),
                               index < m_paths.size() ? m_paths[index].c_str() : "");
}

void RecentFolders::Add(const fs::path& folder) {
    if (folder.empty()) return;
    const fs::path path = Absolute(folder);
    const std::string text = gDisplayName(path.native());
    if (gPathOf(text) != path) return;
    Remove(path);
    m_paths.insert(m_paths.begin(), text);
    if (m_paths.size() > cnMostKept) m_paths.resize(cnMostKept);
}

void RecentFolders::Remove(const fs::path& folder) {
    const fs::path identity = IdentityOf(folder);
    std::erase_if(m_paths, [&](const std::string& path) { return IdentityOf(gPathOf(path)) == identity; });
}

std::string gRecentFolderText(int number, const std::string& path) {
    std::string text = '&' + std::to_string(number) + "  ";
    for (const char byte : WithoutMiddle(path)) {
        if (byte == '&') text += '&';
        // A tabulator would begin the column of the shortcuts.
        text += static_cast<unsigned char>(byte) < ' ' || byte == '\x7F' ? '?' : byte;
    }
    return text;
}

}  // namespace navigator
