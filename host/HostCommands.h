#pragma once
/// The two other Tcl commands that the navigator sends: `logaction`, which keeps and runs what the user did,
/// and `librarynavigator`, by which the preview pane asks for a picture. The picture itself is drawn by
/// whoever sets the preview handler.

#include <functional>
#include <span>
#include <string>

#include "host/ActionLog.h"
#include "host/DesignStore.h"
#include "host/TclCommand.h"

namespace navigator {

/// What the preview pane asks for.
struct PreviewRequest {
    CellViewName name;  ///< The design is empty if the pane names none.
    int width = 0;      ///< Of the picture, in pixels of the pane; 0 or above, at most cnLargestPreview.
    int height = 0;
};

inline constexpr int cnLargestPreview = 16384;

class HostCommands {
public:
    /// Registers both commands.
    explicit HostCommands(Tcl_Interp* interp);

    /// Called while the line runs.
    void SetPreviewHandler(std::function<void(const PreviewRequest&)> handler) {
        m_preview = std::move(handler);
    }

    /// The last logged lines, and what of them failed.
    [[nodiscard]] ActionLog& Log() { return m_log; }

    /// Both commands.
    static std::span<const CommandHelp> Help();

private:
    int LogAction(Tcl_Interp* interp, TclWords words);
    int LibraryNavigator(Tcl_Interp* interp, TclWords words) const;

    std::function<void(const PreviewRequest&)> m_preview;
    ActionLog m_log;
    TclCommand m_logAction;
    TclCommand m_libraryNavigator;
};

}  // namespace navigator
