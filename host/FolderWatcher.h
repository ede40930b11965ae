#pragma once
/// Tells when something in the opened folders has changed on disk. Many changes in a row are told once, when
/// they have paused; what exactly changed is for the receiver to find out.

#include <QFileSystemWatcher>
#include <QTimer>
#include <functional>

#include "host/DesignStore.h"

namespace navigator {

class FolderWatcher {
public:
    /// @param changed  called on the window thread
    explicit FolderWatcher(std::function<void()> changed);

    /// Watches the folders of all designs and libraries that the store has now.
    void Watch(const DesignStore& store);

private:
    std::function<void()> m_changed;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};

}  // namespace navigator
