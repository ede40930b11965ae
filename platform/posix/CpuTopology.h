/// @file
/// Cores and packages from the kernel's folder of processors, which is a folder like any other: tests write
/// one of their own.
///
/// Processors that are switched off don't count. A core is told by the list of its siblings, since the
/// kernel's core numbers repeat from package to package.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/ProcessorCounts.h"

namespace vapp_platform {

/// The numbers of a list such as "0-3,8"; nullopt for anything else, and for numbers no kernel has.
[[nodiscard]] std::optional<std::vector<unsigned>> ParseCpuList(std::string_view text);

/// One record for each core and each package below a folder like the kernel's /sys/devices/system/cpu;
/// nullopt where it doesn't tell them for every processor that is switched on.
[[nodiscard]] std::optional<std::vector<TProcessorRecord>> ReadCpuTopology(
    const std::filesystem::path& folder);

}  // namespace vapp_platform
