/// The reader of property blocks. It walks the block once for a question and builds nothing but the answer.

#include "host/PropertyText.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace navigator {

namespace {

bool IsValueBlank(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r' ||
           character == '\0';
}

/// A walk over the `name=value` pairs of a block.
class PropertyWalk {
public:
    explicit PropertyWalk(std::string_view block) : m_block(block) {}

    /// Goes to the next pair; false at the end.
    bool Next() {
        while (m_at < m_block.size() && IsValueBlank(m_block[m_at]))
            ++m_at;
        if (m_at >= m_block.size()) return false;
        const std::size_t start = m_at;
        while (m_at < m_block.size() && !IsValueBlank(m_block[m_at]) && m_block[m_at] != '=')
            ++m_at;
        m_name = m_block.substr(start, m_at - start);
        m_value.clear();
        if (m_at < m_block.size() && m_block[m_at] == '=') {
            ++m_at;
            ReadValue();
        }
        return true;
    }

    [[nodiscard]] std::string_view Name() const { return m_name; }
    std::string& Value() { return m_value; }

private:
    void ReadValue() {
        bool isQuoted = false;
        while (m_at < m_block.size() && (isQuoted || !IsValueBlank(m_block[m_at]))) {
            const char character = m_block[m_at++];
            if (character == '"') {
                isQuoted = !isQuoted;
            } else if (character == '\\' && m_at < m_block.size()) {
                m_value += m_block[m_at++];
            } else {
                m_value += character;
            }
        }
    }

    std::string_view m_block;
    std::size_t m_at = 0;
    std::string_view m_name;
    std::string m_value;
};

}  // namespace

std::optional<std::string> gProperty(std::string_view block, std::string_view name) {
    PropertyWalk walk(block);
    while (walk.Next()) {
        if (walk.Name() == name) return std::move(walk.Value());
    }
    return std::nullopt;
}

bool gFlagProperty(std::string_view block, std::string_view name) {
    std::string value = gProperty(block, name).value_or("");
    std::transform(value.begin(), value.end(), value.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    constexpr std::array<std::string_view, 3> yesWords{"true", "1", "yes"};
    return std::find(yesWords.begin(), yesWords.end(), value) != yesWords.end();
}

}  // namespace navigator
