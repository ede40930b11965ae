/// @file
/// What TOsInfo asks of the system. Implemented once for each system; nothing here words or counts anything.
#pragma once

#include <cstdint>

#include "platform/WindowsName.h"
#include "vapp/platform/SystemStructs.h"

namespace vapp_platform {

/// The machine as the program sees it.
[[nodiscard]] TSystemInfo ReadSystemInfo() noexcept;

/// The system's version as it gives it; zeros, but for the size, where it gives none.
[[nodiscard]] TVersionInfo ReadVersionInfo() noexcept;

/// Everything that the name of a Windows is made of.
[[nodiscard]] TWindowsFacts ReadWindowsFacts();

/// The code of the edition for a version of Windows; 0 where the system names none.
[[nodiscard]] std::uint32_t ReadProductCode(std::uint32_t major, std::uint32_t minor) noexcept;

/// Whether the current user is an administrator; false also where the system doesn't say.
[[nodiscard]] bool IsUserAdministrator() noexcept;

/// Whether the primary display is Wine's. True on Linux itself, which stands for the same world.
[[nodiscard]] bool IsWineDisplaySystem() noexcept;

/// Abilities of processors by the system's numbers for them.
enum class ProcessorFeature : std::uint32_t {
    Sse = 6,
    Sse2 = 10,
};

/// Whether the processor has it; false also where the system can't be asked.
[[nodiscard]] bool HasProcessorFeature(ProcessorFeature feature) noexcept;

}  // namespace vapp_platform
