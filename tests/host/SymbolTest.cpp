/// The reader of the drawing format: each record, and what hostile files do to it.

#include "host/Symbol.h"

#include <gtest/gtest.h>

#include <random>

namespace navigator {
namespace {

constexpr const char* csEveryRecord =
    "v {file_version=1.0}\n"
    "G {type=old}\nK {type=new\ntemplate=\"name=R1 value=1k\"}\nV {}\nS {}\nE {}\n"
    "L 4 0 -40 0 40 {dash=3}\n"
    "B 5 -2.5 -42.5 2.5 -37.5 {name=p dir=in}\n"
    "P 4 3 0 0 10 0 0 10 {fill=true}\n"
    "A 4 1 2 3 270 180 {}\n"
    "T {two\nlines \\{x\\} {in}} 5 6 1 1 0.2 0.3 {layer=7}\n"
    "N 0 0 100 0 {lab=a}\n"
    "C {basic/res.sym} 10 20 3 1 {name=R2}\n";

TEST(Symbol, ReadsEveryRecord) {
    const Symbol symbol = gParseSymbol(csEveryRecord);
    EXPECT_EQ(symbol.skippedLines, 0u);
    EXPECT_EQ(symbol.Property("type"), "new");
    EXPECT_EQ(symbol.Property("template"), "name=R1 value=1k");
    ASSERT_EQ(symbol.lines.size(), 1u);
    EXPECT_EQ(symbol.lines[0].y1, -40);
    EXPECT_EQ(symbol.lines[0].properties, "dash=3");
    ASSERT_EQ(symbol.boxes.size(), 1u);
    EXPECT_EQ(symbol.boxes[0].layer, cnPinLayer);
    ASSERT_EQ(symbol.polygons.size(), 1u);
    EXPECT_EQ(symbol.polygons[0].points.size(), 3u);
    ASSERT_EQ(symbol.arcs.size(), 1u);
    EXPECT_EQ(symbol.arcs[0].sweep, 180);
    ASSERT_EQ(symbol.texts.size(), 1u);
    EXPECT_EQ(symbol.texts[0].text, "two\nlines {x} {in}");
    EXPECT_EQ(symbol.texts[0].rotation, 1);
    EXPECT_TRUE(symbol.texts[0].flip);
    EXPECT_EQ(symbol.texts[0].vsize, 0.3);
    ASSERT_EQ(symbol.wires.size(), 1u);
    ASSERT_EQ(symbol.instances.size(), 1u);
    EXPECT_EQ(symbol.instances[0].reference, "basic/res.sym");
    EXPECT_EQ(symbol.instances[0].rotation, 3);
}

TEST(Symbol, TakesThePropertyOfBlockGWhereBlockKHasNone) {
    EXPECT_EQ(gParseSymbol("G {type=resistor}\nV {}\n").Property("type"), "resistor");
    EXPECT_EQ(gParseSymbol("G {type=resistor}\nK {}\n").Property("type"), "resistor");
}

TEST(Symbol, CountsTheLinesThatItCannotRead) {
    const char* const broken[] = {"X 1 2 3",
                                  "L 4 0 0 0",
                                  "L four 0 0 1 1 {}",
                                  "P 4 99999999999999 0 0 1 1 {}",
                                  "P 4 -1 {}",
                                  "P 4 0 {}",
                                  "L 4 1e300 0 0 0 {}",
                                  "L 4 1e999 0 0 0 {}",
                                  "L 4 nan 0 0 0 {}",
                                  "L 4 inf 0 0 0 {}",
                                  "T no brace 0 0 0 0 1 1 {}",
                                  "C {ref} 0 0 {}",
                                  "]",
                                  "hello"};
    for (const char* line : broken) {
        const Symbol symbol = gParseSymbol(std::string(line) + "\nL 4 0 0 1 1 {}\n");
        EXPECT_EQ(symbol.skippedLines, 1u) << line;
        EXPECT_EQ(symbol.lines.size(), 1u) << line;
    }
}

TEST(Symbol, ReadsARecordWithoutPropertiesAndWithCarriageReturns) {
    const Symbol symbol = gParseSymbol("L 4 0 0 +1 -0 \r\n\r\nN 0 0 1 1 {}\r\n");
    EXPECT_EQ(symbol.skippedLines, 0u);
    EXPECT_EQ(symbol.lines.size(), 1u);
    EXPECT_EQ(symbol.wires.size(), 1u);
}

TEST(Symbol, EmbeddedSymbolsBelongToTheInstanceBefore) {
    const Symbol symbol =
        gParseSymbol("C {x.sym} 0 0 0 0 {}\n[\nK {type=x}\nL 4 0 0 1 1 {}\n]\nN 0 0 1 1 {}\n");
    EXPECT_EQ(symbol.skippedLines, 0u);
    EXPECT_EQ(symbol.lines.size(), 0u);
    EXPECT_EQ(symbol.wires.size(), 1u);
    ASSERT_EQ(symbol.instances.size(), 1u);
    ASSERT_NE(symbol.instances[0].embedded, nullptr);
    EXPECT_EQ(symbol.instances[0].embedded->lines.size(), 1u);
    EXPECT_EQ(symbol.Property("type"), "");
}

TEST(Symbol, DeepEmbeddingIsCutAndTheRestIsRead) {
    std::string text;
    for (int depth = 0; depth < 5000; ++depth)
        text += "C {x} 0 0 0 0 {}\n[\n";
    for (int depth = 0; depth < 5000; ++depth)
        text += "]\n";
    text += "N 0 0 1 1 {}\n";
    const Symbol symbol = gParseSymbol(text);
    EXPECT_EQ(symbol.wires.size(), 1u);
    EXPECT_GT(symbol.skippedLines, 0u);
}

TEST(Symbol, AnOpenBraceCostsItsLineAndManyOfThemEndTheReading) {
    const Symbol one = gParseSymbol("T {never closed\nL 4 0 0 1 1\n");
    EXPECT_EQ(one.skippedLines, 1u);
    EXPECT_EQ(one.lines.size(), 1u);
    std::string text;
    for (int line = 0; line < 200000; ++line)
        text += "T {\n";
    const Symbol many = gParseSymbol(text);
    EXPECT_EQ(many.skippedLines, 200000u);
}

TEST(Symbol, NestedBracesCostNoStack) {
    const Symbol symbol =
        gParseSymbol("T {" + std::string(300000, '{') + std::string(300000, '}') + "} 0 0 0 0 1 1 {}\n");
    ASSERT_EQ(symbol.texts.size(), 1u);
    EXPECT_EQ(symbol.texts[0].text.size(), 600000u);
}

TEST(Symbol, RotationsWrapAndLayersAreBounded) {
    const Symbol symbol =
        gParseSymbol("C {x} 0 0 7 2 {}\nC {x} 0 0 -1 0 {}\nL 999999999 0 0 1 1 {}\nL -5 0 0 1 1 {}\n");
    EXPECT_EQ(symbol.instances[0].rotation, 3);
    EXPECT_TRUE(symbol.instances[0].flip);
    EXPECT_EQ(symbol.instances[1].rotation, 3);
    EXPECT_EQ(symbol.lines[0].layer, 1000);
    EXPECT_EQ(symbol.lines[1].layer, 0);
}

TEST(Symbol, TheHeadStopsAtTheFirstDrawingRecord) {
    bool isComplete = false;
    const Symbol whole = gParseSymbolHead(csEveryRecord, isComplete);
    EXPECT_TRUE(isComplete);
    EXPECT_EQ(whole.Property("type"), "new");
    EXPECT_TRUE(whole.lines.empty());
    gParseSymbolHead("G {type=x}\nK {cut o", isComplete);
    EXPECT_FALSE(isComplete);
}

TEST(Symbol, EveryTruncationOfAFileIsRead) {
    const std::string text = csEveryRecord;
    for (std::size_t length = 0; length <= text.size(); ++length) {
        const Symbol symbol = gParseSymbol(text.substr(0, length));
        EXPECT_LE(symbol.skippedLines, 3u) << length;
    }
}

TEST(Symbol, RandomDamageNeverEndsBadly) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string marks("{}\\[]\n\0CLBPATNKGv\"=@ -9e.", 25);
    for (int round = 0; round < 3000; ++round) {
        std::string text = csEveryRecord;
        for (int damage = 0; damage < 8; ++damage)
            text[random() % text.size()] = marks[random() % marks.size()];
        const Symbol symbol = gParseSymbol(text);
        const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
        EXPECT_LE(symbol.skippedLines, lines);
    }
}

}  // namespace
}  // namespace navigator
