/// @file
/// TLibCellView: what a design object is called, as one value.
///
/// The identity of a row of the cell list and the key of everything that is remembered for a view. It knows
/// nothing of the object itself.
///
/// The surprise: the fields stand library first, as all lines and texts have them, but the order goes cell,
/// view, library. That is the order in which the cell list shows its rows.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

/// Library, cell and view names. A value with an empty cell means "no cell".
struct VAPP_EXPORT TLibCellView {
    TLibCellView() noexcept = default;
    TLibCellView(CStringU libraryName, CStringU cellName, CStringU viewName) noexcept;
    /// Copies and moves take the names only. The sort key belongs to the one row that a sort is working on:
    /// a value that leaves the list must not drag the key along, and one that comes in must not bring a stale
    /// one. So the target's key is empty afterwards, whatever it was.
    TLibCellView(const TLibCellView& other) noexcept;
    TLibCellView(TLibCellView&& other) noexcept;
    TLibCellView& operator=(const TLibCellView& other) noexcept;
    TLibCellView& operator=(TLibCellView&& other) noexcept;
    ~TLibCellView() = default;

    /// The three names in the order library, cell, view, with the separator between them.
    [[nodiscard]] CStringU Join(const CStringU& separator) const;
    /// The object in a message: `cell "inv" library "lib" view "layout"`, with "Cell" if `capitalised`.
    [[nodiscard]] CStringU Describe(bool capitalised) const;

    CStringU library;
    CStringU cell;
    CStringU view;
    CStringU sortKey;  ///< scratch of the cell list while it sorts; no part of the identity
};

/// Cell, then view, then library, each without regard to case.
[[nodiscard]] VAPP_EXPORT bool operator<(const TLibCellView& left, const TLibCellView& right);
/// The same three names without regard to case.
[[nodiscard]] VAPP_EXPORT bool operator==(const TLibCellView& left, const TLibCellView& right);

}  // namespace vapp_library_browser
