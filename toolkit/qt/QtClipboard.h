/// @file
/// The clipboard of the desktop, by Qt.
#pragma once

#include "vapp/toolkit/ClipboardPeer.h"

namespace vapp_qt {

/// Offers a text in two forms. Unicode goes as UTF-8, so that half a surrogate pair becomes a question mark;
/// the narrow form is expected in the system's code page, and where that is UTF-8, or there is no narrow
/// form, the two are one.
class QtClipboard final : public ClipboardPeer {
public:
    [[nodiscard]] bool SetText(std::u16string_view wide, std::optional<std::string_view> narrow) override;
    [[nodiscard]] std::u16string GetText() const override;
};

}  // namespace vapp_qt
