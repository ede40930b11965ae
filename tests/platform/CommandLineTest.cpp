#include "platform/CommandLine.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace {

using vapp_platform::JoinCommandLine;
using vapp_platform::QuoteArgument;
using vapp_platform::SplitCommandLine;
using Arguments = std::vector<std::string>;

struct LineRow {
    const char* line;
    Arguments arguments;
};

TEST(CommandLine, SplitsByTheQuotingRules) {
    const LineRow rows[] = {
        {"", {}},
        {" \t ", {}},
        {"prog", {"prog"}},
        {"  prog\ta  b ", {"prog", "a", "b"}},
        {R"("C:\dir with blank\prog.exe" -batch -X)", {R"(C:\dir with blank\prog.exe)", "-batch", "-X"}},
        {R"("C:\dir\" x)", {R"(C:\dir\)", "x"}},
        {R"(C:\d"i r"\prog x)", {R"(C:\di r\prog)", "x"}},
        {R"(p "a b c" d e)", {"p", "a b c", "d", "e"}},
        {R"(p "ab\"c" "\\" d)", {"p", "ab\"c", "\\", "d"}},
        {R"(p a\\\b d"e f"g h)", {"p", R"(a\\\b)", "de fg", "h"}},
        {R"(p a\\\"b c d)", {"p", R"(a\"b)", "c", "d"}},
        {R"(p a\\\\"b c" d e)", {"p", R"(a\\b c)", "d", "e"}},
        {R"(p "a b""c d" e)", {"p", "a b\"c d", "e"}},
        {R"(p "")", {"p", ""}},
        {R"(p """")", {"p", "\""}},
        {R"(p "unclosed a)", {"p", "unclosed a"}},
        {R"(p \)", {"p", "\\"}},
        {"p a\nb", {"p", "a\nb"}},
        {"\"\" x", {"", "x"}},
    };
    for (const LineRow& row : rows)
        EXPECT_EQ(SplitCommandLine(row.line), row.arguments) << row.line;
}

TEST(CommandLine, QuotesOnlyWhatNeedsIt) {
    EXPECT_EQ(QuoteArgument("plain"), "plain");
    EXPECT_EQ(QuoteArgument(R"(back\slash\)"), R"(back\slash\)");
    EXPECT_EQ(QuoteArgument(""), R"("")");
    EXPECT_EQ(QuoteArgument("a b"), R"("a b")");
    EXPECT_EQ(QuoteArgument(R"(a b\)"), R"("a b\\")");
    EXPECT_EQ(QuoteArgument(R"(a\"b)"), R"("a\\\"b")");
}

TEST(CommandLine, AProgramsQuoteIsLeftOut) {
    EXPECT_EQ(JoinCommandLine({"a\"b", "x"}), "ab x");
    EXPECT_EQ(JoinCommandLine({"", "x"}), "\"\" x");
}

TEST(CommandLine, SplittingUndoesJoining) {
    const std::uint32_t seed = std::random_device()();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    const std::string_view signs = "\\\\\\\"\" \tab\n'%$\xc3\xa9";
    for (int round = 0; round < 20000; ++round) {
        Arguments arguments = {"C:\\some program\\x"};
        for (std::size_t count = random() % 5; count > 0; --count) {
            std::string argument;
            for (std::size_t length = random() % 8; length > 0; --length)
                argument += signs[random() % signs.size()];
            arguments.push_back(argument);
        }
        const std::string line = JoinCommandLine(arguments);
        ASSERT_EQ(SplitCommandLine(line), arguments) << line;
    }
}

TEST(CommandLine, AnyLineIsSplitAndGrowsNoBytes) {
    const std::uint32_t seed = std::random_device()();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    for (int round = 0; round < 20000; ++round) {
        std::string line;
        for (std::size_t length = random() % 30; length > 0; --length)
            line += "\\\" \tx"[random() % 5];
        std::size_t bytes = 0;
        for (const std::string& argument : SplitCommandLine(line))
            bytes += argument.size();
        ASSERT_LE(bytes, line.size()) << line;
    }
}

}  // namespace
