/// @file
/// Where a window stood, kept in the application's settings, and rectangles on the monitors that there are
/// now.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CString.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CRect.h"

/// The section of the settings in which placements are kept, each under a name of its own.
inline constexpr char csPlacementSection[] = "WindowPlacement";

/// The place of a top-level window.
struct TWindowPlacement {
    /// Where it stands, or comes back to, on the screen. Not empty.
    CRect normal;
    bool isMaximized = false;

    friend bool operator==(const TWindowPlacement&, const TWindowPlacement&) = default;
};

/// Reads a placement from the current application's settings. False, and nothing is stored, without an
/// application, without an entry, or with one that makes no sense.
VAPP_EXPORT bool gReadWindowPlacement(TWindowPlacement* placement, const CString& name);
/// Keeps a placement in the current application's settings; it takes no rectangle that couldn't be read.
VAPP_EXPORT bool gWriteWindowPlacement(const TWindowPlacement& placement, const CString& name);

/// How ClipOrCenterRectToMonitor moves a rectangle: the lowest bit. Other bits mean nothing.
enum TMonitorMode : UINT {
    cnMonitorClip = 0,    ///< as little as needed, to lie in the monitor
    cnMonitorCenter = 1,  ///< into the middle of the monitor
};

/// Moves a rectangle on the monitor that has most of it, or else is nearest. It keeps its size; one that is
/// larger than the monitor begins at the monitor's corner. Nothing happens where no monitor is known.
VAPP_EXPORT void ClipOrCenterRectToMonitor(CRect* rect, UINT mode);
