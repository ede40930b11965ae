#pragma once
/// The command line of `navigator`. Nothing is opened or printed here: the result says what to do.

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/WindowLayout.h"

namespace navigator {

struct Options {
    std::vector<std::string> folders;  ///< Designs to open; none for the sample design.
    std::optional<std::string> script;
    std::optional<std::string> scripts;  ///< A folder of scripts, in place of the user's own.
    std::optional<std::string> screenshot;
    bool isDump = false;
    bool isDark = false;
    bool isVersion = false;
    bool isHelp = false;
    bool isWithoutSplash = false;
    unsigned long instances = 1;  ///< How many windows of one user may run; 0 for any number.
    bool isSizeGiven = false;
    int width = cnWantedWindow.width;  ///< Of the window, in logical pixels.
    int height = cnWantedWindow.height;
    double scale = 1;  ///< Device pixels for a logical pixel, 0.5 to 8.
};

/// Reads the words behind the program's name. On failure the sentence says what is wrong; the program then
/// ends with exit status cnUsageStatus. "--option=value" is as good as "--option value"; behind "--" all
/// words are folders.
[[nodiscard]] std::optional<std::string> gParseOptions(std::span<const std::string> words, Options& options);

/// Exit status for a command line that is wrong and for a folder that cannot be read.
inline constexpr int cnUsageStatus = 2;

/// Exit status of a start that is refused because as many instances run as may.
inline constexpr int cnBusyStatus = 3;

/// The text of --help.
std::string gUsageText();

}  // namespace navigator
