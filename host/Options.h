#pragma once
/// The command line of `navigator`. Nothing is opened or printed here: the result says what to do.

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace navigator {

struct Options {
    std::vector<std::string> folders;  ///< Designs to open; none for the sample design.
    std::optional<std::string> script;
    std::optional<std::string> screenshot;
    bool isDump = false;
    bool isDark = false;
    bool isVersion = false;
    bool isHelp = false;
    bool isSizeGiven = false;
    int width = 900;  ///< Of the window, in logical pixels.
    int height = 700;
    double scale = 1;  ///< Device pixels for a logical pixel, 0.5 to 8.
};

/// Reads the words behind the program's name. On failure the sentence says what is wrong; the program then
/// ends with exit status cnUsageStatus. "--option=value" is as good as "--option value"; behind "--" all
/// words are folders.
[[nodiscard]] std::optional<std::string> gParseOptions(std::span<const std::string> words, Options& options);

/// Exit status for a command line that is wrong and for a folder that cannot be read.
inline constexpr int cnUsageStatus = 2;

/// The text of --help.
std::string gUsageText();

}  // namespace navigator
