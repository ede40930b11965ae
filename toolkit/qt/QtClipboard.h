/// @file
/// The clipboard of the desktop, by Qt.
#pragma once

#include <QString>

#include "vapp/toolkit/ClipboardPeer.h"

namespace vapp_qt {

/// The name by which programs of the desktop know the characters of a code page: "utf-8", "iso-8859-15",
/// "koi8-r". One that has no such name is "cp" with its number.
[[nodiscard]] QString gCharacterSetOf(unsigned codePage);

/// Offers a text in two forms. Unicode goes as UTF-8, so that half a surrogate pair becomes a question mark;
/// the narrow form is expected in the system's code page, and where that is UTF-8, or there is no narrow
/// form, the two are one.
class QtClipboard final : public ClipboardPeer {
public:
    [[nodiscard]] bool SetText(std::u16string_view wide, std::optional<std::string_view> narrow) override;
    [[nodiscard]] std::u16string GetText() const override;
};

}  // namespace vapp_qt
