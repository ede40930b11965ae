/// @file
/// The walk keeps its own stack of folders, since shortcuts can string any number of them together, and each
/// folder is read once, to its end, before the first one below it is entered.
///
/// A folder is known by what the system identifies it by, so that a loop is seen whatever links and shortcuts
/// made it. Only a folder that is being walked already is skipped: one that two links lead to is walked
/// twice, as the caller sees it twice. That alone would end every walk, but folders that all link to one
/// another have more ways through them than anyone can wait for; so once a loop was met, no folder is entered
/// more often than cnMostVisits times.
#include "platform/FileWalk.h"

#include <algorithm>
#include <functional>
#include <map>
#include <string_view>
#include <utility>

#include "platform/FileSystem.h"
#include "platform/Files.h"
#include "platform/FolderReader.h"
#include "platform/NameSort.h"
#include "platform/PathRules.h"
#include "platform/Paths.h"
#include "platform/World.h"

using namespace vapp_platform;

namespace {

constexpr int cnMostVisits = 100;

// Shortcuts that lead to one another; more must be a circle.
constexpr int cnMostShortcuts = 40;

// Folder and separator. The separator is that of the folder's own world: a drive or a share keeps `\` under
// Wine.
CStringU FolderFront(const CStringU& folder) {
    const std::string_view text = folder.PayloadView();
    if (EndsWithSeparator(text)) return folder;
    const bool isWindowsPath = DriveBytes(folder) != 0 || StartsWithTwoSeparators(text);
    return folder + (CurrentWorld() == World::Wine && !isWindowsPath ? '/' : '\\');
}

bool IsShortcut(const CStringU& path) {
    return gGetExtension(path).PayloadView() == "lnk";
}

bool IsFolder(const TFolderEntry& entry) {
    return (entry.attributes & cnDirectoryAttribute) != 0;
}

// What a path stands for that may be a shortcut, to another one perhaps; empty where that leads nowhere.
CStringU EndOfShortcuts(CStringU path) {
    for (int followed = 0; IsShortcut(path); ++followed) {
        CStringU target = gResolveShortcut(path);
        if (target == path || followed == cnMostShortcuts) return {};
        path = std::move(target);
    }
    return path;
}

class TWalk {
public:
    // Whether an entry is taken. Not asked about "." and "..", and about links that lead nowhere.
    using TTakes = std::function<bool(const TFolderEntry&)>;

    explicit TWalk(TTakes takes) : m_takes(std::move(takes)) {}

    std::vector<CStringU> Run(const CStringU& path);

private:
    struct TVisits {
        int count = 0;
        bool isWalkedNow = false;
    };
    using TVisitsOf = std::map<TFolderIdentity, TVisits>;

    struct TLevel {
        CStringU front;               // of the paths of all entries
        std::vector<CStringU> below;  // names of what is to be entered
        std::size_t entered = 0;
        std::vector<CStringU> taken;  // names
        TVisits* visits = nullptr;
    };

    void Enter(const CStringU& path);
    [[nodiscard]] bool MayEnter(const TFolderReader& reader, TVisits*& visits);
    void ReadEntries(TFolderReader& reader, TLevel& level) const;
    void Leave();

    TTakes m_takes;
    std::vector<TLevel> m_levels;
    TVisitsOf m_visits;
    bool m_hasMetLoop = false;
    std::vector<CStringU> m_found;
};

std::vector<CStringU> TWalk::Run(const CStringU& path) {
    Enter(path);
    while (!m_levels.empty()) {
        TLevel& level = m_levels.back();
        if (level.entered < level.below.size()) {
            Enter(level.front + level.below[level.entered++]);
        } else {
            Leave();
        }
    }
    return std::move(m_found);
}

void TWalk::Enter(const CStringU& path) {
    const CStringU folder = EndOfShortcuts(path);
    if (folder.IsEmpty()) return;
    TLevel level;
    level.front = FolderFront(folder);
    TFolderReader reader(level.front + "*.*");
    if (!reader.IsOpen() || !MayEnter(reader, level.visits)) return;
    ReadEntries(reader, level);
    m_levels.push_back(std::move(level));
}

bool TWalk::MayEnter(const TFolderReader& reader, TVisits*& visits) {
    const auto identity = reader.Identity();
    if (!identity) return false;
    TVisits& known = m_visits[*identity];
    if (known.isWalkedNow) m_hasMetLoop = true;
    if (known.isWalkedNow || (m_hasMetLoop && known.count >= cnMostVisits)) return false;
    ++known.count;
    known.isWalkedNow = true;
    visits = &known;
    return true;
}

void TWalk::ReadEntries(TFolderReader& reader, TLevel& level) const {
    TFolderEntry entry;
    while (reader.Next(entry)) {
        if (IsDots(entry.name.PayloadView()) || entry.leadsNowhere) continue;
        if (IsFolder(entry) || IsShortcut(entry.name)) level.below.push_back(entry.name);
        if (m_takes(entry)) level.taken.push_back(entry.name);
    }
    SortNames(level.below);
    SortNames(level.taken);
}

void TWalk::Leave() {
    const TLevel& level = m_levels.back();
    for (const CStringU& name : level.taken)
        m_found.push_back(level.front + name);
    level.visits->isWalkedNow = false;
    m_levels.pop_back();
}

// The set that a text of extensions stands for; empty for all.
std::set<CStringU> SplitExtensions(const CStringU& text) {
    constexpr std::string_view cnBetween = " \t,;";
    std::set<CStringU> extensions;
    const std::string_view bytes = text.PayloadView();
    for (std::size_t begin = bytes.find_first_not_of(cnBetween); begin != std::string_view::npos;) {
        const std::size_t end = std::min(bytes.find_first_of(cnBetween, begin), bytes.size());
        const CStringU extension(bytes.data() + begin, TextEncoding::Utf8Auto, static_cast<int>(end - begin));
        if (extension == "*") return {};
        extensions.insert(extension);
        begin = bytes.find_first_not_of(cnBetween, end);
    }
    return extensions;
}

}  // namespace

std::vector<CStringU> gCollectFiles(const CStringU& path, const std::set<CStringU>& extensions,
                                    bool includeDirectories) {
    TWalk walk([&extensions, includeDirectories](const TFolderEntry& entry) {
        if (IsFolder(entry) && !includeDirectories) return false;
        return extensions.empty() || extensions.contains(gGetExtension(entry.name));
    });
    return walk.Run(path);
}

std::vector<CStringU> gCollectFiles(const CStringU& path, const CStringU& extensions,
                                    bool includeDirectories) {
    return gCollectFiles(path, SplitExtensions(extensions), includeDirectories);
}

std::vector<CStringU> gFindFiles(const CStringU& path, const CStringU& name) {
    TWalk walk([&name](const TFolderEntry& entry) { return !IsFolder(entry) && entry.name == name; });
    return walk.Run(path);
}
