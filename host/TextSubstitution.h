#pragma once
/// Texts of a symbol with their `@name` words replaced by what an instance says. Only plain look-ups: a text
/// that asks an editor to compute something is shown without that part, and nothing is ever evaluated.

#include <string>
#include <string_view>

namespace navigator {

/// Where the values come from.
struct TextValues {
    std::string_view instanceProperties;  ///< Looked at first.
    std::string_view templateProperties;  ///< The symbol's `template`: defaults.
    std::string_view cell;                ///< For @symname.
    std::string_view drawing;             ///< For @schname: the cell that is shown.
};

/// The text to show. A word without a value vanishes; "@@" before a word stands for a pin's net and vanishes
/// too.
std::string gSubstituteText(std::string_view text, const TextValues& values);

}  // namespace navigator
