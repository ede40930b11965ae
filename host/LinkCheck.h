#pragma once
/// Finds, in a graph of drawings that instantiate one another, which of them contain themselves and which
/// refer to something that is not there. All that can be reached from the start is settled in one walk, so
/// that asking for every drawing of a design costs one walk over the design. The walk does not recurse: a
/// chain of instances may be as long as a hostile library makes it.

#include <functional>
#include <vector>

#include "host/CellFacts.h"

namespace navigator {

struct ViewFile;

/// What a drawing leads to.
struct LinkTargets {
    std::vector<const ViewFile*> targets;
    bool hasUnresolved = false;
};

/// The two questions and the one answer of the walk.
struct LinkGraph {
    /// The drawings that a drawing instantiates.
    std::function<LinkTargets(const ViewFile*)> expand;
    /// True if the drawing's state is known already; the walk does not enter it again.
    std::function<bool(const ViewFile*)> isSettled;
    /// Receives each state once. A cycle outweighs a missing symbol: descending would never end.
    std::function<void(const ViewFile*, LinkState)> settle;
};

/// Settles `start` and all that can be reached from it.
void gSettleLinks(const ViewFile* start, const LinkGraph& graph);

}  // namespace navigator
