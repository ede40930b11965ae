/// @file
/// An upper bound of the nesting of a line, without parsing it as Tcl does.
///
/// Most lines consist of bare, escaped, braced and quoted words in which no command and no variable stands:
/// names that went through a hook look like that. As long as a line does, its brackets are known to be
/// harmless. From the first character on that could begin anything else (a command in brackets, a variable, a
/// comment), every opening bracket that is not escaped counts, closed again or not; a parenthesis only where
/// it is the index of a variable.
#include "browser/LineNesting.h"

#include <cstddef>

namespace vapp_library_browser {

namespace {

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

/// The place behind a quoted word that begins here, or its own place if Tcl would look for more than its end.
std::size_t SkipQuotes(std::string_view line, std::size_t at) {
    for (std::size_t i = at + 1; i < line.size(); ++i) {
        if (line[i] == '"') return i + 1;
        if (line[i] == '[' || line[i] == '$') return at;
        if (line[i] == '\\') ++i;
    }
    return line.size();
}

/// The place of the first character that is not part of words without commands and variables.
std::size_t SkipPlainWords(std::string_view line) {
    bool wordStart = true;
    std::size_t at = 0;
    while (at < line.size()) {
        const char c = line[at];
        if (c == '[' || c == '$' || (wordStart && c == '#')) return at;
        if (wordStart && c == '{') {
            at = SkipBraces(line, at);
        } else if (wordStart && c == '"') {
            const std::size_t behind = SkipQuotes(line, at);
            if (behind == at) return at;
            at = behind;
            wordStart = false;
        } else if (c == '\\') {
            // An escaped line feed is a blank to Tcl; any other character is part of the word.
            wordStart = at + 1 < line.size() && line[at + 1] == '\n';
            at += 2;
        } else {
            wordStart = EndsWord(c);
            ++at;
        }
    }
    return line.size();
}

// More than Tcl takes for one: a bound from above.
bool IsNameCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || c == '_' || c == ':' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') ||
           (c >= 'A' && c <= 'Z');
}

std::size_t CountOpenings(std::string_view line) {
    std::size_t openings = 0;
    bool inVariable = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (c == '[' || (c == '(' && inVariable)) ++openings;
        inVariable = c == '$' || (inVariable && IsNameCharacter(c));
        if (c == '\\') ++at;
    }
    return openings;
}

}  // namespace

bool MayNestTooDeep(std::string_view line) noexcept {
    // Painting sends thousands of lines, all of them short.
    if (line.size() <= cnMaxOpenBrackets) return false;
    const std::string_view rest = line.substr(SkipPlainWords(line));
    return CountOpenings(rest) > cnMaxOpenBrackets;
}

}  // namespace vapp_library_browser
