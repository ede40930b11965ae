/// One handle for all folders: a watch on a folder tells of the files in it too, saved in place or not, so
/// that no file costs anything. A watch belongs to the folder and not to its name, and moves with it.

#include "host/SystemWatch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cstddef>
#include <cstring>
#include <set>
#include <utility>

namespace navigator {

namespace {

/// Writing, and not the end of it: a file that was only opened for writing has not changed.
constexpr std::uint32_t cnEvents = IN_MODIFY | IN_ATTRIB | IN_CREATE | IN_DELETE | IN_MOVED_FROM |
                                   IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF;

/// Each costs the system about a kilobyte that is never swapped out, and other programs want some too.
constexpr std::size_t cnMostFolders = 16384;

}  // namespace

class SystemWatch::Twin {
public:
    Twin(TNameTest matters, std::function<void()> changed)
        : m_handle(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)),
          m_matters(std::move(matters)),
          m_changed(std::move(changed)) {
        if (m_handle < 0) return;
        m_notifier = std::make_unique<QSocketNotifier>(m_handle, QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                         [this] { OnReadable(); });
    }
    ~Twin() {
        m_notifier.reset();
        if (m_handle >= 0) close(m_handle);
    }
    Twin(const Twin&) = delete;
    Twin& operator=(const Twin&) = delete;

    // All are asked for again: a folder that is watched already gives the number that it has, whatever it is
    // called by now, and one that took the place of another gives a new one.
    bool Watch(const WatchedFolders& wanted) {
        std::set<int> watches;
        for (const auto* const folders : {&wanted.trees, &wanted.folders}) {
            for (const std::filesystem::path& folder : *folders) {
                if (watches.size() == cnMostFolders) break;
                const int watch = inotify_add_watch(m_handle, folder.c_str(), cnEvents | IN_ONLYDIR);
                if (watch >= 0) watches.insert(watch);
            }
        }
        bool isAnyNew = false;
        for (const int watch : watches)
            isAnyNew = m_watches.erase(watch) == 0 || isAnyNew;
        // What is left is wanted no more. A folder that is gone took its watch with it, which is no harm.
        for (const int watch : m_watches)
            inotify_rm_watch(m_handle, watch);
        m_watches = std::move(watches);
        return isAnyNew;
    }

private:
    void OnReadable() {
        alignas(inotify_event) std::array<char, 65536> buffer;
        bool isChanged = false;
        for (ssize_t size = 0; (size = read(m_handle, buffer.data(), buffer.size())) > 0;)
            isChanged = HasChange(buffer.data(), static_cast<std::size_t>(size)) || isChanged;
        if (isChanged) m_changed();
    }

    [[nodiscard]] bool HasChange(const char* events, std::size_t size) const {
        bool isChanged = false;
        while (size >= sizeof(inotify_event) && !isChanged) {
            inotify_event event{};
            std::memcpy(&event, events, sizeof event);
            const NativeName name(event.len == 0 ? "" : events + sizeof event);
            // The end of a watch is told too, also of one that was ended here.
            if ((event.mask & IN_IGNORED) == 0)
                isChanged = name.empty() || m_matters(name, (event.mask & IN_ISDIR) != 0);
            events += sizeof event + event.len;
            size -= sizeof event + event.len;
        }
        return isChanged;
    }

    int m_handle;
    TNameTest m_matters;
    std::function<void()> m_changed;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::set<int> m_watches;
};

SystemWatch::SystemWatch(TNameTest matters, std::function<void()> changed)
    : m_twin(std::make_unique<Twin>(std::move(matters), std::move(changed))) {}

SystemWatch::~SystemWatch() = default;

bool SystemWatch::Watch(const WatchedFolders& folders) {
    return m_twin->Watch(folders);
}

}  // namespace navigator
