/// @file
/// What the processor tells of itself: the CPUID instruction and the time-stamp counter.
///
/// The only place that knows the instruction set; both systems run on x86-64, so there is no pair of twins.
#pragma once

#include <cstdint>

namespace vapp_platform {

/// The four registers of one answer of CPUID.
struct TCpuidRegisters {
    std::uint32_t eax = 0;
    std::uint32_t ebx = 0;
    std::uint32_t ecx = 0;
    std::uint32_t edx = 0;
};

/// The answer for one leaf. In leaf 0 EAX is the highest leaf; the answer for one above it means nothing.
[[nodiscard]] TCpuidRegisters ReadCpuid(std::uint32_t leaf) noexcept;

/// The time-stamp counter, in ticks.
[[nodiscard]] std::uint64_t ReadTimeStampCounter() noexcept;

}  // namespace vapp_platform
