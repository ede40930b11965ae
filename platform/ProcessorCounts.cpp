/// @file
/// Cores are counted by their records, logical processors by the bits of these.
#include "platform/ProcessorCounts.h"

#include <bit>

namespace vapp_platform {

namespace {

ProcessorLayout LayoutOf(std::uint32_t logical, std::uint32_t cores) noexcept {
    if (cores == 0 || logical < cores) return ProcessorLayout::Unknown;
    const bool threaded = logical > cores;
    if (cores == 1) return threaded ? ProcessorLayout::OneCoreThreaded : ProcessorLayout::OneCore;
    return threaded ? ProcessorLayout::ManyCoresThreaded : ProcessorLayout::ManyCores;
}

}  // namespace

TProcessorCounts CountProcessors(const std::optional<std::vector<TProcessorRecord>>& records) noexcept {
    if (!records) return {};
    TProcessorCounts counts{.logical = 0, .cores = 0, .packages = 0};
    for (const TProcessorRecord& record : *records) {
        if (record.relation == cnRelationCore) {
            ++counts.cores;
            counts.logical += static_cast<std::uint32_t>(std::popcount(record.mask));
        } else if (record.relation == cnRelationPackage) {
            ++counts.packages;
        }
    }
    counts.layout = LayoutOf(counts.logical, counts.cores);
    return counts.layout == ProcessorLayout::Unknown ? TProcessorCounts{} : counts;
}

}  // namespace vapp_platform
