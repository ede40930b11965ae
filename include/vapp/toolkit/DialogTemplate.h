/// @file
/// Dialogs and forms as data: which controls stand where, under which number and with which text.
#pragma once

#include <span>

#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CRect.h"
#include "vapp/toolkit/CSize.h"

/// One control of a dialog template: where it stands at first.
struct DialogItem {
    UINT id = 0;
    CRect rect;
    const char* text = "";  ///< initial window text, or a translatable key
};

/// A dialog as data: resource number, its natural size, its controls.
struct DialogTemplate {
    UINT resource = 0;
    CSize size;
    std::span<const DialogItem> items;
};
