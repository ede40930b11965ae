#pragma once
/// Property blocks of symbol and schematic files: `name=value` pairs between blanks, a value with blanks in
/// double quotes, `\` before a quote that belongs to the value. Blocks are kept as text and read when a
/// property is asked for, because a drawing asks for few of them.

#include <optional>
#include <string>
#include <string_view>

namespace navigator {

/// The value of the first property of that name, unquoted; none if the block does not have it.
std::optional<std::string> gProperty(std::string_view block, std::string_view name);

/// True if the property is there and its value reads as yes: "true", "1" or "yes", in any case.
bool gFlagProperty(std::string_view block, std::string_view name);

}  // namespace navigator
