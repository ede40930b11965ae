/// @file
/// The identity of a cell view: its order, and its texts.
#include "vapp/browser/TLibCellView.h"

#include <utility>

namespace vapp_library_browser {

TLibCellView::TLibCellView(CStringU libraryName, CStringU cellName, CStringU viewName) noexcept
    : library(std::move(libraryName)), cell(std::move(cellName)), view(std::move(viewName)) {}

TLibCellView::TLibCellView(const TLibCellView& other) noexcept
    : library(other.library), cell(other.cell), view(other.view) {}

TLibCellView::TLibCellView(TLibCellView&& other) noexcept
    : library(std::move(other.library)), cell(std::move(other.cell)), view(std::move(other.view)) {}

TLibCellView& TLibCellView::operator=(const TLibCellView& other) noexcept {
    if (this == &other) return *this;
    library = other.library;
    cell = other.cell;
    view = other.view;
    sortKey.Empty();
    return *this;
}

TLibCellView& TLibCellView::operator=(TLibCellView&& other) noexcept {
    if (this == &other) return *this;
    library = std::move(other.library);
    cell = std::move(other.cell);
    view = std::move(other.view);
    sortKey.Empty();
    return *this;
}

CStringU TLibCellView::Join(const CStringU& separator) const {
    return library + separator + cell + separator + view;
}

CStringU TLibCellView::Describe(bool capitalised) const {
    return CStringU::Formatted(R"(%s "%s" library "%s" view "%s")", capitalised ? "Cell" : "cell",
                               cell.Payload(), library.Payload(), view.Payload());
}

bool operator<(const TLibCellView& left, const TLibCellView& right) {
    if (const int byCell = left.cell.CompareNoCase(right.cell); byCell != 0) return byCell < 0;
    if (const int byView = left.view.CompareNoCase(right.view); byView != 0) return byView < 0;
    return left.library.CompareNoCase(right.library) < 0;
}

bool operator==(const TLibCellView& left, const TLibCellView& right) {
    return left.cell.EqualsNoCase(right.cell) && left.view.EqualsNoCase(right.view) &&
           left.library.EqualsNoCase(right.library);
}

}  // namespace vapp_library_browser
