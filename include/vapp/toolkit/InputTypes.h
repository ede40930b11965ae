/// @file
/// Keys and modifiers as peers report them, independent of any widget set.
#pragma once

/// The keys that lists act upon; text input travels separately.
enum class TKey {
    Up,
    Down,
    Left,
    Right,
    PageUp,
    PageDown,
    Home,
    End,
    Space,
    SelectAll,
    Escape,
    Return,
    Find  ///< the user wants to look for something
};

/// The state of the modifier keys during a key press or a click.
struct TModifiers {
    bool shift = false;
    bool control = false;
};
