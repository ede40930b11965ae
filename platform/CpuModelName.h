/// @file
/// What a processor is called in logs and support reports.
///
/// Not a catalogue: the tables end with the processors that needed telling apart when they were made, and a
/// newer one is told by its numbers, which say as much to whoever reads the report.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/Cpuid.h"
#include "vapp/text/CStringU.h"

namespace vapp_platform {

/// The numbers by which a maker tells its processors apart.
struct TCpuModel {
    std::uint32_t family = 0;
    std::uint32_t extendedFamily = 0;
    std::uint32_t model = 0;
    std::uint32_t extendedModel = 0;

    bool operator==(const TCpuModel&) const = default;
};

/// The name in the maker's table: "GenuineIntel" has one, all others share the second. Numbers that are not
/// in it are told in words.
[[nodiscard]] CStringU CpuModelName(const CStringU& vendor, const TCpuModel& model);

/// The four numbers in EAX of leaf 1.
[[nodiscard]] TCpuModel CpuModelOf(std::uint32_t leaf1Eax) noexcept;

/// Gives one leaf of CPUID; the processor itself, or a test.
using TCpuidReader = std::function<TCpuidRegisters(std::uint32_t leaf)>;

/// The vendor, a blank, and the name of the model. A processor without leaf 1 has zeros for numbers.
[[nodiscard]] CStringU CpuName(const TCpuidReader& readCpuid);

}  // namespace vapp_platform
