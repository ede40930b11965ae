/// @file
/// The kinds of names that a command's line has to carry, as both lists' tests walk them: what ends a word,
/// begins a script or is read as an escape by somebody.
#pragma once

#include <array>

#include "vapp/browser/TLibCellView.h"

struct NamesOfCommand {
    const char* what;
    const char* design;
    vapp_library_browser::TLibCellView cell;
};

inline const std::array cnNamesOfCommand = {
    NamesOfCommand{"plain", "top", {"lib", "inv", "sym"}},
    NamesOfCommand{"blanks", "my top", {"my lib", "an inv", "a sym"}},
    NamesOfCommand{"braces", "t{op", {"l}ib", "{inv}", "sy{m"}},
    NamesOfCommand{"brackets", "[top]", {"lib[0]", "[exit]", "sym]"}},
    NamesOfCommand{"quotes", "t\"op", {"\"lib\"", "in\"v", "sym\""}},
    NamesOfCommand{"dollars", "$top", {"lib$x", "${inv}", "$sym"}},
    NamesOfCommand{"newlines", "t\nop", {"l\nib", "inv\n", "\nsym"}},
};

/// What Tcl's reader of lists ends or changes a quoted element by.
inline const NamesOfCommand cnBackslashNames = {"backslashes", "t\\op", {"li\\b", "a\\b", "sy\\"}};
