/// @file
/// A short list: usually the clients of the last transfers.
#include "platform/posix/LeftChildren.h"

#include <sys/wait.h>

#include <mutex>
#include <utility>
#include <vector>

#include "platform/posix/Retry.h"

namespace vapp_platform {

namespace {

struct LeftChildren {
    std::mutex lock;
    std::vector<OwnedHandle> processes;
};

LeftChildren& TheLeftChildren() {
    static LeftChildren children;
    return children;
}

// Also true of a child that somebody else has collected.
bool HasEnded(const OwnedHandle& process) {
    siginfo_t info{};
    const int result =
        Retry([&] { return waitid(P_PIDFD, static_cast<id_t>(process.Get()), &info, WEXITED | WNOHANG); });
    return result != 0 || info.si_pid != 0;
}

}  // namespace

void LeaveChild(OwnedHandle process) {
    LeftChildren& children = TheLeftChildren();
    const std::lock_guard guard(children.lock);
    children.processes.push_back(std::move(process));
}

void CollectLeftChildren() {
    LeftChildren& children = TheLeftChildren();
    const std::lock_guard guard(children.lock);
    std::erase_if(children.processes, HasEnded);
}

}  // namespace vapp_platform
