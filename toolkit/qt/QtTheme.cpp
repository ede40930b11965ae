/// @file
/// The two palettes. The dark one is built around 0x2D2D2D, the background that lists and reports ask for in
/// the dark theme, so that panes and fields look like one surface.
#include "vapp/toolkit/qt/QtTheme.h"

#include <QApplication>
#include <QPalette>

#include "toolkit/qt/QtThemeStyle.h"

namespace {

struct PaletteEntry {
    QPalette::ColorRole role;
    QRgb dark;
    QRgb light;
};

constexpr PaletteEntry cnPalette[] = {
    {QPalette::Window, 0xFF3A3A3A, 0xFFF0F0F0},      {QPalette::WindowText, 0xFFF0F0F0, 0xFF1A1A1A},
    {QPalette::Base, 0xFF2D2D2D, 0xFFFFFFFF},        {QPalette::AlternateBase, 0xFF343434, 0xFFF5F5F5},
    {QPalette::Text, 0xFFFFFFFF, 0xFF000000},        {QPalette::PlaceholderText, 0xFFA0A0A0, 0xFF767676},
    {QPalette::Button, 0xFF454545, 0xFFF0F0F0},      {QPalette::ButtonText, 0xFFF0F0F0, 0xFF1A1A1A},
    {QPalette::BrightText, 0xFFFF6B6B, 0xFFB00020},  {QPalette::Light, 0xFF5A5A5A, 0xFFFFFFFF},
    {QPalette::Midlight, 0xFF4E4E4E, 0xFFE3E3E3},    {QPalette::Mid, 0xFF262626, 0xFFB8B8B8},
    {QPalette::Dark, 0xFF1E1E1E, 0xFF9F9F9F},        {QPalette::Shadow, 0xFF000000, 0xFF696969},
    {QPalette::Highlight, 0xFF2A6DB8, 0xFF2A6DB8},   {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Link, 0xFF7DB7FF, 0xFF0A58CA},        {QPalette::LinkVisited, 0xFFC7A0FF, 0xFF6A3FB5},
    {QPalette::ToolTipBase, 0xFF454545, 0xFFFFFFE1}, {QPalette::ToolTipText, 0xFFF0F0F0, 0xFF000000},
};

// Texts that are greyed; all else of the disabled group looks as it does enabled.
constexpr QPalette::ColorRole cnGreyedRoles[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                                 QPalette::HighlightedText};
constexpr QRgb cnDarkGrey = 0xFF8A8A8A;
constexpr QRgb cnLightGrey = 0xFF8C8C8C;
// The selection of a window that isn't in front.
constexpr QRgb cnDarkInactive = 0xFF4A5A6B;
constexpr QRgb cnLightInactive = 0xFFCFE0F2;

QPalette MakePalette(bool dark) {
    QPalette palette;
    for (const PaletteEntry& entry : cnPalette)
        palette.setColor(entry.role, QColor::fromRgba(dark ? entry.dark : entry.light));
    for (const QPalette::ColorRole role : cnGreyedRoles)
        palette.setColor(QPalette::Disabled, role, QColor::fromRgba(dark ? cnDarkGrey : cnLightGrey));
    palette.setColor(QPalette::Inactive, QPalette::Highlight,
                     QColor::fromRgba(dark ? cnDarkInactive : cnLightInactive));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, dark ? Qt::white : Qt::black);
    return palette;
}

}  // namespace

void gApplyTheme(bool dark) {
    // The desktop's own style may paint some parts in fixed light colours; this one follows the palette in
    // all.
    if (dynamic_cast<vapp_qt::QtThemeStyle*>(QApplication::style()) == nullptr)
        QApplication::setStyle(new vapp_qt::QtThemeStyle);
    QApplication::setPalette(MakePalette(dark));
}
