/// @file
/// Controls that stand as a dialog template says, in whatever window it is.
#pragma once

#include "vapp/toolkit/CWnd.h"
#include "vapp/toolkit/DialogTemplate.h"

/// The item of that identifier, or null.
[[nodiscard]] const DialogItem* gFindDialogItem(const DialogTemplate& dialog, UINT id);
/// Makes the control in the parent, at its place and with its text, translated. Without an item of that
/// identifier it has neither. Nothing if it is made already.
void gCreateDialogItem(CWnd& parent, const DialogTemplate& dialog, CWnd& control, UINT id);
/// A text or translatable key as window texts are: in the active code page.
[[nodiscard]] CString gTranslateWindowText(const char* text);
