/// @file
/// The style of both themes: Fusion, with those lines and pictures in the palette's colours that it draws for
/// light palettes only.
#pragma once

#include <QProxyStyle>

namespace vapp_qt {

class QtThemeStyle : public QProxyStyle {
public:
    QtThemeStyle();

    /// Menus and boxes of check marks get a border that can be seen on any background.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// Lines between the items of a menu are seen as well.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    /// No light shadow under greyed texts: on a dark background it is brighter than the text.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    /// The pictures in the titles of docked panes, and those of message boxes, sharp at every scale.
    [[nodiscard]] QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                                     const QWidget* widget) const override;
};

}  // namespace vapp_qt
