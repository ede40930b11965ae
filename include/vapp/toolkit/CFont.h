/// @file
/// A font as the logic knows it: a variation of the window's own font.
#pragma once

/// Family and size are always those of the control; only weight and slant differ.
struct CFont {
    bool bold = false;
    bool italic = false;
};
