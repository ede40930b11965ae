/// @file
/// units: reads numbers in any notation and writes them in all others, one line of a table for each number.
///
/// The shortest way to see what the library's number room does: ParseEngineering reads, FormatEngineering and
/// FormatGeneral write. The surprises are its own: in SPICE "10M" is milli, in SI it is mega, so the reading
/// is a choice; and a number of the SI reading ends in one of two places, which EndOfNumber below makes one.

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vapp/text/DigitsSetting.h"
#include "vapp/text/FormatEngineering.h"
#include "vapp/text/ParseEngineering.h"

namespace {

constexpr char csHelp[] =
    "Usage: units [OPTION...] [NUMBER...]\n"
    "Reads numbers such as 1.5k, 10MEG, 2.2e-12, 50% or 3mil, and writes each of them in all notations.\n"
    "Without a NUMBER it reads them from standard input, one a line, and answers each at once. Letters\n"
    "behind a unit are ignored, as in 10kOhm; whatever else stands behind a number makes it none.\n"
    "\n"
    "  --si          M is mega, m is milli (the default)\n"
    "  --spice       M and m are milli, MEG and X are mega\n"
    "  --digits=N    write N significant digits, 1 to 18, where 1 and 2 are taken for 3; 6 if not given\n"
    "  --keep        keep trailing zeroes\n"
    "  --            what follows are numbers, also if they begin with --\n"
    "  --help        show this help\n"
    "\n"
    "Ends with 1 if a text was no number or had something behind it, with 2 if an option was not\n"
    "understood.\n";

constexpr TeUnitScale cnScales[] = {TeUnitScale::Si, TeUnitScale::Spice, TeUnitScale::HSpice,
                                    TeUnitScale::Scientific, TeUnitScale::Engineering};
constexpr std::size_t cnColumns = 2 + std::size(cnScales);

using TRow = std::array<std::string, cnColumns>;

struct TOptions {
    bool m_si = true;
    bool m_keepZeroes = false;
    bool m_help = false;
    unsigned m_digits = 6;
    std::string m_complaint;  ///< about the first option that means nothing
    std::vector<std::string> m_numbers;
};

/// What is wrong with the count of digits; empty where nothing is.
std::string ReadDigits(const std::string& text, unsigned& digits) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), digits);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    const unsigned least = vapp::GetMinDigits();
    const unsigned most = vapp::GetMaxDigits();
    if (whole && digits >= least && digits <= most) return {};
    return "--digits wants a number from " + std::to_string(least) + " to " + std::to_string(most) +
           ", not \"" + text + "\"";
}

TOptions ReadOptions(const std::vector<std::string>& arguments) {
    constexpr std::string_view csDigits = "--digits=";
    TOptions options;
    bool onlyNumbers = false;
    for (const std::string& argument : arguments) {
        if (onlyNumbers || !argument.starts_with("--")) {
            options.m_numbers.push_back(argument);
        } else if (argument == "--") {
            onlyNumbers = true;
        } else if (argument == "--si" || argument == "--spice") {
            options.m_si = argument == "--si";
        } else if (argument == "--keep") {
            options.m_keepZeroes = true;
        } else if (argument == "--help") {
            options.m_help = true;
        } else if (argument.starts_with(csDigits)) {
            const std::string complaint = ReadDigits(argument.substr(csDigits.size()), options.m_digits);
            if (options.m_complaint.empty()) options.m_complaint = complaint;
        } else if (options.m_complaint.empty()) {
            options.m_complaint = "unknown option \"" + argument + "\"";
        }
    }
    return options;
}

TRow MakeHead() {
    TRow row = {"Text", "General"};
    for (std::size_t i = 0; i < std::size(cnScales); ++i)
        row[2 + i] = vapp::UnitScaleName(cnScales[i]).Payload();
    return row;
}

TRow MakeRow(const std::string& text, double value, const TOptions& options) {
    TRow row = {text, vapp::FormatGeneral(value).Payload()};
    for (std::size_t i = 0; i < std::size(cnScales); ++i) {
        row[2 + i] = vapp::FormatEngineering(value, options.m_digits, true, false, !options.m_keepZeroes,
                                             cnScales[i], true)
                         .Payload();
    }
    return row;
}

using TWidths = std::array<std::size_t, cnColumns>;

