/// @file
/// Pictures by number: what a host has beside its code and names by numbers.
///
/// Not every system keeps pictures inside of program files, and what stands behind a picture's handle is the
/// adapter's business; so a host makes its pictures and puts them into this table, before what shows them is
/// made. Numbers are those of one module: two libraries may use the same ones. Window thread only.
#pragma once

#include "vapp/Export.h"
#include "vapp/toolkit/BasicTypes.h"

/// Puts a picture into the table, or takes it out by a null one. Not owned: it must live as long as it is in
/// here.
/// @param module  whose number it is; null for the program itself.
VAPP_EXPORT void gSetBitmapResource(UINT id, HBITMAP bitmap, HINSTANCE module = nullptr);

/// The picture with this number in the module that resources are taken from; null if there is none.
[[nodiscard]] VAPP_EXPORT HBITMAP gLoadBitmapResource(UINT id);

/// The module that resources are taken from; null, as at first, for the program itself.
[[nodiscard]] VAPP_EXPORT HINSTANCE gGetResourceHandle() noexcept;
VAPP_EXPORT void gSetResourceHandle(HINSTANCE module) noexcept;
