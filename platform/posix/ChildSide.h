/// @file
/// What a child does between its birth and its program. Until then it runs in the memory of the parent,
/// beside the parent's other threads, so it takes no lock, allocates nothing and touches nothing but its
/// plan.
#pragma once

#include "platform/ChildProcess.h"

namespace vapp_platform {

/// Made by the parent, whole, before the birth; the last two are the child's answer.
struct ChildPlan {
    /// The paths that the program can have, tried in order; ends with null.
    const char* const* programs = nullptr;
    /// Ends with null.
    char* const* arguments = nullptr;
    char* const* environment = nullptr;
    /// Null for the parent's own.
    const char* folder = nullptr;
    /// What becomes standard input, output and error.
    int streams[3] = {-1, -1, -1};

    StartStep failed = StartStep::None;
    int code = 0;
};

/// Carries the plan out; comes back only where it failed. The argument is a ChildPlan. To be called with
/// every signal blocked.
int RunChildSide(void* plan) noexcept;

/// Blocks every signal, also those that the C library keeps for itself, as long as the object lives: none of
/// the host's handlers may run in a child that still has the host's memory.
class AllSignalsBlocked {
public:
    AllSignalsBlocked() noexcept;
    AllSignalsBlocked(const AllSignalsBlocked&) = delete;
    AllSignalsBlocked& operator=(const AllSignalsBlocked&) = delete;
    ~AllSignalsBlocked();

private:
    unsigned long long m_before = 0;
};

}  // namespace vapp_platform