TWidths MakeWidths(const std::vector<TRow>& rows) {
    TWidths widths = {};
    for (const TRow& row : rows) {
        for (std::size_t i = 0; i < cnColumns; ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    return widths;
}

/// Room for nearly every number, where the rows to come are not known.
TWidths MakeWidths(const TOptions& options) {
    TWidths widths;
    widths.fill(std::max<std::size_t>(options.m_digits, 4) + std::string_view("-.e-000").size());
    widths[0] = std::string_view("1234567.89kOhm").size();
    widths[1] = std::string_view("-1.00000000000000004e-027").size();
    return widths;
}

void PrintRow(const TRow& row, const TWidths& widths) {
    std::string line;
    for (std::size_t i = 0; i < cnColumns; ++i)
        line += row[i] + std::string(std::max(widths[i], row[i].size()) - row[i].size() + 2, ' ');
    line.erase(line.find_last_not_of(' ') + 1);
    std::puts(line.c_str());
}

bool IsDigitOrPoint(char c) {
    return (c >= '0' && c <= '9') || c == '.';
}

/// Letters of other scripts, an ohm sign say, are bytes above ASCII.
bool IsLetter(char c) {
    const char small = static_cast<char>(c | 0x20);
    return static_cast<signed char>(c) < 0 || (small >= 'a' && small <= 'z');
}

/// Reads a number and gives the place behind it and its unit, in either reading; null where there is none.
const char* EndOfNumber(const char* text, bool si, double& value) {
    const char* end = nullptr;
    const char* spiceEnd = nullptr;
    double ignored = 0;
    if (!vapp::ReadEngineering(text, &ignored, &spiceEnd, false)) return nullptr;
    static_cast<void>(vapp::ReadEngineering(text, &value, &end, si));
    // The SPICE reading never ends before the number does. If the SI reading does, it has found no unit, and
    // stands on the last character.
    return end < spiceEnd ? end + 1 : end;
}

/// What is wrong with a text; empty where it is a number.
std::string ReadNumber(const std::string& text, bool si, double& value) {
    const char* const end = EndOfNumber(text.c_str(), si, value);
    if (end == nullptr) return "Not a number";
    auto behind = static_cast<std::size_t>(end - text.c_str());
    if (!IsDigitOrPoint(text[behind - 1])) {
        while (behind < text.size() && IsLetter(text[behind]))
            ++behind;
    }
    const std::size_t junk = text.find_first_not_of(" \t", behind);
    return junk == std::string::npos ? "" : "\"" + text.substr(junk) + "\" stands behind the number";
}

/// The row of a text; nothing, and a complaint, where it is no number.
std::optional<TRow> ReadRow(const std::string& text, const TOptions& options) {
    double value = 0;
    const std::string complaint = ReadNumber(text, options.m_si, value);
    if (complaint.empty()) return MakeRow(text, value, options);
    std::fprintf(stderr, "units: \"%s\": %s\n", text.c_str(), complaint.c_str());
    return std::nullopt;
}

/// Writes the numbers of the command line; false if a text was none.
bool WriteTable(const TOptions& options) {
    std::vector<TRow> rows = {MakeHead()};
    for (const std::string& text : options.m_numbers) {
        if (const std::optional<TRow> row = ReadRow(text, options)) rows.push_back(*row);
    }
    const TWidths widths = MakeWidths(rows);
    if (rows.size() > 1) {
        for (const TRow& row : rows)
            PrintRow(row, widths);
    }
    return rows.size() == options.m_numbers.size() + 1;
}

/// Answers the lines of an input, each at once, for those who type; false if a line was no number.
bool AnswerLines(std::istream& input, const TOptions& options) {
    const TWidths widths = MakeWidths(options);
    bool headed = false;
    bool allNumbers = true;
    for (std::string line; std::getline(input, line);) {
        if (line.ends_with('\r')) line.pop_back();  // a file of Windows on Linux
        if (line.empty()) continue;
        const std::optional<TRow> row = ReadRow(line, options);
        allNumbers = allNumbers && row.has_value();
        if (!row) continue;
        if (!headed) PrintRow(MakeHead(), widths);
        headed = true;
        PrintRow(*row, widths);
        std::fflush(stdout);
    }
    return allNumbers;
}

int Run(const TOptions& options) {
    if (options.m_help) {
        std::fputs(csHelp, stdout);
        return 0;
    }
    if (!options.m_complaint.empty()) {
        std::fprintf(stderr, "units: %s; see units --help\n", options.m_complaint.c_str());
        return 2;
    }
    const bool allNumbers = options.m_numbers.empty() ? AnswerLines(std::cin, options) : WriteTable(options);
    return allNumbers ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    return Run(ReadOptions({argv + 1, argv + argc}));
}
