/// @file
/// The splitter walks the line once; the program has a rule of its own.
#include "platform/CommandLine.h"

#include <algorithm>
#include <cstddef>

namespace vapp_platform {

namespace {

constexpr std::string_view csBlanks = " \t";

bool IsBlank(char sign) {
    return csBlanks.find(sign) != std::string_view::npos;
}

class Splitter {
public:
    explicit Splitter(std::string_view line) : m_line(line) {}

    std::vector<std::string> Split() {
        std::vector<std::string> arguments;
        SkipBlanks();
        if (!AtEnd()) arguments.push_back(TakeProgram());
        for (SkipBlanks(); !AtEnd(); SkipBlanks())
            arguments.push_back(TakeArgument());
        return arguments;
    }

private:
    [[nodiscard]] bool AtEnd() const { return m_at == m_line.size(); }
    [[nodiscard]] bool IsQuote() const { return !AtEnd() && m_line[m_at] == '"'; }

    void SkipBlanks() {
        while (!AtEnd() && IsBlank(m_line[m_at]))
            ++m_at;
    }

    std::string TakeProgram() {
        std::string program;
        bool quoted = false;
        for (; !AtEnd() && (quoted || !IsBlank(m_line[m_at])); ++m_at) {
            if (IsQuote()) {
                quoted = !quoted;
            } else {
                program += m_line[m_at];
            }
        }
        return program;
    }

    std::string TakeArgument() {
        std::string argument;
        bool quoted = false;
        while (!AtEnd() && (quoted || !IsBlank(m_line[m_at]))) {
            if (TakeBackslashes(argument)) continue;
            if (!IsQuote()) {
                argument += m_line[m_at++];
            } else if (++m_at; quoted && IsQuote()) {
                argument += '"';
                ++m_at;
            } else {
                quoted = !quoted;
            }
        }
        return argument;
    }

    /// Takes a run of backslashes, with the quote behind it where that is a plain one.
    bool TakeBackslashes(std::string& argument) {
        const std::size_t behind = std::min(m_line.find_first_not_of('\\', m_at), m_line.size());
        const std::size_t count = behind - m_at;
        if (count == 0) return false;
        m_at = behind;
        argument.append(IsQuote() ? count / 2 : count, '\\');
        if (IsQuote() && count % 2 == 1) {
            argument += '"';
            ++m_at;
        }
        return true;
    }

    std::string_view m_line;
    std::size_t m_at = 0;
};

std::string QuoteProgram(std::string_view program) {
    std::string plain(program);
    std::erase(plain, '"');
    const bool needsQuotes = plain.empty() || plain.find_first_of(csBlanks) != std::string::npos;
    return needsQuotes ? '"' + plain + '"' : plain;
}

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view line) {
    return Splitter(line).Split();
}

std::string QuoteArgument(std::string_view argument) {
    if (!argument.empty() && argument.find_first_of(" \t\"") == std::string_view::npos) {
        return std::string(argument);
    }
    std::string quoted = "\"";
    std::size_t backslashes = 0;
    for (const char sign : argument) {
        if (sign == '"') quoted.append(backslashes + 1, '\\');
        backslashes = sign == '\\' ? backslashes + 1 : 0;
        quoted += sign;
    }
    // Those in front of the closing quote would else turn it into a plain one.
    quoted.append(backslashes, '\\');
    quoted += '"';
    return quoted;
}

std::string JoinCommandLine(const std::vector<std::string>& arguments) {
    std::string line;
    for (const std::string& argument : arguments) {
        line += line.empty() ? QuoteProgram(argument) : ' ' + QuoteArgument(argument);
    }
    return line;
}

}  // namespace vapp_platform
