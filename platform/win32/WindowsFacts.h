/// @file
/// The facts of Windows by calls that are told, so that a test can have them fail.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/WindowsName.h"

namespace vapp_platform {

using TReadVersion = BOOL(WINAPI*)(OSVERSIONINFOA* version);
using TReadProduct = BOOL(WINAPI*)(DWORD major, DWORD minor, DWORD packMajor, DWORD packMinor, DWORD* code);

/// The numbers of the version and its service pack, or the text of the error with which the call failed. What
/// isn't part of the version is left as it is by default.
[[nodiscard]] TWindowsFacts VersionFactsBy(TReadVersion readVersion);

/// The code of the edition; 0 where there is no such call (null), or it fails.
[[nodiscard]] std::uint32_t ProductCodeBy(TReadProduct readProduct, std::uint32_t major,
                                          std::uint32_t minor) noexcept;

}  // namespace vapp_platform
