/// @file
/// Bare system calls only. The C library's wrappers are left out where they would do more than call (those
/// for signals hide two of them), and those of the sanitizers, which would write down in the parent's memory
/// that the parent had closed its descriptors.
#include "platform/posix/ChildSide.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

// The parent's memory is not marked by code that runs in the child.
#define VAPP_CHILD_SIDE __attribute__((no_sanitize("address", "thread", "undefined")))

namespace vapp_platform {

namespace {

using SignalSet = unsigned long long;

constexpr int cnSignals = 64;
constexpr int cnStreams = 3;

// The kernel's own form of struct sigaction.
struct KernelSignalAction {
    void (*handler)(int);
    unsigned long flags;
    void (*restorer)();
    SignalSet mask;
};

VAPP_CHILD_SIDE void ResetHandlers() noexcept {
    const KernelSignalAction byDefault = {SIG_DFL, 0, nullptr, 0};
    for (int number = 1; number <= cnSignals; ++number) {
        if (number == SIGKILL || number == SIGSTOP) continue;
        syscall(SYS_rt_sigaction, number, &byDefault, nullptr, sizeof(SignalSet));
    }
}

VAPP_CHILD_SIDE bool PlaceStreams(int* streams) noexcept {
    // First above the standard numbers, so that placing one never overwrites another.
    for (int number = 0; number < cnStreams; ++number) {
        if (streams[number] >= cnStreams) continue;
        const long moved = syscall(SYS_fcntl, streams[number], F_DUPFD_CLOEXEC, cnStreams);
        if (moved < 0) return false;
        streams[number] = static_cast<int>(moved);
    }
    for (int number = 0; number < cnStreams; ++number) {
        // Where both numbers differ, as they do here, the copy stays open behind the exec.
        if (syscall(SYS_dup3, streams[number], number, 0) < 0) return false;
    }
    return true;
}

// The number that a name is; -1 for a name that is none.
VAPP_CHILD_SIDE long NumberOf(const char* name) noexcept {
    long number = *name == '\0' ? -1 : 0;
    for (; *name != '\0'; ++name) {
        if (*name < '0' || *name > '9') return -1;
        number = number * 10 + (*name - '0');
    }
    return number;
}

// The kernel's own form of an entry of a folder.
struct KernelFolderEntry {
    unsigned long long inode;
    long long offset;
    unsigned short length;
    unsigned char type;
    char name[1];
};

// By the list that the kernel keeps: the limit of descriptors can be a thousand million, and one that was
// lowered later is below what is open. An entry is found by its number, so closing on the way skips none.
VAPP_CHILD_SIDE bool CloseListed() noexcept {
    const long folder = syscall(SYS_openat, AT_FDCWD, "/proc/self/fd", O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (folder < 0) return false;
    alignas(KernelFolderEntry) char entries[1024];
    while (true) {
        const long size = syscall(SYS_getdents64, folder, entries, sizeof entries);
        if (size <= 0) break;
        for (long at = 0; at < size;) {
            const auto* const entry = reinterpret_cast<const KernelFolderEntry*>(entries + at);
            const long number = NumberOf(entry->name);
            if (number >= cnStreams && number != folder) syscall(SYS_close, number);
            at += entry->length;
        }
    }
    syscall(SYS_close, folder);
    return true;
}

VAPP_CHILD_SIDE void CloseOthers() noexcept {
    if (syscall(SYS_close_range, cnStreams, ~0U, 0) == 0) return;
    // A kernel without that call, or one that is told to refuse it.
    if (CloseListed()) return;
    constexpr long cnMost = 65536;
    for (long number = cnStreams; number < cnMost; ++number)
        syscall(SYS_close, number);
}

// As the C library searches: a folder that is away, be it only its server, does not end the search.
VAPP_CHILD_SIDE bool IsPassedOver(int code) noexcept {
    return code == ENOENT || code == ENOTDIR || code == EACCES || code == ESTALE || code == ENODEV ||
           code == ETIMEDOUT;
}

VAPP_CHILD_SIDE int RunProgram(const ChildPlan& plan) noexcept {
    bool refused = false;
    for (const char* const* program = plan.programs; *program != nullptr; ++program) {
        syscall(SYS_execve, *program, plan.arguments, plan.environment);
        const int code = errno;
        refused = refused || code == EACCES;
        if (!IsPassedOver(code)) return code;
    }
    return refused ? EACCES : ENOENT;
}

VAPP_CHILD_SIDE int Fail(ChildPlan& plan, StartStep step, int code) noexcept {
    plan.failed = step;
    plan.code = code;
    return 1;
}

}  // namespace

VAPP_CHILD_SIDE int RunChildSide(void* argument) noexcept {
    auto& plan = *static_cast<ChildPlan*>(argument);
    ResetHandlers();
    if (!PlaceStreams(plan.streams)) return Fail(plan, StartStep::Streams, errno);
    CloseOthers();
    if (plan.folder != nullptr && syscall(SYS_chdir, plan.folder) != 0) {
        return Fail(plan, StartStep::Folder, errno);
    }
    const SignalSet none = 0;
    syscall(SYS_rt_sigprocmask, SIG_SETMASK, &none, nullptr, sizeof none);
    return Fail(plan, StartStep::Program, RunProgram(plan));
}

AllSignalsBlocked::AllSignalsBlocked() noexcept {
    const SignalSet all = ~0ULL;
    static_assert(sizeof m_before == sizeof all);
    syscall(SYS_rt_sigprocmask, SIG_SETMASK, &all, &m_before, sizeof all);
}

AllSignalsBlocked::~AllSignalsBlocked() {
    syscall(SYS_rt_sigprocmask, SIG_SETMASK, &m_before, nullptr, sizeof m_before);
}

}  // namespace vapp_platform
