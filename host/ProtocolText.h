#pragma once
/// docs/tcl-protocol.md, built in: the lines that a navigator sends, for the help of a running program.

#include <string_view>

namespace navigator {

/// The document as it is, in Markdown.
[[nodiscard]] std::string_view gProtocolText();

}  // namespace navigator
