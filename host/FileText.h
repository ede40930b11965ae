#pragma once
/// The file of a view as a text to read. Views are text as a rule; one that isn't, is very long or can't be
/// read gives a text that says so. No window here.

#include <cstddef>
#include <filesystem>
#include <string>

namespace navigator {

struct FileText {
    std::string text;  ///< Valid UTF-8.
    std::string note;  ///< What is to be known of the text: empty, or a sentence.
};

inline constexpr std::size_t cnMostViewerBytes = std::size_t{8} << 20;

/// Reads a file, or the names in a folder, up to `limit` bytes.
[[nodiscard]] FileText gReadFileText(const std::filesystem::path& path,
                                     std::size_t limit = cnMostViewerBytes);

}  // namespace navigator
