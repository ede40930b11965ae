/// @file
/// What the commands of the menu do to the options of the list, and which of them are on.
///
/// Rules on values alone: who runs a command refreshes the list afterwards.
#pragma once

#include "vapp/celllist/TCellListCommand.h"
#include "vapp/celllist/TCellNamesReportCtrl.h"

namespace vapp_library_browser {

/// Changes the options as the command says; false, with nothing changed, if it is none of theirs. Whatever
/// the options were, the sub-string is looked for in at least one column afterwards if the command is one of
/// those that say where.
bool ApplyOptionCommand(TCellNamesReportCtrl::TOptions& options, UINT command);
/// Whether the command's item has its check mark.
[[nodiscard]] bool IsOptionOn(const TCellNamesReportCtrl::TOptions& options, UINT command);

}  // namespace vapp_library_browser
