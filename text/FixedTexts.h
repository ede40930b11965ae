/// @file
/// Texts whose wording is fixed: rectangles in logs, and the causes of file errors.
///
/// Not translated: they go into logs and reports, where support looks for these very words.
#pragma once

#include "vapp/text/CStringU.h"

namespace vapp_text {

/// "(left, top, right, bottom w=width h=height)". Width and height are printed as unsigned numbers of 32
/// bits, so that those of a reversed rectangle are very large.
[[nodiscard]] CStringU RectToText(int left, int top, int right, int bottom);

/// The same for every kind of rectangle that has these four members.
template <typename Rect>
[[nodiscard]] CStringU RectToText(const Rect& rect) {
    return RectToText(static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
                      static_cast<int>(rect.bottom));
}

/// What went wrong with a file, by the number of the framework's file errors.
[[nodiscard]] CStringU FileExceptionText(int cause);

}  // namespace vapp_text
