/// @file
/// The system's list, asked of it twice: for its size, and for itself. Between the two a processor may be
/// switched on or off.
#include "platform/ProcessorRecords.h"

#include <windows.h>

#include <algorithm>
#include <exception>

#include "platform/win32/EntryPoint.h"
#include "platform/win32/ProcessorList.h"

namespace vapp_platform {

namespace {

using TEntry = SYSTEM_LOGICAL_PROCESSOR_INFORMATION;

static_assert(sizeof(TEntry) == 32);
static_assert(RelationProcessorCore == cnRelationCore && RelationProcessorPackage == cnRelationPackage);

// More processors than come and go during a few calls can't be meant.
constexpr int cnMostCalls = 5;

// Room for that many bytes, for the system goes by what it asked for.
std::size_t EntriesFor(DWORD bytes) {
    return (std::size_t{bytes} + sizeof(TEntry) - 1) / sizeof(TEntry);
}

std::vector<TProcessorRecord> RecordsOf(const std::vector<TEntry>& list, DWORD bytes) {
    std::vector<TProcessorRecord> records;
    for (std::size_t i = 0; i < std::min(list.size(), bytes / sizeof(TEntry)); ++i) {
        records.push_back(
            {.mask = list[i].ProcessorMask, .relation = static_cast<std::uint32_t>(list[i].Relationship)});
    }
    return records;
}

}  // namespace

std::optional<std::vector<TProcessorRecord>> ReadProcessorList(TReadList readList) {
    std::vector<TEntry> list;
    DWORD bytes = 0;
    for (int call = 0; call < cnMostCalls; ++call) {
        if (readList(list.empty() ? nullptr : list.data(), &bytes) != 0) {
            return list.empty() ? std::nullopt : std::optional(RecordsOf(list, bytes));
        }
        if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) return std::nullopt;
        list.resize(EntriesFor(bytes));
        bytes = static_cast<DWORD>(list.size() * sizeof(TEntry));
    }
    return std::nullopt;
}

std::optional<std::vector<TProcessorRecord>> ReadProcessorRecords() noexcept try {
    const auto readList = KernelEntryPoint<TReadList>("GetLogicalProcessorInformation");
    return readList != nullptr ? ReadProcessorList(readList) : std::nullopt;
} catch (const std::exception&) {
    return std::nullopt;
}

}  // namespace vapp_platform
