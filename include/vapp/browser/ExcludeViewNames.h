/// @file
/// The setting that names the views that hosts leave out of the cell list.
///
/// The navigator keeps the text and sends it nowhere; hosts ask for it when they answer "database cells".
#pragma once

namespace vapp_library_browser {

/// Key of the setting, in the section of the navigator.
inline constexpr char csExcludeViewNamesKey[] = "ExcludeViewNames";
/// What it is until the user sets it: names divided by semicolons and blanks.
inline constexpr char csDefaultExcludeViewNames[] =
    "ads; ARVance_MS; ams; auCdl; auLvs; orvo; orvoD; hspiceD; hspiceS; ivpcell; spectre; symbol_xform";

}  // namespace vapp_library_browser
