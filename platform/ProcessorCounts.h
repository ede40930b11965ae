/// @file
/// How many processors there are, counted from the system's list of cores and packages.
///
/// The list comes in as a value: each system reads its own (ReadProcessorRecords), and tests write theirs.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace vapp_platform {

/// What a record tells of; others are skipped. The numbers are those of Windows.
inline constexpr std::uint32_t cnRelationCore = 0;
inline constexpr std::uint32_t cnRelationPackage = 3;

/// One core or package. A logical processor of it is one bit of the mask; which bit says nothing here.
struct TProcessorRecord {
    std::uint64_t mask = 0;
    std::uint32_t relation = cnRelationCore;

    bool operator==(const TProcessorRecord&) const = default;
};

/// How logical processors are laid out. The numbers are fixed: reports hold them.
enum class ProcessorLayout {
    OneCoreThreaded = 1,
    OneCore = 4,
    ManyCores = 5,
    ManyCoresThreaded = 6,
    Unknown = 8,
};

/// The counts; all 1 where nothing could be found out.
struct TProcessorCounts {
    std::uint32_t logical = 1;
    std::uint32_t cores = 1;
    std::uint32_t packages = 1;
    ProcessorLayout layout = ProcessorLayout::Unknown;
};

/// Counts the records; nullopt is a list that the system didn't give. A list without cores, or with more of
/// them than of logical processors, tells nothing.
[[nodiscard]] TProcessorCounts CountProcessors(
    const std::optional<std::vector<TProcessorRecord>>& records) noexcept;

}  // namespace vapp_platform
