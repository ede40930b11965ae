#pragma once
/// The colours of drawings: one table for both themes. A file names layers by number; numbers beyond the
/// table go round the decorative ones, so that no layer is ever invisible.

#include <QColor>

namespace navigator {

/// Colour of a layer's strokes and texts.
QColor gLayerColour(int layer, bool isDark);

/// Colour behind all.
QColor gDrawingBackground(bool isDark);

/// Colour of what could not be found.
QColor gMissingColour(bool isDark);

}  // namespace navigator
