/// @file
/// One line at a time, from the left.
#include "platform/posix/UserDirs.h"

#include <algorithm>

namespace vapp_platform {

namespace {

constexpr std::string_view cnBlanks = " \t\r";
constexpr std::string_view cnHome = "$HOME";

bool Skip(std::string_view& text, std::string_view front) {
    if (!text.starts_with(front)) return false;
    text.remove_prefix(front.size());
    return true;
}

void SkipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(cnBlanks), text.size()));
}

// What stands up to the closing quote.
std::optional<std::string> Unquoted(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '"') return out;
        if (text[at] == '\\' && at + 1 < text.size()) ++at;
        out += text[at];
    }
    return std::nullopt;
}

std::optional<std::string> PathOfLine(std::string_view line, std::string_view name, const std::string& home) {
    SkipBlanks(line);
    if (!Skip(line, name)) return std::nullopt;
    SkipBlanks(line);
    if (!Skip(line, "=")) return std::nullopt;
    SkipBlanks(line);
    if (!Skip(line, "\"")) return std::nullopt;
    const bool isBelowHome = Skip(line, cnHome);
    std::optional<std::string> path = Unquoted(line);
    if (!path || (!path->starts_with('/') && !(isBelowHome && path->empty()))) return std::nullopt;
    if (isBelowHome) path->insert(0, home);
    while (path->size() > 1 && path->ends_with('/')) {
        path->pop_back();
    }
    return path;
}

}  // namespace

std::optional<std::string> FindUserDir(std::string_view file, std::string_view name,
                                       const std::string& home) {
    std::optional<std::string> found;
    while (!file.empty()) {
        const std::size_t end = std::min(file.find('\n'), file.size());
        if (auto path = PathOfLine(file.substr(0, end), name, home)) found = std::move(path);
        file.remove_prefix(std::min(end + 1, file.size()));
    }
    return found;
}

}  // namespace vapp_platform
