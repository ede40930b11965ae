#pragma once
/// Names of files as text that can be shown and sent. A file system takes names that are no valid UTF-8,
/// the interpreter does not; the store keeps the real name beside the shown one, so that such a file still
/// opens. This is not the place for quoting: a name with blanks or braces is shown as it stands.

#include <filesystem>
#include <string>
#include <string_view>

namespace navigator {

/// A file name exactly as the file system spells it.
using NativeName = std::filesystem::path::string_type;

/// The name as valid UTF-8. Each byte that belongs to no valid sequence is written as "%" and two upper-case
/// hexadecimal digits; all else stays as it is. Two names may give the same text: see gMakeUnique.
std::string gDisplayName(const NativeName& name);

/// The same for bytes that are meant to be UTF-8.
std::string gSanitisedUtf8(std::string_view bytes);

/// The first of "name", "name~2", "name~3", ... for which `isTaken` answers false.
template <typename TIsTaken>
std::string gMakeUnique(const std::string& name, TIsTaken isTaken) {
    std::string candidate = name;
    for (unsigned number = 2; isTaken(candidate); ++number)
        candidate = name + "~" + std::to_string(number);
    return candidate;
}

}  // namespace navigator
