/// @file
/// A guard in front of Tcl's making of strings, which goes down the stack for every list within a list.
///
/// Script can build a list in which lists are nested a hundred thousand deep, or one whose few elements are
/// shared so that its text would fill the memory. Tcl makes that text when somebody first asks for it, which
/// would be the end of the process. An answer that has a text already is harmless.
#pragma once

#include <cstddef>

struct Tcl_Obj;

namespace vapp_library_browser {

/// The most lists within one another, and the most bytes and elements together, of an answer that is read as
/// a text.
inline constexpr std::size_t cnMaxAnswerDepth = 1000;
inline constexpr std::size_t cnMaxAnswerSize = std::size_t{1} << 22;

/// True if the object's text is there, or can be made within those limits. Null has none.
[[nodiscard]] bool HasReadableText(Tcl_Obj* object);

}  // namespace vapp_library_browser
