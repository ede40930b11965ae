/// @file
/// The handful of system types that stand in signatures of the toolkit: colours, message parameters, opaque
/// handles. On Windows they are the very types of the system's headers, declared compatibly so that those
/// headers need not be included here; elsewhere they are ours, of the same width and meaning.
#pragma once

#include <cstdint>

#if defined(_WIN32)
struct HBITMAP__;  // NOLINT(bugprone-reserved-identifier): the name that the system gives it
using HBITMAP = HBITMAP__*;
using UINT = unsigned int;
using DWORD = unsigned long;
using COLORREF = DWORD;
using WPARAM = unsigned long long;
using LPARAM = long long;
using LRESULT = long long;
#else
/// Opaque picture; a toolkit adapter says what stands behind the pointer.
struct HBITMAP__;  // NOLINT(bugprone-reserved-identifier): the name that the system gives it
using HBITMAP = HBITMAP__*;
using UINT = std::uint32_t;
using DWORD = std::uint32_t;
/// A colour: red in the low byte, green above it, blue in the high one of three.
using COLORREF = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
#endif

/// "No colour of its own": whoever paints takes the default.
inline constexpr COLORREF cnNoColor = 0xFFFFFFFFu;
