/// The tool's design data, and the Tcl command `database` by which the navigator asks for it.
#pragma once

#include <tcl.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

struct InterpreterEnd {
    void operator()(Tcl_Interp* interp) const { Tcl_DeleteInterp(interp); }
};
using Interpreter = std::unique_ptr<Tcl_Interp, InterpreterEnd>;

/// A new interpreter. @param program  argv[0]: beside it Tcl looks for its scripts.
[[nodiscard]] Interpreter MakeInterpreter(const char* program);

/// One view of a cell.
struct CellView {
    std::string library;
    std::string cell;
    std::string view;
    bool isModified = false;
    std::string reservedBy;
};

/// One design, "chip". It must not outlive the interpreter, and must not move: the command points at it.
class Database {
public:
    /// Adds the command `database`, and makes one Tcl word of each name that the navigator sends.
    explicit Database(Tcl_Interp* interp);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// What the tool changes; it must tell the navigator that it did.
    std::vector<CellView> cells;
    /// Library, cell and view that is selected in the tool's own window; or nothing.
    std::vector<std::string> selectedMaster;
    /// Views that the user does not want to see: names, divided by semicolons and blanks.
    void ExcludeViews(const std::string& names);

private:
    static int Answer(ClientData self, Tcl_Interp* interp, int count, Tcl_Obj* const words[]);
    [[nodiscard]] Tcl_Obj* AnswerLibraries() const;
    [[nodiscard]] Tcl_Obj* AnswerCells(Tcl_Interp* interp, const std::vector<Tcl_Obj*>& options) const;
    [[nodiscard]] bool AnswerFlag(const std::string& what, const std::vector<Tcl_Obj*>& names) const;
    [[nodiscard]] const CellView* Find(const std::vector<Tcl_Obj*>& names) const;

    Tcl_Interp* m_interp;
    std::set<std::string> m_excludedViews;
};
