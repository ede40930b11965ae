/// @file
/// The system's list of processors by a call that is told, so that a test can have it fail or change its
/// mind.
#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "platform/ProcessorCounts.h"

namespace vapp_platform {

using TReadList = BOOL(WINAPI*)(SYSTEM_LOGICAL_PROCESSOR_INFORMATION* list, DWORD* bytes);

/// As many whole records as the last call gave; nullopt where it gave no list. The call is asked for the size
/// and then for the list, a few times more where the list has become longer meanwhile.
[[nodiscard]] std::optional<std::vector<TProcessorRecord>> ReadProcessorList(TReadList readList);

}  // namespace vapp_platform
