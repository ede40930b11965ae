/// @file
/// Colours and texts that a report is painted with.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/toolkit/BasicTypes.h"

class CXTPReportControl;

/// A colour with a default and a custom value that hides it.
class CXTPPaintManagerColor {
public:
    void SetCustomValue(COLORREF color) { m_custom = color; }
    void SetStandardValue(COLORREF color) { m_standard = color; }
    void SetDefaultValue() { m_custom = cnNoColor; }
    [[nodiscard]] COLORREF GetCustomValue() const { return m_custom; }
    [[nodiscard]] bool IsDefault() const { return m_custom == cnNoColor; }
    /// The custom value, or else the standard one, which may be cnNoColor: the desktop's.
    operator COLORREF() const { return m_custom == cnNoColor ? m_standard : m_custom; }

private:
    COLORREF m_standard = cnNoColor;
    COLORREF m_custom = cnNoColor;
};

/// The colours that can be set.
enum class TReportColor {
    ControlBack,   ///< background of the rows
    ControlText,   ///< text of the rows
    HeaderBack,    ///< background of the header
    HeaderText,    ///< text of the header
    GrayText,      ///< the no-items text
    FilteredList,  ///< background of the rows while a filter hides some; wins over ControlBack
};

/// Looks of one report. Each setter tells the report when something changed.
class VAPP_EXPORT CXTPReportPaintManager {
public:
    explicit CXTPReportPaintManager(CXTPReportControl& control) : m_control(control) {}

    [[nodiscard]] COLORREF GetColor(TReportColor color) const;
    /// cnNoColor goes back to the default.
    void SetCustomColor(TReportColor color, COLORREF value);
    [[nodiscard]] bool IsDefaultColor(TReportColor color) const;
    /// Text of a report without rows, in the active code page.
    [[nodiscard]] const CString& GetNoItemsText() const { return m_noItemsText; }
    void SetNoItemsText(const CString& text);

private:
    static constexpr int cnColorCount = 6;
    CXTPReportControl& m_control;
    CXTPPaintManagerColor m_colors[cnColorCount];
    CString m_noItemsText;
};
