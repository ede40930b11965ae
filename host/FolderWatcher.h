#pragma once
/// Tells when something in the opened folders has changed on disk. Many changes in a row are told once, when
/// they have paused; what exactly changed is for the receiver to find out.

#include <QDeadlineTimer>
#include <QTimer>
#include <functional>

#include "host/DesignStore.h"
#include "host/SystemWatch.h"

namespace navigator {

class FolderWatcher {
public:
    /// @param changed  called on the window thread
    explicit FolderWatcher(std::function<void()> changed);

    /// Watches all that the store has read: designs, libraries, and cells and views that are folders. To be
    /// called again when the store has opened or read a folder.
    void Watch(const DesignStore& store);

private:
    void OnChange();

    std::function<void()> m_changed;
    QTimer m_pause;
    QDeadlineTimer m_latest;
    bool m_isWatching = false;
    // Last: it may still tell something while it goes.
    SystemWatch m_system;
};

}  // namespace navigator
