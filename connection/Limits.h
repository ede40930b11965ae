/// @file
/// How long connections wait, and how much they read for a keyword. Fixed for hosts; tests shorten them, so
/// that a worker that never comes costs milliseconds.
#pragma once

#include <chrono>

namespace vapp_connection {

/// The most bytes that a keyword is read for; a longer one never matches.
inline constexpr int cnKeywordBuffer = 4096;

struct Limits {
    /// Each wait for a socket: for the worker, for its next bytes, for room to send.
    std::chrono::milliseconds socketWait{30000};
    /// How often a pipe is looked at for the keyword, and how long the pause between two looks is: 30 seconds
    /// in all.
    int pipePolls = 120;
    std::chrono::milliseconds pipePause{250};
    /// How long a child may take to end by itself once its connection is down.
    std::chrono::milliseconds childEnd{2000};
    /// How long a child may take to be gone once it is ended by force. The system needs a moment; more only
    /// where not even it can end the child now.
    std::chrono::milliseconds forcedEnd{2000};
};

[[nodiscard]] const Limits& CurrentLimits() noexcept;

/// For tests, while no connection is at work.
void SetLimits(const Limits& limits) noexcept;

}  // namespace vapp_connection
