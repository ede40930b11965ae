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

/// Puts a text on the clipboard, as Unicode and in the active code page. True if both were taken.
VAPP_EXPORT bool SetClipboardText(const CStringU& text);

/// The Unicode text on the clipboard; empty text for none, and for any failure.
[[nodiscard]] VAPP_EXPORT CStringU GetClipboardText();
