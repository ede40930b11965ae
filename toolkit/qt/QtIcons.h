/// @file
/// The pictures of the adapter by their numbers: drawn from the files of the folder icons in the size that is
/// wanted, so that they are sharp on every screen, and with the colour that is wanted for lines, so that they
/// can be seen in every theme.
#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>
#include <QString>

#include "vapp/toolkit/BasicTypes.h"

class QPainter;

namespace vapp_qt {

/// Draws an icon of the rows' strip into the middle of the rectangle, `ink` for its outlines. The strip knows
/// 1 locked, 3 fab, 6 V-Cell, 13 standard via, 16 guard ring, 19 custom via, each but the first with its
/// locked form one above; any other number draws nothing.
void gDrawStripIcon(QPainter& painter, const QRectF& area, int icon, const QColor& ink);
/// What an icon of the strip means, for assistive technology; empty for numbers without a picture.
[[nodiscard]] QString gStripIconName(int icon);
/// Draws the picture with a resource number: 366 an unresolved and 367 a read-only library, 562 a list to
/// open, 564 a cross that clears; any other number draws nothing.
void gDrawResource(QPainter& painter, const QRectF& area, UINT resource, const QColor& ink);
/// What a mark of a library (366, 367) means; empty for other numbers.
[[nodiscard]] QString gLibraryMarkName(UINT resource);
/// The same as an icon for buttons, in the palette's colours.
[[nodiscard]] QIcon gResourceIcon(UINT resource);
/// That of a picture by the name of its file, without the ending; a text that stays.
[[nodiscard]] QIcon gPictureIcon(const char* file);

}  // namespace vapp_qt
