/// @file
/// The words in which hosts and the cell list speak of the state of a cell view.
///
/// A shared vocabulary for the texts of host columns and for answers; the library itself compares against two
/// of them only (csUnresolved and csCycle colour a row) and falls back on csEmpty.
///
/// They are built when the library is loaded, so every host module sees them complete, also in its own static
/// initialisation. Code of the library itself must not touch them before main.
#pragma once

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

namespace vapp_library_browser {

extern VAPP_EXPORT const CStringU csLocked;
extern VAPP_EXPORT const CStringU csEmpty;
extern VAPP_EXPORT const CStringU csStdVia;
extern VAPP_EXPORT const CStringU csCustomVia;
extern VAPP_EXPORT const CStringU csVCell;
extern VAPP_EXPORT const CStringU csOutOfDate;
extern VAPP_EXPORT const CStringU csAutoGen;
extern VAPP_EXPORT const CStringU csMemory;
extern VAPP_EXPORT const CStringU csNormal;
extern VAPP_EXPORT const CStringU csNew;
extern VAPP_EXPORT const CStringU csDeleted;
extern VAPP_EXPORT const CStringU csUnresolved;
extern VAPP_EXPORT const CStringU csDelay;
extern VAPP_EXPORT const CStringU csCycle;
extern VAPP_EXPORT const CStringU csReading;
extern VAPP_EXPORT const CStringU csModified;
extern VAPP_EXPORT const CStringU csReserved;
extern VAPP_EXPORT const CStringU csSkipped;
extern VAPP_EXPORT const CStringU csError;
extern VAPP_EXPORT const CStringU csSuccess;

}  // namespace vapp_library_browser
