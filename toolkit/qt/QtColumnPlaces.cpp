/// @file
/// The walk over the columns. Widths come from settings and may be any number; sums are wide, and what is far
/// outside of the client area is brought near enough for Qt's coordinates.
#include "toolkit/qt/QtColumnPlaces.h"

#include <algorithm>
#include <cstdint>

#include "vapp/toolkit/CXTPReportControl.h"

namespace vapp_qt {

namespace {

constexpr std::int64_t cnFarAway = 1 << 24;

int Near(std::int64_t coordinate) {
    return static_cast<int>(std::clamp(coordinate, -cnFarAway, cnFarAway));
}

// Calls `visit` with each visible column's place.
template <typename Visit>
void WalkColumns(const CXTPReportControl& report, const Visit& visit) {
    const CXTPReportColumns& columns = report.GetColumns();
    std::int64_t left = 0;
    std::int64_t frozenEdge = 0;
    int visibleIndex = 0;
    for (int position = 0; position < columns.GetCount(); ++position) {
        CXTPReportColumn* column = columns.GetAt(position);
        if (!column->IsVisible()) continue;
        if (visibleIndex == report.GetFreezeColumnsCount()) {
            frozenEdge = left;
            left -= report.GetScrollX();
        }
        QtColumnPlace place;
        place.column = column;
        place.visibleIndex = visibleIndex++;
        place.left = Near(left);
        left += column->GetShownWidth();
        place.width = Near(left) - place.left;
        place.shownLeft = std::max(place.left, Near(frozenEdge));
        visit(place);
    }
}

}  // namespace

std::vector<QtColumnPlace> gColumnPlaces(const CXTPReportControl& report) {
    std::vector<QtColumnPlace> places;
    const int right = report.GetClientRect().right;
    WalkColumns(report, [&places, right](const QtColumnPlace& place) {
        if (place.shownLeft < right && place.ShownWidth() > 0) places.push_back(place);
    });
    return places;
}

QtColumnPlace gPlaceOfColumn(const CXTPReportControl& report, const CXTPReportColumn* column) {
    QtColumnPlace found;
    WalkColumns(report, [&found, column](const QtColumnPlace& place) {
        if (place.column == column) found = place;
    });
    return found;
}

}  // namespace vapp_qt
