/// @file
/// NATIVE: texts on their way between controls and Qt. Captions of controls are in the active code page,
/// texts of the system (CStringU) are UTF-8 with its marker, Qt's are UTF-16.
#pragma once

#include <QString>

#include "vapp/text/CStringU.h"

namespace vapp_qt {

[[nodiscard]] QString gToQString(const CStringU& text);
/// A control's text, read in the active code page.
[[nodiscard]] QString gToQString(const CString& text);
/// A text of the system; it ends at the first NUL.
[[nodiscard]] CStringU gToText(const QString& text);
/// For a control; characters that the active code page lacks become its default character.
[[nodiscard]] CString gToControlText(const QString& text);
/// The text where `&` would mark a key: each doubled, so that it is shown.
[[nodiscard]] QString gWithoutMnemonics(QString text);

}  // namespace vapp_qt
