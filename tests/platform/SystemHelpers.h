/// @file
/// What the tests ask of the system itself; written once for each system.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/OwnedHandle.h"

namespace platform_test {

/// Standard input, output or error (0, 1, 2) of this process.
[[nodiscard]] vapp_platform::NativeHandle StandardStream(int number);
/// How many handles this process has open.
[[nodiscard]] int CountOpenHandles();
/// Whether a process with this id runs; one that has ended and waits to be collected doesn't.
[[nodiscard]] bool IsRunning(std::uint32_t id);
/// The system's number of the calling thread.
[[nodiscard]] std::uint32_t OwnThreadId();
/// Waits until a thread of this process sleeps in the system; false where it has ended. Where the system
/// doesn't tell that (Windows) the thread is given many turns instead.
bool WaitUntilAsleep(std::uint32_t thread);
/// Whether the system tells which of its threads sleep.
[[nodiscard]] bool TellsSleep();
/// How many calls this thread has made that read from a descriptor; none where the system doesn't tell.
[[nodiscard]] std::optional<std::int64_t> CountReadCalls();
/// Makes this process deaf to polite requests to end.
void IgnoreRequestsToEnd();
/// What only this system's children can say about themselves, by the name of a question; empty for none.
[[nodiscard]] std::string AnswerAboutSelf(const std::string& question);

}  // namespace platform_test
