/// @file
/// A rectangle in pixels; right and bottom lie just outside.
#pragma once

#include "vapp/toolkit/CPoint.h"
#include "vapp/toolkit/CSize.h"

/// A rectangle. It may be empty or reversed; nothing here normalises it.
struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    constexpr CRect() = default;
    constexpr CRect(int leftX, int topY, int rightX, int bottomY)
        : left(leftX), top(topY), right(rightX), bottom(bottomY) {}

    [[nodiscard]] constexpr int Width() const { return right - left; }
    [[nodiscard]] constexpr int Height() const { return bottom - top; }
    [[nodiscard]] constexpr CSize Size() const { return {Width(), Height()}; }
    [[nodiscard]] constexpr CPoint TopLeft() const { return {left, top}; }
    /// True when the point lies inside (left and top edges count, right and bottom don't).
    [[nodiscard]] constexpr bool PtInRect(CPoint point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    /// This rectangle moved by the point.
    [[nodiscard]] constexpr CRect Offset(CPoint by) const {
        return {left + by.x, top + by.y, right + by.x, bottom + by.y};
    }

    friend bool operator==(const CRect&, const CRect&) = default;
};
