/// @file
/// A guard in front of Tcl's parser, which goes down the stack for every bracket that is open.
///
/// A name of ten thousand opening brackets that reaches a line without a hook would be the end of the
/// process, long before Tcl's own limit of nested evaluations is looked at. It is not a check of the line:
/// what Tcl can parse or refuse by itself is left to it.
#pragma once

#include <cstddef>
#include <string_view>

namespace vapp_library_browser {

/// The most brackets of a line that may be open at a time; some hundred kilobytes of stack in Tcl.
inline constexpr std::size_t cnMaxOpenBrackets = 200;

/// True if the line may open more brackets than that. Brackets in braces, in quotes without commands, or
/// behind backslashes don't count, however many, nor do parentheses that are no index of a variable. A line
/// that runs a command of its own, or uses a variable, may be refused though its brackets stand beside one
/// another.
[[nodiscard]] bool MayNestTooDeep(std::string_view line) noexcept;

}  // namespace vapp_library_browser
