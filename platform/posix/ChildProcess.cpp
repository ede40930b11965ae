/// @file
/// The child is born by clone as vfork would do it: in the parent's memory, with the calling thread held
/// until the program runs, so that a start takes the same time from a small process and from a huge one.
/// clone instead of the library's spawn because it gives a descriptor of the process together with the
/// process: an id that is looked up afterwards can already be somebody else's where the host ignores SIGCHLD
/// or collects every child.
#include "platform/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/CommandLine.h"
#include "platform/FaultPoint.h"
#include "platform/posix/ChildSide.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/EnvironmentLock.h"
#include "platform/posix/LeftChildren.h"
#include "platform/posix/NativePath.h"
#include "platform/posix/NativeText.h"
#include "platform/posix/Poll.h"
#include "platform/posix/ProgramSearch.h"
#include "platform/posix/Retry.h"

// The other name of clone. Under the first one ThreadSanitizer takes the call for a fork, and undoes locks
// that here are still the parent's.
extern "C" int __clone(int (*run)(void*), void* stack, int flags, void* argument, ...) noexcept;  // NOLINT

namespace vapp_platform {

namespace {

/// Texts as the null-ended array of pointers that a start takes.
class TextArray {
public:
    explicit TextArray(std::vector<std::string> texts) : m_texts(std::move(texts)) {
        for (std::string& text : m_texts)
            m_pointers.push_back(text.data());
        m_pointers.push_back(nullptr);
    }
    [[nodiscard]] char* const* Get() const { return m_pointers.data(); }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers;
};

CStringU AsText(const std::string& piece) {
    return {piece.c_str(), TextEncoding::Utf8Auto};
}

// NATIVE: the program is a path, in which `\` separates; the arguments are whatever they are.
void MakeNative(std::vector<std::string>& arguments) {
    for (std::string& argument : arguments) {
        argument =
            &argument == arguments.data() ? ToNativePath(AsText(argument)) : NativeText(AsText(argument));
    }
}

std::vector<std::string> Entries(std::span<const wchar_t> block) {
    std::vector<std::string> entries;
    std::wstring_view rest(block.data(), block.size());
    while (!rest.empty() && rest.front() != L'\0') {
        const std::size_t length = std::min(rest.find(L'\0'), rest.size());
        entries.push_back(NativeFromWide(rest.substr(0, length)));
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    return entries;
}

// The pointers are copied, the texts are not: the C library never frees a text that it has set, but it moves
// the array.
std::vector<char*> OwnEnvironment() {
    std::vector<char*> entries;
    const std::lock_guard guard(EnvironmentLock());
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry)
        entries.push_back(*entry);
    entries.push_back(nullptr);
    return entries;
}

struct Birth {
    OwnedHandle process;
    int id = -1;
    int code = 0;
};

Birth GiveBirth(ChildPlan& plan) {
    // The child's stack; this frame outlives it, as the thread is held until the child has its program.
    alignas(16) std::array<std::byte, 16384> stack;
    int descriptor = -1;
    Birth birth;
    const AllSignalsBlocked blocked;
    birth.id = __clone(RunChildSide, stack.data() + stack.size(),
                       CLONE_VM | CLONE_VFORK | CLONE_PIDFD | SIGCHLD, &plan, &descriptor);
    if (birth.id < 0) {
        birth.code = errno;
    } else {
        birth.process = OwnedHandle(descriptor);
    }
    return birth;
}

StartResult Failed(StartStep step, int code) {
    StartResult result;
    result.failed = step;
    result.code = code;
    return result;
}

// The child of a failed start has ended, or is about to.
void CollectFailed(const OwnedHandle& process) {
    siginfo_t info{};
    Retry([&] { return waitid(P_PIDFD, static_cast<id_t>(process.Get()), &info, WEXITED); });
}

}  // namespace

StartResult ChildProcess::Start(const ChildStart& start) {
    if (const int fault = FaultOf(SystemCall::StartProcess); fault != 0) {
        return Failed(StartStep::Process, fault);
    }
    CollectLeftChildren();

    std::vector<std::string> arguments = SplitCommandLine(start.commandLine.PayloadView());
    if (arguments.empty()) return Failed(StartStep::Program, ENOENT);
    MakeNative(arguments);
    const std::string folder = ToNativePath(start.workingFolder);
    const TextArray programs(ProgramPaths(arguments.front(), !folder.empty()));
    const TextArray argumentArray(std::move(arguments));
    const TextArray entries(Entries(start.environment));
    const std::vector<char*> own = start.environment.empty() ? OwnEnvironment() : std::vector<char*>();

    if (const int fault = FaultOf(SystemCall::PlaceStreams); fault != 0) {
        return Failed(StartStep::Streams, fault);
    }
    const OwnedHandle nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
    if (!nothing.IsOpen()) return Failed(StartStep::Streams, errno);
    const auto stream = [&](NativeHandle handle) {
        return handle != cnNoHandle ? static_cast<int>(handle) : Descriptor(nothing);
    };

    ChildPlan plan;
    plan.programs = programs.Get();
    plan.arguments = argumentArray.Get();
    plan.environment = start.environment.empty() ? own.data() : entries.Get();
    plan.folder = folder.empty() ? nullptr : folder.c_str();
    plan.streams[0] = stream(start.input);
    plan.streams[1] = stream(start.output);
    plan.streams[2] = stream(start.error);

    Birth birth = GiveBirth(plan);
    if (birth.id < 0) return Failed(StartStep::Process, birth.code);
    if (plan.failed != StartStep::None) {
        CollectFailed(birth.process);
        return Failed(plan.failed, plan.code);
    }
    StartResult result;
    result.child.reset(new ChildProcess(std::move(birth.process), static_cast<std::uint32_t>(birth.id)));
    return result;
}

ChildProcess::ChildProcess(OwnedHandle process, std::uint32_t id) noexcept
    : m_process(std::move(process)), m_id(id) {}

ChildProcess::~ChildProcess() {
    if (GetExitStatus().kind == ExitKind::Running) LeaveChild(std::move(m_process));
}

bool ChildProcess::WaitFor(std::chrono::milliseconds limit) {
    pollfd one[] = {{Descriptor(m_process), POLLIN, 0}};
    return PollFor(one, limit) > 0;
}

ExitStatus ChildProcess::GetExitStatus() {
    if (m_status.kind != ExitKind::Running) return m_status;
    siginfo_t info{};
    const int result =
        Retry([&] { return waitid(P_PIDFD, static_cast<id_t>(m_process.Get()), &info, WEXITED | WNOHANG); });
    if (result != 0) {
        // Collected by somebody else; until its end a child can't be collected, so it has ended.
        m_status = {ExitKind::Unknown, 0};
    } else if (info.si_pid != 0) {
        const bool byItself = info.si_code == CLD_EXITED;
        m_status = {byItself ? ExitKind::Exited : ExitKind::Killed, info.si_status};
        if (m_terminated && !byItself && info.si_status == SIGKILL) m_status = {ExitKind::Forced, 1};
    }
    return m_status;
}

bool ChildProcess::Terminate() {
    if (GetExitStatus().kind != ExitKind::Running) return true;
    m_terminated = true;
    return syscall(SYS_pidfd_send_signal, Descriptor(m_process), SIGKILL, nullptr, 0) == 0 || errno == ESRCH;
}

}  // namespace vapp_platform
