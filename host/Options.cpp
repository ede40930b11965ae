/// The table of options, and the reading by it.

#include "host/Options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace navigator {

namespace {

enum class OptionId {
    Script,
    Scripts,
    Dump,
    Screenshot,
    Size,
    Scale,
    Dark,
    Instances,
    NoSplash,
    Version,
    Help
};

struct OptionRow {
    OptionId id;
    std::string_view name;
    std::string_view value;  ///< What its value is called; empty if it takes none.
    std::string_view help;
};

constexpr std::array<OptionRow, 11> csProgramOptions{{
    {OptionId::Script, "--script", "FILE",
     "Source a Tcl script after the start; it may add menus, columns, filters."},
    {OptionId::Scripts, "--scripts", "FOLDER",
     "Source all *.tcl of a folder first, in place of the folder beside your settings."},
    {OptionId::Dump, "--dump", "", "Print the cell list of the first design and exit; no window."},
    {OptionId::Screenshot, "--screenshot", "FILE", "Write a picture of the window to FILE (.png) and exit."},
    {OptionId::Size, "--size", "WxH", "Size of the window in pixels, for example 900x700."},
    {OptionId::Scale, "--scale", "N", "Device pixels for each pixel of the screenshot, 0.5 to 8."},
    {OptionId::Dark, "--dark", "", "Dark theme."},
    {OptionId::Instances, "--instances", "N",
     "Start unless N windows of yours run already; 1 without it, 0 is no limit."},
    {OptionId::NoSplash, "--no-splash", "", "Start without the picture."},
    {OptionId::Version, "--version", "", "Print the version and exit."},
    {OptionId::Help, "--help", "", "Print this text and exit."},
}};

constexpr int cnSmallestPicture = 50;
constexpr int cnLargestPicture = 16384;
constexpr double cnSmallestRatio = 0.5;
constexpr double cnLargestRatio = 8;

template <typename TNumber>
std::optional<TNumber> WholeNumber(std::string_view text) {
    TNumber value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

bool ParseSize(std::string_view text, Options& options) {
    const std::size_t cross = text.find('x');
    if (cross == std::string_view::npos) return false;
    const std::optional<int> width = WholeNumber<int>(text.substr(0, cross));
    const std::optional<int> height = WholeNumber<int>(text.substr(cross + 1));
    if (!width || !height || std::min(*width, *height) < cnSmallestPicture ||
        std::max(*width, *height) > cnLargestPicture)
        return false;
    options.isSizeGiven = true;
    options.width = *width;
    options.height = *height;
    return true;
}

bool ParseScale(std::string_view text, Options& options) {
    const std::optional<double> scale = WholeNumber<double>(text);
    // Written so that "nan" fails.
    if (!scale || !(*scale >= cnSmallestRatio && *scale <= cnLargestRatio)) return false;
    options.scale = *scale;
    return true;
}

std::optional<std::string> Apply(const OptionRow& row, const std::string& value, Options& options) {
    switch (row.id) {
        case OptionId::Script:
            options.script = value;
            break;
        case OptionId::Scripts:
            options.scripts = value;
            break;
        case OptionId::Dump:
            options.isDump = true;
            break;
        case OptionId::Screenshot:
            options.screenshot = value;
            break;
        case OptionId::Size:
            if (!ParseSize(value, options)) {
                return "The size \"" + value +
                       "\" is not WIDTHxHEIGHT with sides from 50 to 16384, as in 900x700.";
            }
            break;
        case OptionId::Scale:
            if (!ParseScale(value, options))
                return "The scale \"" + value + "\" is not a number from 0.5 to 8.";
            break;
        case OptionId::Dark:
            options.isDark = true;
            break;
        case OptionId::Instances:
            if (const auto limit = WholeNumber<unsigned>(value)) {
                options.instances = *limit;
            } else {
                return "The number of instances \"" + value + "\" is not a whole number from 0 on.";
            }
            break;
        case OptionId::NoSplash:
            options.isWithoutSplash = true;
            break;
        case OptionId::Version:
            options.isVersion = true;
            break;
        case OptionId::Help:
            options.isHelp = true;
            break;
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> gParseOptions(std::span<const std::string> words, Options& options) {
    bool isOnlyFolders = false;
    for (std::size_t next = 0; next < words.size(); ++next) {
        const std::string& word = words[next];
        if (isOnlyFolders || !word.starts_with('-') || word == "-") {
            options.folders.push_back(word);
            continue;
        }
        if (word == "--") {
            isOnlyFolders = true;
            continue;
        }
        const std::size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const auto* const row = std::find_if(csProgramOptions.begin(), csProgramOptions.end(),
                                             [&](const OptionRow& known) { return known.name == name; });
        if (row == csProgramOptions.end()) return "Unknown option \"" + name + "\". Try --help.";
        std::string value;
        if (row->value.empty()) {
            if (equals != std::string::npos) return "The option " + name + " takes no value.";
        } else if (equals != std::string::npos) {
            value = word.substr(equals + 1);
        } else if (next + 1 < words.size()) {
            value = words[++next];
        }
        if (!row->value.empty() && value.empty())
            return "The option " + name + " needs a value: " + std::string(row->value) + ".";
        if (std::optional<std::string> failure = Apply(*row, value, options)) return failure;
    }
    return std::nullopt;
}

std::string gUsageText() {
    std::string text =
        "navigator [FOLDER...] [OPTION...]\n\n"
        "Shows the design libraries in the given folders. Each FOLDER is a design, its sub-folders are the\n"
        "libraries, and files like inv.sym and inv.sch, or folders like inv/layout, are the views of their "
        "cells.\n"
        "Without a folder it shows a sample design.\n\n";
    for (const OptionRow& row : csProgramOptions) {
        std::string left = "  " + std::string(row.name);
        if (!row.value.empty()) left += " " + std::string(row.value);
        left.resize(std::max<std::size_t>(left.size() + 1, 22), ' ');
        text += left + std::string(row.help) + "\n";
    }
    return text;
}

}  // namespace navigator
