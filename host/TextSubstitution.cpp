/// One walk over a text, word by word.

#include "host/TextSubstitution.h"

#include <cctype>
#include <optional>

#include "host/PropertyText.h"

namespace navigator {

namespace {

bool IsWordCharacter(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_' || character == '#' ||
           character == ':' || character == '.';
}

std::string ValueOf(std::string_view word, const TextValues& values) {
    if (word == "symname") return std::string(values.cell);
    if (word == "schname") return std::string(values.drawing);
    std::optional<std::string> value = gProperty(values.instanceProperties, word);
    if (!value) value = gProperty(values.templateProperties, word);
    return value.value_or("");
}

/// "tcleval(...)" without its wrapping.
std::string_view Unwrap(std::string_view text) {
    constexpr std::string_view wrapper = "tcleval(";
    if (!text.starts_with(wrapper)) return text;
    text.remove_prefix(wrapper.size());
    if (text.ends_with(')')) text.remove_suffix(1);
    return text;
}

}  // namespace

std::string gSubstituteText(std::string_view text, const TextValues& values) {
    text = Unwrap(text);
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const char character = text[at++];
        if (character != '@') {
            result += character == '\0' ? ' ' : character;
            continue;
        }
        const bool isNet = at < text.size() && text[at] == '@';
        if (isNet) ++at;
        const std::size_t start = at;
        while (at < text.size() && IsWordCharacter(text[at]))
            ++at;
        std::size_t end = at;
        // A point or colon that ends a sentence belongs to the text around the word.
        while (end > start && (text[end - 1] == '.' || text[end - 1] == ':'))
            --end;
        at = end;
        if (end == start) {
            if (!isNet) result += '@';
        } else if (!isNet) {
            result += ValueOf(text.substr(start, end - start), values);
        }
    }
    return result;
}

}  // namespace navigator
