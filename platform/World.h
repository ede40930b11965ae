/// @file
/// Which of two worlds the process lives in: plain Windows, or Wine on Linux, where a path can also be
/// "/home/me/file".
///
/// A native Linux build has the world of Wine: there the Unix side is the only one. Rules that depend on it
/// take the world as a value, so that both are tested on either system; the exported names ask gIsWine.
#pragma once

#include <optional>

/// Whether the process runs under Wine, or natively on Linux. One answer for the whole run. Any thread.
[[nodiscard]] bool gIsWine() noexcept;

namespace vapp_platform {

/// The two worlds of paths.
enum class World {
    Windows,
    Wine,
};

/// What gIsWine answers, as a world.
[[nodiscard]] World CurrentWorld() noexcept;

/// Whether this is a Windows program that Wine runs. False on native Linux, where gIsWine is true: for what
/// only mends a weakness of Wine's.
[[nodiscard]] bool IsWindowsUnderWine() noexcept;

/// What the system itself says, asked at each call. Implemented once for each system.
[[nodiscard]] bool IsWineSystem() noexcept;
/// Whether this build is for Windows. Implemented once for each system.
[[nodiscard]] bool IsWindowsBuild() noexcept;

/// Switches the answers of gIsWine and IsWindowsUnderWine for the whole process, for tests; nullopt returns
/// to the system's own.
void SetWineAnswer(std::optional<bool> answer) noexcept;

}  // namespace vapp_platform
