/// @file
/// A width and a height in pixels.
#pragma once

/// An extent.
struct CSize {
    int cx = 0;
    int cy = 0;

    friend bool operator==(const CSize&, const CSize&) = default;
};
