#pragma once
/// What the three tabs below the cell list are called: by this host at first, by the user later on, kept in
/// the application's settings.

#include <array>
#include <string>

class CWinAppEx;

namespace navigator {

inline constexpr int cnTabs = 3;

/// The host's own names.
inline constexpr std::array<const char*, cnTabs> csTabNames{"Compact", "Details", "Names"};

/// The user's name of a tab from 0 on, or else the host's; UTF-8.
[[nodiscard]] std::string gTabName(const CWinAppEx& app, int tab);
/// Keeps a name; an empty one, or the host's own, takes the user's away. Blanks around it are left out.
void gSetTabName(CWinAppEx& app, int tab, const std::string& name);

}  // namespace navigator
