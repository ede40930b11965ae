/// @file
/// Fusion makes its lines by darkening the window's colour, which leaves nothing of them in a dark theme.
/// Here they are a share of the text's colour.
#include "toolkit/qt/QtThemeStyle.h"

#include <QPainter>
#include <QStyleOption>

#include "toolkit/qt/QtColor.h"
#include "toolkit/qt/QtIcons.h"

namespace vapp_qt {

namespace {

constexpr int cnBorderPercent = 40;
constexpr int cnSeparatorPercent = 22;
constexpr int cnSeparatorMargin = 5;

struct IconEntry {
    QStyle::StandardPixmap picture;
    const char* file;
};
constexpr IconEntry cnIcons[] = {
    {QStyle::SP_TitleBarNormalButton, "float"},
    {QStyle::SP_TitleBarCloseButton, "clear"},
    {QStyle::SP_MessageBoxInformation, "message-information"},
    {QStyle::SP_MessageBoxQuestion, "message-question"},
    {QStyle::SP_MessageBoxWarning, "message-warning"},
    {QStyle::SP_MessageBoxCritical, "message-error"},
};

QColor LineColor(const QStyleOption& option, int percent) {
    const QPalette& palette = option.palette;
    return gMixed(palette.color(QPalette::Active, QPalette::Text), palette.color(QPalette::Base), percent);
}

// Filled, not drawn with a pen: at a scale of two the pen's line would be half outside.
void FillBorder(QPainter& painter, const QRect& area, const QColor& color) {
    const int right = area.left() + area.width() - 1;
    const int bottom = area.top() + area.height() - 1;
    painter.fillRect(area.left(), area.top(), area.width(), 1, color);
    painter.fillRect(area.left(), bottom, area.width(), 1, color);
    painter.fillRect(area.left(), area.top(), 1, area.height(), color);
    painter.fillRect(right, area.top(), 1, area.height(), color);
}

bool IsBareSeparator(const QStyleOption* option) {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    return item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty();
}

}  // namespace

QtThemeStyle::QtThemeStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void QtThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_PanelMenu || element == PE_FrameMenu || element == PE_IndicatorCheckBox)
        FillBorder(*painter, option->rect, LineColor(*option, cnBorderPercent));
}

void QtThemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    if (element != CE_MenuItem || !IsBareSeparator(option)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const QRect line(option->rect.left() + cnSeparatorMargin, option->rect.center().y(),
                     option->rect.width() - 2 * cnSeparatorMargin, 1);
    painter->fillRect(line, LineColor(*option, cnSeparatorPercent));
}

int QtThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
    return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon QtThemeStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
    for (const IconEntry& entry : cnIcons) {
        if (entry.picture == picture) return gPictureIcon(entry.file);
    }
    return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace vapp_qt
