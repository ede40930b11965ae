/// @file
/// A program started from here: start, bounded wait, exit status, forced end.
///
/// The child gets the three streams that it is given and no other handle of this process. On Linux its
/// signals and its signal mask are at their defaults, and its id can't be mistaken: it is waited for and
/// killed by a descriptor of the process itself. The host's own children and handlers are left alone: nothing
/// here waits for "any child" or counts on SIGCHLD, and a host that ignores it, or that collects every child,
/// only takes away the exit status.
///
/// The surprise: the program is the first argument of a command line with Windows' quoting (CommandLine.h),
/// and on Linux a `\` in it counts as `/`.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/OwnedHandle.h"
#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// What to start, and with what.
struct ChildStart {
    CStringU commandLine;
    /// NUL-separated entries NAME=value, ended by an empty one or by the end; empty for the process's own
    /// environment.
    std::span<const wchar_t> environment;
    /// Where the child works; empty for the process's own folder. The program is looked for from here, not
    /// from there.
    CStringU workingFolder;
    /// The standard streams; without one the child finds the null device there, or nothing (Windows). Behind
    /// the start, also one that fails, no other child of this process inherits them.
    NativeHandle input = cnNoHandle;
    NativeHandle output = cnNoHandle;
    NativeHandle error = cnNoHandle;
};

/// How far a start got that failed.
enum class StartStep {
    None,
    /// The system gave no process.
    Process,
    /// The streams could not be put in place.
    Streams,
    /// The working folder could not be entered.
    Folder,
    /// The program was not found, may not be run, or is none.
    Program,
};

/// How a child has ended.
enum class ExitKind {
    Running,
    /// By itself; the code is its exit status.
    Exited,
    /// By Terminate, whose status is 1.
    Forced,
    /// By a signal that did not come from Terminate; the code is its number.
    Killed,
    /// It has ended, and somebody else has collected how.
    Unknown,
};

struct ExitStatus {
    ExitKind kind = ExitKind::Running;
    int code = 0;
};

class ChildProcess;

/// A child, or why there is none.
struct StartResult {
    std::unique_ptr<ChildProcess> child;
    StartStep failed = StartStep::None;
    /// The system's code of the failure.
    int code = 0;
};

/// A started child. For one thread at a time.
class ChildProcess {
public:
    /// Starts a program with its window hidden. A program that can't be run is a failure of this call: no
    /// child is left of it.
    [[nodiscard]] static StartResult Start(const ChildStart& start);

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    /// Lets go of the child: a running one runs on. On Linux it is collected at a later start, once it has
    /// ended.
    ~ChildProcess();

    /// Waits for the child's end; false if it still runs when the limit is over.
    bool WaitFor(std::chrono::milliseconds limit);
    /// How it stands with the child, asked of the system: a child that exits with the number that stands for
    /// "still active" on Windows has exited.
    [[nodiscard]] ExitStatus GetExitStatus();
    /// Ends a running child by force; nothing happens to one that has ended, nor ever to another process.
    /// False if the system refuses.
    bool Terminate();
    /// The system's number of the child.
    [[nodiscard]] std::uint32_t GetId() const noexcept { return m_id; }

private:
    ChildProcess(OwnedHandle process, std::uint32_t id) noexcept;

    OwnedHandle m_process;
    std::uint32_t m_id;
    ExitStatus m_status;
    bool m_terminated = false;
};

}  // namespace vapp_platform
