#pragma once
/// What stands below a schematic: all that it instantiates, that those instantiate, and so on. Each view is
/// met once, so that a drawing that contains itself ends the walk there, and it does not recurse: a chain of
/// instances may be as long as a hostile library makes it.

#include <vector>

#include "host/DesignStore.h"

namespace navigator {

struct Hierarchy {
    /// Symbols and schematics below, each once, in the order in which they are met; not the start itself, but
    /// for one that contains itself.
    std::vector<CellViewRef> views;
    /// References to what the design does not have, each reference of each drawing counted once.
    int missing = 0;
};

/// Descends from a view; from any but a schematic, by the schematic of its cell. Nothing below an empty
/// reference.
[[nodiscard]] Hierarchy gHierarchyBelow(DesignStore& store, const CellViewRef& start);

}  // namespace navigator
