/// A handle for each tree. No names are told, and so every change below counts; a folder that is only linked
/// into the tree is not a part of it and is not followed.

#include "host/SystemWatch.h"

#include <windows.h>

#include <QWinEventNotifier>
#include <algorithm>
#include <map>
#include <utility>

namespace navigator {

namespace {

constexpr DWORD cnEvents = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME |
                           FILE_NOTIFY_CHANGE_ATTRIBUTES | FILE_NOTIFY_CHANGE_SIZE |
                           FILE_NOTIFY_CHANGE_LAST_WRITE;

bool IsBelow(const std::filesystem::path& folder, const std::filesystem::path& tree) {
    return std::mismatch(tree.begin(), tree.end(), folder.begin(), folder.end()).first == tree.end();
}

/// One folder, with all below it or without.
class Notice {
public:
    Notice(const std::filesystem::path& folder, bool isTree, const std::function<void()>& changed)
        : m_handle(FindFirstChangeNotificationW(folder.c_str(), isTree ? TRUE : FALSE, cnEvents)) {
        if (!IsOpen()) return;
        m_notifier = std::make_unique<QWinEventNotifier>(m_handle);
        QObject::connect(m_notifier.get(), &QWinEventNotifier::activated, m_notifier.get(), [this, changed] {
            // A folder that is gone tells once more and then for ever; it is heard once.
            if (FindNextChangeNotification(m_handle) == FALSE) m_notifier->setEnabled(false);
            changed();
        });
    }
    ~Notice() {
        m_notifier.reset();
        if (IsOpen()) FindCloseChangeNotification(m_handle);
    }
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;

    [[nodiscard]] bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] bool IsAlive() const { return IsOpen() && m_notifier->isEnabled(); }

private:
    HANDLE m_handle;
    std::unique_ptr<QWinEventNotifier> m_notifier;
};

}  // namespace

class SystemWatch::Twin {
public:
    explicit Twin(std::function<void()> changed) : m_changed(std::move(changed)) {}

    bool Watch(const WatchedFolders& wanted) {
        TNotices kept;
        bool isAnyNew = false;
        for (const std::filesystem::path& tree : wanted.trees)
            isAnyNew = Take(kept, tree, true) || isAnyNew;
        for (const std::filesystem::path& folder : wanted.folders) {
            const bool isCovered = std::any_of(wanted.trees.begin(), wanted.trees.end(),
                                               [&](const auto& tree) { return IsBelow(folder, tree); });
            if (!isCovered) isAnyNew = Take(kept, folder, false) || isAnyNew;
        }
        m_notices = std::move(kept);
        return isAnyNew;
    }

private:
    using TNotices = std::map<std::pair<std::filesystem::path, bool>, std::unique_ptr<Notice>>;

    // A folder that is gone keeps its handle only until then: it can't come back while somebody holds it.
    bool Take(TNotices& kept, const std::filesystem::path& folder, bool isTree) {
        std::error_code ignored;
        if (!std::filesystem::is_directory(folder, ignored)) return false;
        const auto key = std::make_pair(folder, isTree);
        if (const auto known = m_notices.find(key); known != m_notices.end() && known->second->IsAlive()) {
            kept[key] = std::move(known->second);
            m_notices.erase(known);
            return false;
        }
        auto notice = std::make_unique<Notice>(folder, isTree, m_changed);
        if (!notice->IsOpen()) return false;
        return kept.emplace(key, std::move(notice)).second;
    }

    std::function<void()> m_changed;
    TNotices m_notices;
};

SystemWatch::SystemWatch(TNameTest, std::function<void()> changed)
    : m_twin(std::make_unique<Twin>(std::move(changed))) {}

SystemWatch::~SystemWatch() = default;

bool SystemWatch::Watch(const WatchedFolders& folders) {
    return m_twin->Watch(folders);
}

}  // namespace navigator
