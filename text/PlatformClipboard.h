/// @file
/// What the clipboard asks of the platform, where the system has one that belongs to no toolkit.
///
/// Implemented once for each system in platform/posix and platform/win32. Not for callers: they go through
/// the toolkit, which knows the other clipboards too.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vapp_platform {

/// True where the system has a clipboard of its own. Otherwise the other calls fail.
[[nodiscard]] bool HasSystemClipboard() noexcept;

/// Replaces what is on the clipboard by one text in two forms, UTF-16 and the system's code page; a NUL is
/// put behind each. Without a narrow one the system may make that form itself. False if the clipboard can't
/// be had or doesn't take what is given. To be called on a thread that the system lets open the clipboard.
[[nodiscard]] bool SetSystemClipboardText(std::u16string_view wide,
                                          std::optional<std::string_view> narrow) noexcept;

/// The UTF-16 text on the clipboard, up to its NUL; empty where there is none or it can't be had.
[[nodiscard]] std::u16string GetSystemClipboardText();

}  // namespace vapp_platform
