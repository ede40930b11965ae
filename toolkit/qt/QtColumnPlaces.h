/// @file
/// Where the columns of a report stand in its client area, by the same arithmetic as the control's hit tests:
/// the frozen ones in place, the others moved by the sideways scrolling and cut at the frozen ones.
#pragma once

#include <vector>

class CXTPReportControl;
class CXTPReportColumn;

namespace vapp_qt {

struct QtColumnPlace {
    CXTPReportColumn* column = nullptr;
    int visibleIndex = 0;
    int left = 0;       ///< of the whole column; may lie left of what is shown
    int width = 0;      ///< of the whole column
    int shownLeft = 0;  ///< where it begins to be seen: not below the frozen columns' edge

    [[nodiscard]] int Right() const { return left + width; }
    [[nodiscard]] int ShownWidth() const { return left + width - shownLeft; }
};

/// The columns of which something is seen within the client area, from left to right.
[[nodiscard]] std::vector<QtColumnPlace> gColumnPlaces(const CXTPReportControl& report);
/// The place of one visible column, seen or not; a null column if it is hidden or not of this report.
[[nodiscard]] QtColumnPlace gPlaceOfColumn(const CXTPReportControl& report, const CXTPReportColumn* column);

}  // namespace vapp_qt
