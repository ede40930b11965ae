#pragma once
/// Texts as a Tcl list and back, without an interpreter: the form in which lists of names are kept, as names
/// may hold anything but a NUL.

#include <string>
#include <vector>

namespace navigator {

[[nodiscard]] std::string gListOfWords(const std::vector<std::string>& words);

/// The words of a list; none if it isn't one.
[[nodiscard]] std::vector<std::string> gWordsOfList(const std::string& list);

}  // namespace navigator
