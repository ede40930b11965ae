/// @file
/// One line after the other.
#include "text/TranslationTable.h"

#include <optional>

namespace vapp_text {

namespace {

using Entry = std::pair<std::string, std::string>;

std::string_view TakeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

std::optional<std::string> Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            plain += text[i];
            continue;
        }
        if (++i == text.size()) return std::nullopt;
        const std::size_t sign = std::string_view("nt\\").find(text[i]);
        if (sign == std::string_view::npos) return std::nullopt;
        plain += "\n\t\\"[sign];
    }
    return plain;
}

std::optional<Entry> ReadLine(std::string_view line) {
    const std::size_t tab = line.find('\t');
    // Texts end at a NUL; one in the middle is the mark of a file in another encoding.
    if (tab == std::string_view::npos || line.find('\0') != std::string_view::npos) return std::nullopt;
    const std::optional<std::string> key = Unescaped(line.substr(0, tab));
    const std::optional<std::string> text = Unescaped(line.substr(tab + 1));
    if (!key || !text || key->empty() || text->empty()) return std::nullopt;
    if (line.find('\t', tab + 1) != std::string_view::npos) return std::nullopt;
    return Entry(*key, *text);
}

}  // namespace

TTranslationTable ReadTranslationTable(std::string_view table) {
    constexpr std::string_view csByteOrderMark = "\xEF\xBB\xBF";
    if (table.starts_with(csByteOrderMark)) table.remove_prefix(csByteOrderMark.size());
    TTranslationTable result;
    for (int number = 1; !table.empty(); ++number) {
        const std::string_view line = TakeLine(table);
        if (line.empty() || line.starts_with('#')) continue;
        const std::optional<Entry> entry = ReadLine(line);
        if (!entry) return {.texts = {}, .wrongLine = number};
        result.texts.push_back(*entry);
    }
    return result;
}

}  // namespace vapp_text
