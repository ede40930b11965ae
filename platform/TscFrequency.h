/// @file
/// The rate of the time-stamp counter, measured against the system's clock over a few milliseconds.
///
/// For timing measures in logs, where some percent don't matter. On a processor whose counter follows its
/// clock, the rate of that moment.
#pragma once

#include <cstdint>

namespace vapp_platform {

/// The clocks that the measure needs; the system's own, or those of a test.
class TClocks {
public:
    virtual ~TClocks() = default;
    /// Ticks of the performance counter in a second; 0 where there is no such counter.
    [[nodiscard]] virtual std::int64_t CounterFrequency() = 0;
    /// The performance counter.
    [[nodiscard]] virtual std::int64_t Counter() = 0;
    /// The time-stamp counter.
    [[nodiscard]] virtual std::uint64_t TimeStamp() = 0;
    virtual void Sleep(unsigned milliseconds) = 0;

protected:
    TClocks() = default;
    TClocks(const TClocks&) = default;
    TClocks& operator=(const TClocks&) = default;
};

/// Ticks in a second; 0.0 where a clock doesn't run.
[[nodiscard]] double TscFrequency(TClocks& clocks);

/// TscFrequency by the clocks of this machine.
[[nodiscard]] double TscFrequencyOfMachine();

}  // namespace vapp_platform
