/// @file
/// The system's list, asked of it twice: for its size, and for itself.
#include "platform/ProcessorRecords.h"

#include <windows.h>

#include <exception>

#include "platform/win32/EntryPoint.h"

namespace vapp_platform {

namespace {

using TReadList = BOOL(WINAPI*)(SYSTEM_LOGICAL_PROCESSOR_INFORMATION*, DWORD*);

static_assert(sizeof(SYSTEM_LOGICAL_PROCESSOR_INFORMATION) == 32);
static_assert(RelationProcessorCore == cnRelationCore && RelationProcessorPackage == cnRelationPackage);

std::optional<std::vector<TProcessorRecord>> ReadRecords(TReadList readList) {
    DWORD bytes = 0;
    if (readList(nullptr, &bytes) != 0 || GetLastError() != ERROR_INSUFFICIENT_BUFFER) return std::nullopt;
    std::vector<SYSTEM_LOGICAL_PROCESSOR_INFORMATION> list(bytes /
                                                           sizeof(SYSTEM_LOGICAL_PROCESSOR_INFORMATION));
    if (list.empty() || readList(list.data(), &bytes) == 0) return std::nullopt;
    std::vector<TProcessorRecord> records;
    for (const SYSTEM_LOGICAL_PROCESSOR_INFORMATION& entry : list) {
        records.push_back(
            {.mask = entry.ProcessorMask, .relation = static_cast<std::uint32_t>(entry.Relationship)});
    }
    return records;
}

}  // namespace

std::optional<std::vector<TProcessorRecord>> ReadProcessorRecords() noexcept try {
    const auto readList = KernelEntryPoint<TReadList>("GetLogicalProcessorInformation");
    return readList != nullptr ? ReadRecords(readList) : std::nullopt;
} catch (const std::exception&) {
    return std::nullopt;
}

}  // namespace vapp_platform
