/// The walk, level by level.

#include "host/Hierarchy.h"

#include <map>
#include <string>
#include <unordered_set>

namespace navigator {

namespace {

CellViewRef SchematicOf(const CellViewRef& view) {
    if (!view || view.file->format == ViewFormat::Schematic) return view;
    for (const ViewFile& file : view.library->Cell(view.file->cell))
        if (file.format == ViewFormat::Schematic) return {view.design, view.library, &file};
    return {};
}

/// Each reference once, and whether the drawing needs the design for it: an embedded symbol is at hand
/// whatever the libraries have.
std::map<std::string, bool> ReferencesOf(const Symbol& drawing) {
    std::map<std::string, bool> references;
    for (const SymbolInstance& instance : drawing.instances) {
        bool& isNeeded = references[instance.reference];
        isNeeded = isNeeded || instance.embedded == nullptr;
    }
    return references;
}

}  // namespace

Hierarchy gHierarchyBelow(DesignStore& store, const CellViewRef& start) {
    Hierarchy below;
    std::unordered_set<const ViewFile*> met;
    std::vector<CellViewRef> toDescend{SchematicOf(start)};
    std::unordered_set<const ViewFile*> descended{toDescend.front().file};
    for (std::size_t next = 0; next < toDescend.size(); ++next) {
        const CellViewRef from = toDescend[next];
        const auto drawing = store.Load(from);
        if (drawing == nullptr) continue;
        for (const auto& [reference, isNeeded] : ReferencesOf(*drawing)) {
            const CellViewRef instance = store.Resolve(*from.design, *from.library, reference);
            if (!instance && isNeeded) ++below.missing;
            const CellViewRef inside = SchematicOf(instance);
            for (const CellViewRef& view : {instance, inside})
                if (view && met.insert(view.file).second) below.views.push_back(view);
            if (inside && descended.insert(inside.file).second) toDescend.push_back(inside);
        }
    }
    return below;
}

}  // namespace navigator
