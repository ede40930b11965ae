/// @file
/// Where a test makes a system call fail that doesn't fail by itself on a healthy machine.
///
/// For the calls that set a connection up, and for what a start asks of the machine. Not on the way of data:
/// what can go wrong there is made to go wrong for real. Without a source of faults a point costs one relaxed
/// load.
#pragma once

namespace vapp_platform {

/// The calls that can be made to fail.
enum class SystemCall {
    CreatePipe,
    KeepFromChildren,
    CloseHandle,
    StartProcess,
    /// Puts the streams of a child in place.
    PlaceStreams,
    StartSocketLibrary,
    ResolveAddress,
    CreateSocket,
    ReuseAddress,
    Bind,
    GetSocketName,
    /// The code stands for the address family that the system reports.
    AddressFamily,
    Listen,
    WaitForSocket,
    Accept,
    AskProcessor,
};

/// Asked before each such call, from any thread: the code that it is to fail with, 0 to let it be made.
using FaultSource = int (*)(SystemCall call);

/// Sets the source for the whole process, for tests; null for none.
void SetFaultSource(FaultSource source) noexcept;

/// What the source says; 0 without one.
[[nodiscard]] int FaultOf(SystemCall call);

}  // namespace vapp_platform
