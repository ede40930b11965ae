/// @file
/// A position in pixels.
#pragma once

/// A position; y grows downward.
struct CPoint {
    int x = 0;
    int y = 0;

    friend bool operator==(const CPoint&, const CPoint&) = default;
};
