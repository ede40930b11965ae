/// @file
/// A flag that is set for the length of a block, against coming back into what is running. It tells nobody
/// and is no lock: all windows belong to one thread.
#pragma once

#include <utility>

/// Sets the flag, and puts back what it was, also when an exception ends the block.
class FlagGuard {
public:
    explicit FlagGuard(bool& flag) : m_flag(flag), m_before(std::exchange(flag, true)) {}
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;
    ~FlagGuard() { m_flag = m_before; }

private:
    bool& m_flag;
    bool m_before;
};
