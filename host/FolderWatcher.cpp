/// Folders only: a watch on each file would cost a handle for every view of a large library, and a file that
/// is saved by way of a temporary one changes its folder anyway.

#include "host/FolderWatcher.h"

#include <QFile>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <utility>

namespace navigator {

namespace {

/// Long enough for a tool to finish writing a library, short enough to be taken for "at once".
constexpr int cnPauseMilliseconds = 200;

QString NameOf(const std::filesystem::path& path) {
    return QFile::decodeName(path.string().c_str());
}

}  // namespace

FolderWatcher::FolderWatcher(std::function<void()> changed) : m_changed(std::move(changed)) {
    m_pause.setSingleShot(true);
    m_pause.setInterval(cnPauseMilliseconds);
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_pause,
                     [this] { m_pause.start(); });
    QObject::connect(&m_pause, &QTimer::timeout, &m_pause, [this] { m_changed(); });
}

void FolderWatcher::Watch(const DesignStore& store) {
    QSet<QString> folders;
    for (const Design& design : store.Designs()) {
        folders.insert(NameOf(design.folder));
        for (const Library& library : design.libraries)
            folders.insert(NameOf(library.folder));
    }
    const QStringList watched = m_watcher.directories();
    QSet<QString> gone(watched.begin(), watched.end());
    gone.subtract(folders);
    folders.subtract(QSet<QString>(watched.begin(), watched.end()));
    if (!gone.isEmpty()) m_watcher.removePaths(gone.values());
    // Folders that can't be watched (gone, or too many for the system) are left out: "database rescan" still
    // works.
    if (!folders.isEmpty()) m_watcher.addPaths(folders.values());
}

}  // namespace navigator
