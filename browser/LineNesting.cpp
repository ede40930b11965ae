/// @file
/// An upper bound of the nesting of a line, without parsing it as Tcl does.
///
/// Lines whose names went through a hook consist of bare, escaped and braced words. As long as a line looks
/// like that, brackets within are known to be harmless. From the first character on that could begin anything
/// else (a command in brackets, a variable, a quoted word, a comment), every opening bracket counts, closed
/// again or not.
#include "browser/LineNesting.h"

#include <algorithm>
#include <cstddef>

namespace vapp_library_browser {

namespace {

bool IsOpening(char c) {
    return c == '[' || c == '(';
}

bool EndsWord(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f' || c == ';';
}

/// The place behind a braced word that begins here.
std::size_t SkipBraces(std::string_view line, std::size_t at) {
    int open = 0;
    for (; at < line.size(); ++at) {
        if (line[at] == '\\') {
            ++at;
        } else if (line[at] == '{') {
            ++open;
        } else if (line[at] == '}' && --open == 0) {
            return at + 1;
        }
    }
    return line.size();
}

/// The place of the first character that is not part of bare, escaped and braced words.
std::size_t SkipPlainWords(std::string_view line) {
    bool wordStart = true;
    std::size_t at = 0;
    while (at < line.size()) {
        const char c = line[at];
        if (c == '[' || c == '$' || (wordStart && (c == '"' || c == '#'))) return at;
        if (wordStart && c == '{') {
            at = SkipBraces(line, at);
            continue;
        }
        wordStart = EndsWord(c);
        at += c == '\\' ? 2 : 1;
    }
    return line.size();
}

}  // namespace

bool MayNestTooDeep(std::string_view line) noexcept {
    // Painting sends thousands of lines, all of them short.
    if (line.size() <= cnMaxOpenBrackets) return false;
    const std::string_view rest = line.substr(SkipPlainWords(line));
    const auto openings = std::count_if(rest.begin(), rest.end(), IsOpening);
    return static_cast<std::size_t>(openings) > cnMaxOpenBrackets;
}

}  // namespace vapp_library_browser
