#pragma once
/// A command with sub-commands as a table: the table holds the help and what answers, so that neither can be
/// there without the other, and calls are dispatched by it.

#include <tcl.h>

#include <string>
#include <vector>

#include "host/TclCommand.h"

namespace navigator {

/// A row: the help, and what answers. `minimum` and `maximum` count the words behind the sub-command, a
/// maximum of -1 stands for any number. The help must come first, because Tcl looks the names up in the table
/// itself; a row without a method ends it.
template <typename TOwner>
struct SubCommandRow {
    CommandHelp help;
    int minimum;
    int maximum;
    int (TOwner::*method)(Tcl_Interp*, TclWords);
};

/// The help of all rows, in their order.
template <typename TOwner>
[[nodiscard]] std::vector<CommandHelp> gHelpOf(const SubCommandRow<TOwner>* rows) {
    std::vector<CommandHelp> help;
    for (; rows->method != nullptr; ++rows)
        help.push_back(rows->help);
    return help;
}

/// Answers a call: the sub-command's exact name and the number of its words are checked here.
template <typename TOwner>
int gDispatch(TOwner& owner, const SubCommandRow<TOwner>* rows, Tcl_Interp* interp, TclWords words) {
    if (words.size() < 2) {
        Tcl_WrongNumArgs(interp, 1, words.data(), "subcommand ?arg ...?");
        return TCL_ERROR;
    }
    int index = 0;
    const int code =
        Tcl_GetIndexFromObjStruct(interp, words[1], rows, sizeof(*rows), "subcommand", TCL_EXACT, &index);
    if (code != TCL_OK) return code;
    const SubCommandRow<TOwner>& row = rows[index];
    const TclWords arguments = words.subspan(2);
    const int count = static_cast<int>(arguments.size());
    if (count < row.minimum || (row.maximum >= 0 && count > row.maximum))
        return gTclFailure(interp, std::string("wrong # args: should be \"") + row.help.usage + "\"");
    return (owner.*row.method)(interp, arguments);
}

}  // namespace navigator
