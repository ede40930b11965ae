/// @file
/// Colours of the logic as Qt's, and texts that stay readable when a control's colour meets a palette's.
#pragma once

#include <QColor>
#include <QFont>

#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CFont.h"

namespace vapp_qt {

/// The colour; `fallback` for cnNoColor.
[[nodiscard]] QColor gToQColor(COLORREF color, const QColor& fallback);
/// `preferred` if it stands out from the background, else black or white, whichever does. A control may ask
/// for a background of its own and leave the text to a palette that was chosen for another background.
[[nodiscard]] QColor gReadableOn(const QColor& background, const QColor& preferred);
/// As much of `wanted` as stands out from the background, mixed with a colour that does.
[[nodiscard]] QColor gTintedOn(const QColor& background, const QColor& wanted, const QColor& readable);
/// The colour itself if it stands out from the background; else one of its hue that does, lighter on a dark
/// background and darker on a light one. Of two such colours the stronger one stays the stronger.
[[nodiscard]] QColor gLegibleOn(const QColor& background, const QColor& color);
/// A colour between two: `percent` of the first.
[[nodiscard]] QColor gMixed(const QColor& first, const QColor& second, int percent);
/// The control's font in the wanted weight and slant.
[[nodiscard]] QFont gToQFont(QFont base, const CFont& variation);

}  // namespace vapp_qt
