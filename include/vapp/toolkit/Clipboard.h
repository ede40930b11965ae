/// @file
/// The text on the clipboard.
///
/// Whose clipboard: that of the system where it has one (Windows), otherwise that of the installed toolkit
/// adapter (PeerFactory), and with no adapter, or one without a clipboard, memory of the process. A clipboard
/// that fails is not replaced by another: the caller is told.
///
/// Not for dragged cells or other data. To be called on the window thread.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

/// Puts a text on the clipboard, as Unicode and in the system's code page, which other programs expect
/// whatever code page is the active one here. True if both were taken. Half a surrogate pair survives only
/// where the clipboard holds UTF-16: a toolkit whose clipboard holds UTF-8 makes another character of it.
VAPP_EXPORT bool SetClipboardText(const CStringU& text);

/// Puts a text on the clipboard as Unicode alone; programs that know no Unicode see what the system makes of
/// it, if anything. True if it was taken.
VAPP_EXPORT bool SetClipboardUnicodeText(const CStringU& text);

/// The Unicode text on the clipboard; empty text for none, and for any failure.
[[nodiscard]] VAPP_EXPORT CStringU GetClipboardText();
