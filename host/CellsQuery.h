#pragma once
/// The question `database cells` and its answer. Filter types are part of the question; see gFilterTypes.

#include <tcl.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>

#include "host/DesignStore.h"
#include "host/TclCommand.h"

namespace navigator {

/// Which views a filter type lists.
enum class FilterKind {
    All,
    Symbols,
    Schematics,
    Layouts,   ///< views whose name begins with "layout"
    Hdl,       ///< descriptions in a language: verilog, systemverilog, veriloga, vhdl
    Netlists,  ///< spice, circuit, cdl
    Modified,
    Reserved,
    Locked,     ///< by the user, or not to be written
    Unresolved  ///< broken references, circular ones too
};

/// One entry of the filter drop-down that this host understands.
struct FilterType {
    std::string_view text;  ///< What the navigator shows and sends.
    FilterKind kind;
    bool dependsOnState;  ///< A view may come or go by a change of its state alone.
};

/// The filter types, in the order in which they are offered.
std::span<const FilterType> gFilterTypes();

/// The type with that text. Any other text, also the empty one, lists all: a script may bring types of its
/// own and narrow the answer itself.
const FilterType& gFindFilterType(std::string_view text);

struct CellsQuery {
    std::string design;
    bool isCount = false;
    bool showHiddenCells = false;
    bool showVias = false;
    std::string filter;
    /// Names in lower case, none for all: the navigator keeps names without regard to case.
    std::optional<std::unordered_set<std::string>> libraries;
    std::optional<std::unordered_set<std::string>> views;
    /// Names in lower case of views that the user leaves out, whatever else is asked for.
    std::unordered_set<std::string> excludedViews;
    /// Lists those too: for scripts, the navigator never asks so.
    bool showExcludedViews = false;
    /// Tab of the schematic editor's mode. This host has no such tabs and lists the same views under each.
    int tab = 0;
};

/// The names in a text, divided by semicolons and blanks, in lower case.
std::unordered_set<std::string> gReadExcludedViews(std::string_view text);

/// Reads the words behind `database cells`. The text behind -filter is not quoted by the navigator: all words
/// up to the next option belong to it, joined with one blank, and there may be none.
int gParseCellsQuery(Tcl_Interp* interp, TclWords words, CellsQuery& query);

/// A count, or a list of triples, as the interpreter's result. A count leaves the filter type out of account.
int gAnswerCellsQuery(Tcl_Interp* interp, DesignStore& store, const CellsQuery& query);

}  // namespace navigator
