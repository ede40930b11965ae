#pragma once
/// Sizes of the first start: of the window, and of the panes in it. What the user has changed is kept in the
/// settings and counts more. Numbers alone, no windows; all in logical pixels.

#include <array>

namespace navigator {

struct WindowSize {
    int width = 0;
    int height = 0;

    bool operator==(const WindowSize&) const = default;
};

/// Room for the three panes with the heights that they have at first, the bars between them, and the menu,
/// with the console beside them.
inline constexpr WindowSize cnWantedWindow{980, 960};

/// The wanted size on a screen of this room, with the desktop's frame around the window still to come. A
/// screen without a size leaves what is wanted.
[[nodiscard]] WindowSize gDefaultWindowSize(WindowSize screen);

/// Whether a window of this width has room for the console beside the panes.
[[nodiscard]] bool gHasRoomForConsole(int windowWidth);

/// Heights of libraries, cells and preview, from the top.
using PaneHeights = std::array<int, 3>;

/// The heights fitted into a splitter of `height` with bars of `bar` between the panes. Where all fit they
/// stay. Otherwise the cells give first, as their list scrolls, and then all of them in proportion: no pane
/// is out of sight. Never negative.
[[nodiscard]] PaneHeights gFitPaneHeights(const PaneHeights& wanted, int height, int bar);

}  // namespace navigator
