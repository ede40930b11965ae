// The printf family of CString, with the size prefix that user texts are written with.

#include <gtest/gtest.h>

#include <cinttypes>
#include <string>

#include "vapp/text/CString.h"

namespace {

// A format of run time, as texts of users and translations are.
CString FormatText(const char* format, ...) {
    CString text;
    va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    return text;
}

TEST(CStringFormat, FormatsAndAppends) {
    CString text("old");
    text.Format("%d %s %5.2f|%-4d|", 7, "seven", 7.5, 7);
    EXPECT_EQ(text, "7 seven  7.50|7   |");
    text.AppendFormat("%c", '!');
    EXPECT_EQ(text, "7 seven  7.50|7   |!");
    text.Format("<%s>", text.GetString());
    EXPECT_EQ(text, "<7 seven  7.50|7   |!>") << "its own text may be an argument";
}

TEST(CStringFormat, SizePrefixStandsForASizeOfThisMachine) {
    const std::size_t large = 5'000'000'000U;
    EXPECT_EQ(FormatText("%Iu cells", large), "5000000000 cells");
    EXPECT_EQ(FormatText("%Iu of %Iu cells", std::size_t{3}, large), "3 of 5000000000 cells");
    EXPECT_EQ(FormatText("%Id", std::ptrdiff_t{-5'000'000'000}), "-5000000000");
    EXPECT_EQ(FormatText("%Ix|%IX", large, large), "12a05f200|12A05F200");
    EXPECT_EQ(FormatText("%-12Iu|%012Iu", large, large), "5000000000  |005000000000");
    EXPECT_EQ(FormatText("%I64d %I64u", INT64_C(-5'000'000'000), UINT64_C(5'000'000'000)),
              "-5000000000 5000000000");
    EXPECT_EQ(FormatText("%I32d", 42), "42");
}

TEST(CStringFormat, PrefixIsReadInsideOfAConversionOnly) {
    EXPECT_EQ(FormatText("I %% I %d I64 %%Iu %s", 1, "I32"), "I % I 1 I64 %Iu I32");
    EXPECT_EQ(FormatText("%dIu", 1), "1Iu");
}

TEST(CStringFormat, LongResultsKeepTheirLength) {
    for (const int length : {254, 255, 256, 257, 70000}) {
        const std::string text(static_cast<std::size_t>(length), 'x');
        EXPECT_EQ(FormatText("%s", text.c_str()).View(), text);
    }
}

TEST(CStringFormat, NoFormatGivesEmptyText) {
    EXPECT_EQ(FormatText(""), "");
    EXPECT_EQ(FormatText(nullptr), "");
}

}  // namespace
