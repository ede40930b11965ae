/// @file
/// Counts who is using a resource, so that closing it from another thread never pulls it away under a call:
/// whoever comes out last gives the resource back.
///
/// It guards numbers that the system would hand out again, a descriptor above all: closed under a blocked
/// call, its number can already belong to somebody else's file.
#pragma once

#include <atomic>
#include <cstdint>

namespace vapp_platform {

/// Any thread may call any operation. The owner counts as a user until Close.
class UseGate {
public:
    /// True: the caller may use the resource, and must Leave. False once the gate is closed.
    [[nodiscard]] bool Enter() noexcept {
        std::uint32_t state = m_state.load(std::memory_order_relaxed);
        do {
            if ((state & cnClosed) != 0) return false;
        } while (!m_state.compare_exchange_weak(state, state + 1, std::memory_order_acq_rel,
                                                std::memory_order_relaxed));
        return true;
    }
    /// True for the one who leaves last behind a Close: the caller gives the resource back.
    [[nodiscard]] bool Leave() noexcept {
        return m_state.fetch_sub(1, std::memory_order_acq_rel) == (cnClosed | 1U);
    }
    /// Lets nobody in any more. True for the first caller, who wakes the users and then calls Leave for the
    /// owner.
    [[nodiscard]] bool Close() noexcept {
        return (m_state.fetch_or(cnClosed, std::memory_order_acq_rel) & cnClosed) == 0;
    }
    [[nodiscard]] bool IsClosed() const noexcept {
        return (m_state.load(std::memory_order_acquire) & cnClosed) != 0;
    }
    /// True while somebody beside the owner is inside.
    [[nodiscard]] bool HasUsers() const noexcept {
        return (m_state.load(std::memory_order_acquire) & ~cnClosed) > 1;
    }

private:
    static constexpr std::uint32_t cnClosed = 0x80000000U;

    std::atomic<std::uint32_t> m_state = 1;
};

}  // namespace vapp_platform
