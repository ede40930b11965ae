/// @file
/// The clipboard of a toolkit: what its adapter gives to the system besides peers of windows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "vapp/Export.h"

/// A clipboard that holds one text in two forms. Window thread only.
class VAPP_EXPORT ClipboardPeer {
public:
    ClipboardPeer() = default;
    ClipboardPeer(const ClipboardPeer&) = delete;
    ClipboardPeer& operator=(const ClipboardPeer&) = delete;
    virtual ~ClipboardPeer();

    /// Replaces what is on the clipboard by a text in both forms: UTF-16, and the system's code page for
    /// programs that know no other. Without a narrow form there is the Unicode one alone. False if it could
    /// not be put there.
    [[nodiscard]] virtual bool SetText(std::u16string_view wide, std::optional<std::string_view> narrow) = 0;
    /// The Unicode text on the clipboard, empty for none.
    [[nodiscard]] virtual std::u16string GetText() const = 0;
};
