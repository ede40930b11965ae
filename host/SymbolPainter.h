#pragma once
/// Pictures of symbols and schematics, as the preview pane shows them: the whole drawing, fitted into the
/// picture with a margin. The painter needs a QGuiApplication for its fonts and no window.

#include <QImage>
#include <string>

#include "host/DesignStore.h"
#include "host/DisplayList.h"
#include "host/SymbolSource.h"

namespace navigator {

struct PictureRequest {
    int width = 0;     ///< In logical pixels.
    int height = 0;    ///< In logical pixels.
    double scale = 1;  ///< Device pixels for a logical one; the picture carries it as its device pixel ratio.
    bool isDark = false;
};

/// The symbols of one design.
class DesignSymbolSource : public SymbolSource {
public:
    DesignSymbolSource(DesignStore& store, const Design& design) : m_store(store), m_design(design) {}
    FoundSymbol Resolve(const std::string& library, const std::string& reference) override;

private:
    DesignStore& m_store;
    const Design& m_design;
};

/// Paints a list of strokes and texts. A request without area, or one of more than 16384 device pixels on a
/// side, gives a null image. An empty list gives the plain background.
QImage gPaintDrawing(const DisplayList& list, const PictureRequest& request);

/// Paints a view: a drawing, or the first lines of a text. A view that is not there or cannot be read gives
/// the plain background.
QImage gPaintView(DesignStore& store, const CellViewRef& view, const PictureRequest& request);

}  // namespace navigator
