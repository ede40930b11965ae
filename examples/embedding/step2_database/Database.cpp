#include "step2_database/Database.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "vapp/browser/TclBridge.h"

namespace {

using Words = std::vector<Tcl_Obj*>;

std::string TextOf(Tcl_Obj* word) {
    int length = 0;
    const char* text = Tcl_GetStringFromObj(word, &length);
    return {text, static_cast<std::size_t>(length)};
}

Tcl_Obj* ListOf(const std::vector<std::string>& texts) {
    Tcl_Obj* list = Tcl_NewListObj(0, nullptr);
    for (const std::string& text : texts)
        Tcl_ListObjAppendElement(nullptr, list, Tcl_NewStringObj(text.data(), static_cast<int>(text.size())));
    return list;
}

std::set<std::string> SetOf(Tcl_Interp* interp, Tcl_Obj* list) {
    int count = 0;
    Tcl_Obj** words = nullptr;
    std::set<std::string> texts;
    if (Tcl_ListObjGetElements(interp, list, &count, &words) == TCL_OK)
        std::transform(words, words + count, std::inserter(texts, texts.end()), TextOf);
    return texts;
}

/// The list of one element is one word, quoted as it needs to be.
CStringU QuoteAsTclWord(const CStringU& name) {
    Tcl_Obj* list = ListOf({name.Payload()});
    Tcl_IncrRefCount(list);
    CStringU word(Tcl_GetString(list), TextEncoding::Utf8Auto);
    Tcl_DecrRefCount(list);
    return word;
}

}  // namespace

Interpreter MakeInterpreter(const char* program) {
    Tcl_FindExecutable(program);
    return Interpreter(Tcl_CreateInterp());
}

Database::Database(Tcl_Interp* interp)
    : cells{
          {"logic", "inv", "symbol"},
          {"logic", "inv", "layout", false, "ada"},
          {"logic", "nand2", "symbol", true},
          {"logic", "nand10", "symbol"},
          {"analog", "bias [ref]", "symbol"},
          {"top", "chip", "layout"},
      },
      m_interp(interp) {
    Tcl_CreateObjCommand(interp, "database", &Database::Answer, this, nullptr);
    vapp::gSetTclSanitizeInputUPointer(&QuoteAsTclWord);
}

Database::~Database() {
    vapp::gSetTclSanitizeInputUPointer(nullptr);
    Tcl_DeleteCommand(m_interp, "database");
}

void Database::ExcludeViews(const std::string& names) {
    m_excludedViews.clear();
    std::string name;
    for (const char sign : names + ';') {
        if (sign != ';' && sign != ' ')
            name += sign;
        else if (!name.empty())
            m_excludedViews.insert(std::exchange(name, {}));
    }
}

int Database::Answer(ClientData self, Tcl_Interp* interp, int count, Tcl_Obj* const words[]) {
    const auto& database = *static_cast<const Database*>(self);
    const std::string what = count > 1 ? TextOf(words[1]) : "";
    const Words rest(words + std::min(count, 2), words + count);
    if (what == "all_libs")
        Tcl_SetObjResult(interp, database.AnswerLibraries());
    else if (what == "top_level")
        Tcl_SetObjResult(interp, Tcl_NewStringObj("top", -1));
    else if (what == "selected_master")
        Tcl_SetObjResult(interp, ListOf(database.selectedMaster));
    else if (what == "filter")
        Tcl_SetObjResult(interp, Tcl_NewIntObj(1));
    else if (what == "cells")
        Tcl_SetObjResult(interp, database.AnswerCells(interp, rest));
    else if (what == "cellviewinfo" && rest.size() == 5)
        Tcl_SetObjResult(interp, Tcl_NewIntObj(database.AnswerFlag(TextOf(rest[0]), rest) ? 1 : 0));
    else
        return TCL_ERROR;  // to the navigator an empty answer
    return TCL_OK;
}

/// A list of designs: each its name, and then name and path of each library.
Tcl_Obj* Database::AnswerLibraries() const {
    std::set<std::string> names;
    for (const CellView& cell : cells)
        names.insert(cell.library);
    Tcl_Obj* design = ListOf({"chip"});
    for (const std::string& name : names)
        Tcl_ListObjAppendElement(nullptr, design, ListOf({name, "/libraries/" + name}));
    return Tcl_NewListObj(1, &design);
}

/// How many there are with -count, else a list of library, cell and view.
Tcl_Obj* Database::AnswerCells(Tcl_Interp* interp, const Words& options) const {
    bool isCount = false;
    std::set<std::string> libraries;
    std::string type;
    for (std::size_t at = 0; at < options.size(); ++at) {
        const std::string option = TextOf(options[at]);
        if (option == "-count") isCount = true;
        if (at + 1 == options.size()) break;
        if (option == "-libraries") libraries = SetOf(interp, options[at + 1]);
        if (option == "-filter") type = TextOf(options[at + 1]);
    }
    std::vector<const CellView*> found;
    for (const CellView& cell : cells) {
        const bool isWanted = (libraries.empty() || libraries.contains(cell.library)) &&
                              (type != "Layouts" || cell.view == "layout") &&
                              !m_excludedViews.contains(cell.view);
        if (isWanted) found.push_back(&cell);
    }
    if (isCount) return Tcl_NewIntObj(static_cast<int>(found.size()));
    Tcl_Obj* list = Tcl_NewListObj(0, nullptr);
    for (const CellView* cell : found)
        Tcl_ListObjAppendElement(nullptr, list, ListOf({cell->library, cell->cell, cell->view}));
    return list;
}

/// The names are those of the line: what is asked, design, library, cell and view.
bool Database::AnswerFlag(const std::string& what, const Words& names) const {
    const CellView* cell = Find({names[2], names[3], names[4]});
    if (cell == nullptr) return false;
    if (what == "is_modified") return cell->isModified;
    if (what == "is_reserved") return !cell->reservedBy.empty();
    return what == "is_lockedbyuser" && cell->reservedBy == "ada";
}

const CellView* Database::Find(const Words& names) const {
    const auto found = std::ranges::find_if(cells, [&names](const CellView& cell) {
        return cell.library == TextOf(names[0]) && cell.cell == TextOf(names[1]) &&
               cell.view == TextOf(names[2]);
    });
    return found != cells.end() ? &*found : nullptr;
}
