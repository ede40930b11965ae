/// @file
/// units: reads numbers in any notation and writes them in all others, one line of a table for each number.
///
/// The shortest way to see what the library's number room does: ParseEngineering reads, FormatEngineering and
/// FormatGeneral write. The surprise is its own: in SPICE "10M" is milli, in SI it is mega, so the reading is
/// a choice.

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "text/DigitsSetting.h"
#include "text/FormatEngineering.h"
#include "text/ParseEngineering.h"

namespace {

constexpr char csHelp[] =
    "Usage: units [OPTION...] [NUMBER...]\n"
    "Reads numbers such as 1.5k, 10MEG, 2.2e-12, 50% or 3mil, and writes each of them in all notations.\n"
    "Without a NUMBER it reads them from standard input, one a line. Letters behind a unit are ignored,\n"
    "as in 10kOhm.\n"
    "\n"
    "  --si          M is mega, m is milli (the default)\n"
    "  --spice       M and m are milli, MEG and X are mega\n"
    "  --digits=N    write N significant digits, 3 to 18; 6 if not given\n"
    "  --keep        keep trailing zeroes\n"
    "  --            what follows are numbers, also if they begin with --\n"
    "  --help        show this help\n"
    "\n"
    "Ends with 1 if a text was no number, with 2 if an option was not understood.\n";

constexpr TeUnitScale cnScales[] = {TeUnitScale::Si, TeUnitScale::Spice, TeUnitScale::HSpice,
                                    TeUnitScale::Scientific, TeUnitScale::Engineering};
constexpr std::size_t cnColumns = 2 + std::size(cnScales);

using TRow = std::array<std::string, cnColumns>;

struct TOptions {
    bool m_si = true;
    bool m_keepZeroes = false;
    bool m_help = false;
    unsigned m_digits = 6;
    std::string m_unknown;  ///< the first option that means nothing
    std::vector<std::string> m_numbers;
};

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
            options.m_digits =
                static_cast<unsigned>(vapp_text::ParseDigitsSetting(argument.c_str() + csDigits.size()));
        } else if (options.m_unknown.empty()) {
            options.m_unknown = argument;
        }
    }
    return options;
}

TRow MakeHead() {
    TRow row = {"Text", "General"};
    for (std::size_t i = 0; i < std::size(cnScales); ++i)
        row[2 + i] = vapp_text::UnitScaleName(cnScales[i]).Payload();
    return row;
}

TRow MakeRow(const std::string& text, double value, const TOptions& options) {
    TRow row = {text, vapp_text::FormatGeneral(value).Payload()};
    for (std::size_t i = 0; i < std::size(cnScales); ++i) {
        row[2 + i] = vapp_text::FormatEngineering(value, options.m_digits, true, false, !options.m_keepZeroes,
                                                  cnScales[i], true)
                         .Payload();
    }
    return row;
}

void PrintTable(const std::vector<TRow>& rows) {
    std::array<std::size_t, cnColumns> widths = {};
    for (const TRow& row : rows) {
        for (std::size_t i = 0; i < cnColumns; ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    for (const TRow& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < cnColumns; ++i)
            line += row[i] + std::string(widths[i] - row[i].size() + 2, ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        std::puts(line.c_str());
    }
}

/// Adds the row of a text; false where the text is no number.
bool AddRow(const std::string& text, const TOptions& options, std::vector<TRow>& rows) {
    double value = 0;
    const CStringU error = vapp_text::ParseEngineering(text.c_str(), &value, nullptr, options.m_si);
    if (error.IsEmpty()) {
        rows.push_back(MakeRow(text, value, options));
        return true;
    }
    std::fprintf(stderr, "units: \"%s\": %s\n", text.c_str(), error.Payload());
    return false;
}

std::vector<std::string> ReadLines(std::istream& input) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(input, line);) {
        if (line.ends_with('\r')) line.pop_back();  // a file of Windows on Linux
        if (!line.empty()) lines.push_back(line);
    }
    return lines;
}

int Run(TOptions options) {
    if (options.m_help) {
        std::fputs(csHelp, stdout);
        return 0;
    }
    if (!options.m_unknown.empty()) {
        std::fprintf(stderr, "units: unknown option \"%s\"; see units --help\n", options.m_unknown.c_str());
        return 2;
    }
    if (options.m_numbers.empty()) options.m_numbers = ReadLines(std::cin);
    std::vector<TRow> rows = {MakeHead()};
    bool allNumbers = true;
    for (const std::string& text : options.m_numbers)
        allNumbers = AddRow(text, options, rows) && allNumbers;
    if (rows.size() > 1) PrintTable(rows);
    return allNumbers ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    return Run(ReadOptions({argv + 1, argv + argc}));
}
