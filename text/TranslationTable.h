/// @file
/// The lines of a table of translations (vapp/text/Translate.h, gLoadTranslations).
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vapp_text {

/// What a table says, or where it can't be read.
struct TTranslationTable {
    /// Key without its prefix, and translation, both of one character at least.
    std::vector<std::pair<std::string, std::string>> texts;
    /// The number of the first wrong line, counted from 1; 0 if there is none.
    int wrongLine = 0;
};

[[nodiscard]] TTranslationTable ReadTranslationTable(std::string_view table);

}  // namespace vapp_text
