/// @file
/// From /proc. A child is killed by a descriptor, behind which it is looked at once more.
#include "tests/soak/OwnUse.h"

#include <dirent.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "tests/platform/SystemHelpers.h"

namespace soak_test {

namespace {

bool IsChild(const std::string& id) {
    std::ifstream file("/proc/" + id + "/stat");
    std::string all;
    std::getline(file, all);
    const auto behindName = all.rfind(')');
    if (behindName == std::string::npos) return false;
    // Behind the name: a blank, the state, a blank, the parent.
    return std::atoi(all.c_str() + behindName + 4) == getpid();
}

std::vector<std::string> Children() {
    std::vector<std::string> children;
    DIR* const folder = opendir("/proc");
    for (const dirent* entry = readdir(folder); entry != nullptr; entry = readdir(folder)) {
        const std::string name = entry->d_name;
        if (name.find_first_not_of("0123456789") == std::string::npos && IsChild(name))
            children.push_back(name);
    }
    closedir(folder);
    return children;
}

std::size_t ResidentBytes() {
    std::ifstream file("/proc/self/statm");
    std::size_t size = 0;
    std::size_t resident = 0;
    file >> size >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

const int cnHandleSlack = 0;

// A child can be killed from its very birth on.
void SayIAmBorn() {}

OwnUse MeasureOwnUse() {
    return {platform_test::CountOpenHandles(), Children().size(), ResidentBytes()};
}

std::size_t KillChildren() {
    std::size_t killed = 0;
    for (const std::string& child : Children()) {
        const long process = syscall(SYS_pidfd_open, std::atoi(child.c_str()), 0);
        if (process < 0) continue;
        if (IsChild(child) && syscall(SYS_pidfd_send_signal, process, SIGKILL, nullptr, 0) == 0) ++killed;
        close(static_cast<int>(process));
    }
    return killed;
}

void Crash() {
    const rlimit none{};
    setrlimit(RLIMIT_CORE, &none);
    signal(SIGSEGV, SIG_DFL);
    raise(SIGSEGV);
    std::abort();
}

}  // namespace soak_test
