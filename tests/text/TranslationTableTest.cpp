/// @file
/// Lines of a table of translations.
#include "text/TranslationTable.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using vapp_text::ReadTranslationTable;
using Texts = std::vector<std::pair<std::string, std::string>>;

}  // namespace

TEST(TranslationTable, ALineIsATextATabAndItsTranslation) {
    const struct {
        std::string_view table;
        Texts texts;
    } rows[] = {
        {"", {}},
        {"\n\r\n\n", {}},
        {"# a\tb", {}},
        {"a\tb", {{"a", "b"}}},
        {"a\tb\n", {{"a", "b"}}},
        {"a\tb\r\nc\td\r\n", {{"a", "b"}, {"c", "d"}}},
        {"\xEF\xBB\xBF"
         "a\t\xC3\xA9",
         {{"a", "\xC3\xA9"}}},
        {" a \t b ", {{" a ", " b "}}},
        {"a\\nb\\tc\\\\\t\\\\n", {{"a\nb\tc\\", "\\n"}}},
        {"a\t#b", {{"a", "#b"}}},
        {"a\tb\na\tc", {{"a", "b"}, {"a", "c"}}},
    };
    for (const auto& row : rows) {
        const vapp_text::TTranslationTable read = ReadTranslationTable(row.table);
        EXPECT_EQ(read.wrongLine, 0) << row.table;
        EXPECT_EQ(read.texts, row.texts) << row.table;
    }
}

TEST(TranslationTable, AWrongLineIsNamedAndNothingIsRead) {
    using namespace std::string_view_literals;
    const struct {
        std::string_view table;
        int line;
    } rows[] = {
        {"a", 1},       {"a\tb\nc", 2},       {"a\t", 1},  {"\tb", 1},       {"a\tb\tc", 1},  {"a\tb\\", 1},
        {"a\\x\tb", 1}, {"#\n\n\na\\\tb", 4}, {" #\n", 1}, {"a\tb\0c"sv, 1}, {"a\0\tb"sv, 1},
    };
    for (const auto& row : rows) {
        const vapp_text::TTranslationTable read = ReadTranslationTable(row.table);
        EXPECT_EQ(read.wrongLine, row.line) << row.table;
        EXPECT_TRUE(read.texts.empty()) << row.table;
    }
}
