/// The arithmetic of the first start.

#include "host/WindowLayout.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace navigator {

namespace {

/// What desktops put around a window: borders, and a title above.
constexpr int cnFrameWidth = 16;
constexpr int cnFrameHeight = 48;
/// On a smaller screen the window begins to hang over its edge, instead of shrinking to nothing.
constexpr int cnSmallestWindow = 200;
constexpr int cnConsoleNeeds = 720;
/// Filter row, header, a few rows, tabs and status line.
constexpr int cnFewestCells = 200;

int Clamped(int wanted, int screen, int frame) {
    return screen <= 0 ? wanted : std::min(wanted, std::max(screen - frame, cnSmallestWindow));
}

}  // namespace

WindowSize gDefaultWindowSize(WindowSize screen) {
    return {Clamped(cnWantedWindow.width, screen.width, cnFrameWidth),
            Clamped(cnWantedWindow.height, screen.height, cnFrameHeight)};
}

bool gHasRoomForConsole(int windowWidth) {
    return windowWidth >= cnConsoleNeeds;
}

PaneHeights gFitPaneHeights(const PaneHeights& wanted, int height, int bar) {
    const int room = std::max(height - 2 * std::max(bar, 0), 0);
    PaneHeights fitted{};
    std::transform(wanted.begin(), wanted.end(), fitted.begin(), [](int pane) { return std::max(pane, 0); });
    const auto sum = std::accumulate(fitted.begin(), fitted.end(), std::int64_t{0});
    if (sum <= room) return fitted;
    const std::int64_t cells = room - (sum - fitted[1]);
    if (cells >= std::min(cnFewestCells, fitted[1])) {
        fitted[1] = static_cast<int>(cells);
        return fitted;
    }
    for (int& pane : fitted)
        pane = static_cast<int>(std::int64_t{pane} * room / sum);
    return fitted;
}

}  // namespace navigator
