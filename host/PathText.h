#pragma once
/// Paths of the host's texts, which are UTF-8 on every system.

#include <filesystem>
#include <string>
#include <string_view>

namespace navigator {

[[nodiscard]] inline std::filesystem::path gPathOf(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

}  // namespace navigator
