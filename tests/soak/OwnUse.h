/// @file
/// What this process holds of the system, and what its children are; written once for each system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace soak_test {

/// What a connection that is gone must not leave behind.
struct OwnUse {
    int handles = 0;
    /// Those that run, and on Linux those that nobody has collected.
    std::size_t children = 0;
    /// Bytes of memory that are this process's own and in use.
    std::size_t memory = 0;
};

[[nodiscard]] OwnUse MeasureOwnUse();

/// Handles that the system itself opens and closes in this process as it likes.
extern const int cnHandleSlack;

/// To be said first by every child: from then on it can be killed.
void SayIAmBorn();

/// Ends the children of this process by force; how many. Never hits another process, also where a child's
/// number becomes somebody else's meanwhile.
std::size_t KillChildren();

/// Ends this process as a crash does, without leaving a picture of its memory or a debugger behind.
[[noreturn]] void Crash();

// What is freed stays in use where a sanitizer keeps it to find late uses.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool cbMemoryCounts = false;
#else
inline constexpr bool cbMemoryCounts = true;
#endif

}  // namespace soak_test
