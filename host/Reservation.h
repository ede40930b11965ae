#pragma once
/// The question before cells are reserved: the user's preference when to ask, and which libraries are
/// managed, so that the question matters there. The asking itself is the library's.

#include <filesystem>

#include "vapp/app/AskReserve.h"

class CWinAppEx;

namespace navigator {

/// The preference in the settings; "Managed Cells Only" until the user has another one.
[[nodiscard]] prefs::TAskReserveOption gAskReserveOption(const CWinAppEx& app);
void gSetAskReserveOption(CWinAppEx& app, prefs::TAskReserveOption option);
/// The text by which settings, scripts and menus know an option.
[[nodiscard]] const CStringU& gAskReserveText(prefs::TAskReserveOption option);

/// Whether others work on the library too: its folder, or one above it, is under the control of versions.
[[nodiscard]] bool gIsManagedFolder(const std::filesystem::path& folder);

/// Asks the user as the preference wants it. False if the user said no; no question is a yes, since it was
/// the user who picked the command.
[[nodiscard]] bool gMayReserve(bool isManaged, prefs::TAskReserveOption option);

}  // namespace navigator
