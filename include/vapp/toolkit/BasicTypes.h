/// @file
/// The handful of system types that stand in signatures of the toolkit: colours, message parameters, opaque
/// handles. On Windows they are the system's own, and so is its header, included here before any of our
/// classes: a host may include it in either order. Elsewhere they are ours, of the same width and meaning.
#pragma once

#include <cstdint>

#if defined(_WIN32)
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
// The system's header names these calls by macros, which would rename members of ours in whatever is compiled
// behind it. They become functions of the same use, so that both kinds of names hold.
#undef GetProfileInt
#undef GetProfileString
#undef GetWindowText
#undef SendMessage
#undef SetWindowText
#undef WriteProfileString
#ifdef UNICODE
#define VAPP_SYSTEM_CALL(name) name##W
#else
#define VAPP_SYSTEM_CALL(name) name##A
#endif
static inline UINT GetProfileInt(LPCTSTR section, LPCTSTR entry, INT standard) {
    return VAPP_SYSTEM_CALL(GetProfileInt)(section, entry, standard);
}
static inline DWORD GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR standard, LPTSTR out,
                                     DWORD room) {
    return VAPP_SYSTEM_CALL(GetProfileString)(section, entry, standard, out, room);
}
static inline int GetWindowText(HWND window, LPTSTR out, int room) {
    return VAPP_SYSTEM_CALL(GetWindowText)(window, out, room);
}
static inline LRESULT SendMessage(HWND window, UINT message, WPARAM first, LPARAM second) {
    return VAPP_SYSTEM_CALL(SendMessage)(window, message, first, second);
}
static inline BOOL SetWindowText(HWND window, LPCTSTR text) {
    return VAPP_SYSTEM_CALL(SetWindowText)(window, text);
}
static inline BOOL WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR text) {
    return VAPP_SYSTEM_CALL(WriteProfileString)(section, entry, text);
}
#undef VAPP_SYSTEM_CALL
#else
/// Opaque picture; a toolkit adapter says what stands behind the pointer.
struct HBITMAP__;  // NOLINT(bugprone-reserved-identifier): the name that the system gives it
using HBITMAP = HBITMAP__*;
/// Opaque module that holds resources.
struct HINSTANCE__;  // NOLINT(bugprone-reserved-identifier): the name that the system gives it
using HINSTANCE = HINSTANCE__*;
using UINT = std::uint32_t;
using DWORD = std::uint32_t;
/// A colour: red in the low byte, green above it, blue in the high one of three.
using COLORREF = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
// Styles of message boxes: buttons in the lowest four bits, the icon in the next four.
inline constexpr UINT MB_OK = 0x00;
inline constexpr UINT MB_OKCANCEL = 0x01;
inline constexpr UINT MB_YESNOCANCEL = 0x03;
inline constexpr UINT MB_YESNO = 0x04;
inline constexpr UINT MB_ICONERROR = 0x10;
inline constexpr UINT MB_ICONQUESTION = 0x20;
inline constexpr UINT MB_ICONWARNING = 0x30;
inline constexpr UINT MB_ICONINFORMATION = 0x40;
// Answers of message boxes and dialogs, and the numbers of the buttons that give them.
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;
#endif

/// "No colour of its own": whoever paints takes the default.
inline constexpr COLORREF cnNoColor = 0xFFFFFFFFu;
