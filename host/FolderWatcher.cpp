/// Folders only, for they tell of their files too: a watch on each file would cost a handle for every view of
/// a large library. The folders of cells and views come last, where the system limits their count.

#include "host/FolderWatcher.h"

#include <utility>
#include <vector>

namespace navigator {

namespace fs = std::filesystem;

namespace {

/// Long enough for a tool to finish writing a library, short enough to be taken for "at once".
constexpr int cnPauseMilliseconds = 200;
/// A tool that writes on and on is not waited for longer than this.
constexpr int cnLongestMilliseconds = 2000;

bool Matters(const NativeName& name, bool isFolder) {
    return isFolder ? !gIsHiddenName(name) : gMayBeView(name);
}

WatchedFolders FoldersOf(const DesignStore& store) {
    WatchedFolders wanted;
    std::vector<fs::path> cells;
    std::vector<fs::path> views;
    for (const Design& design : store.Designs()) {
        std::error_code ignored;
        wanted.trees.push_back(design.folder);
        // The folder above tells when a design comes back.
        if (!fs::is_directory(design.folder, ignored)) {
            const fs::path above = fs::absolute(design.folder, ignored).parent_path();
            if (!above.empty()) wanted.folders.push_back(above);
        }
        for (const Library& library : design.libraries) {
            wanted.folders.push_back(library.folder);
            for (const NativeName& cell : library.cellFolders)
                cells.push_back(library.folder / fs::path(cell));
            for (const auto* const files : {&library.files, &library.shadowed}) {
                for (const ViewFile& file : *files)
                    if (file.isFolder) views.push_back(library.folder / fs::path(file.file));
            }
        }
    }
    wanted.folders.insert(wanted.folders.end(), cells.begin(), cells.end());
    wanted.folders.insert(wanted.folders.end(), views.begin(), views.end());
    return wanted;
}

}  // namespace

FolderWatcher::FolderWatcher(std::function<void()> changed)
    : m_changed(std::move(changed)), m_system(&Matters, [this] { OnChange(); }) {
    m_pause.setSingleShot(true);
    QObject::connect(&m_pause, &QTimer::timeout, &m_pause, [this] { m_changed(); });
}

void FolderWatcher::OnChange() {
    if (!m_pause.isActive()) m_latest.setRemainingTime(cnLongestMilliseconds);
    m_pause.start(static_cast<int>(qMin<qint64>(cnPauseMilliseconds, m_latest.remainingTime())));
}

void FolderWatcher::Watch(const DesignStore& store) {
    // What came into a new folder after it was read and before it was watched is found by one more look.
    const bool isAnyNew = m_system.Watch(FoldersOf(store));
    if (std::exchange(m_isWatching, true) && isAnyNew) OnChange();
}

}  // namespace navigator
