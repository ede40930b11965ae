/// Drawings with their instances resolved: places, limits, texts.

#include "host/DisplayList.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace navigator {
namespace {

/// Symbols by reference.
class MapSource : public SymbolSource {
public:
    void Add(const std::string& reference, const std::string& text) {
        m_symbols[reference] = std::make_shared<Symbol>(gParseSymbol(text));
    }
    FoundSymbol Resolve(const std::string& library, const std::string& reference) override {
        const auto found = m_symbols.find(reference);
        return found == m_symbols.end() ? FoundSymbol() : FoundSymbol{found->second, library, reference};
    }

private:
    std::map<std::string, std::shared_ptr<Symbol>> m_symbols;
};

DisplayList List(const std::string& text, SymbolSource& source) {
    return gListDrawing(gParseSymbol(text), "lib", "cell", source);
}

DisplayList List(const std::string& text) {
    MapSource source;
    return List(text, source);
}

TEST(DisplayList, PlacementFlipsFirstAndThenTurnsClockwise) {
    struct Row {
        int rotation;
        bool flip;
        QPointF expected;
    };
    // Where the point (10, 3) goes; y points down.
    const Row rows[] = {{0, false, {10, 3}},  {1, false, {-3, 10}}, {2, false, {-10, -3}},
                        {3, false, {3, -10}}, {0, true, {-10, 3}},  {1, true, {-3, -10}},
                        {2, true, {10, -3}},  {3, true, {3, 10}}};
    for (const Row& row : rows) {
        EXPECT_EQ(gPlacement(100, 200, row.rotation, row.flip).map(QPointF(10, 3)),
                  row.expected + QPointF(100, 200))
            << row.rotation << row.flip;
    }
}

TEST(DisplayList, AnInstanceIsDrawnAtItsPlaceWithItsValues) {
    MapSource source;
    source.Add(
        "res",
        "K {template=\"name=R1 value=1k\"}\nL 4 0 -40 0 40 {}\nT {@name=@value} 10 0 0 0 0.2 0.2 {}\n");
    const DisplayList list = List("C {res} 100 50 1 0 {name=R7}\n", source);
    ASSERT_EQ(list.strokes.size(), 1u);
    EXPECT_EQ(list.strokes[0].points, QPolygonF(QList<QPointF>{{140, 50}, {60, 50}}));
    ASSERT_EQ(list.texts.size(), 1u);
    EXPECT_EQ(list.texts[0].text, "R7=1k");
    EXPECT_TRUE(list.texts[0].isVertical);
}

TEST(DisplayList, TextsKeepTheirCornerAtTheirPlace) {
    const auto box = [](const char* turn) {
        return List(std::string("T {word} 100 100 ") + turn + " 0.4 0.4 {}\n").texts.at(0).box;
    };
    EXPECT_EQ(box("0 0").topLeft(), QPointF(100, 100));
    EXPECT_EQ(box("0 1").topRight(), QPointF(100, 100));
    EXPECT_EQ(box("1 0").topRight(), QPointF(100, 100));
    EXPECT_EQ(box("2 0").bottomRight(), QPointF(100, 100));
    EXPECT_EQ(box("3 0").bottomLeft(), QPointF(100, 100));
    EXPECT_GT(box("0 0").width(), box("0 0").height());
    EXPECT_GT(box("1 0").height(), box("1 0").width());
    const QRectF centred = List("T {word} 100 100 0 0 0.4 0.4 {hcenter=true vcenter=true}\n").texts.at(0).box;
    EXPECT_NEAR(centred.center().x(), 100, 1e-6);
    EXPECT_NEAR(centred.center().y(), 100, 1e-6);
}

TEST(DisplayList, HiddenAndEmptyTextsAreLeftOut) {
    EXPECT_TRUE(List("T {x} 0 0 0 0 1 1 {hide=true}\nT {@none} 0 0 0 0 1 1 {}\nT { } 0 0 0 0 1 1 {}\n")
                    .texts.empty());
}

TEST(DisplayList, ArcsRunCounterClockwise) {
    const DisplayList list = List("A 4 0 0 10 0 90 {}\n");
    ASSERT_EQ(list.strokes.size(), 1u);
    EXPECT_NEAR(list.strokes[0].points.front().x(), 10, 1e-9);
    EXPECT_NEAR(list.strokes[0].points.last().y(), -10, 1e-9);
}

TEST(DisplayList, WiresThatMeetGetADotAndCrossingOnesDoNot) {
    const auto dots = [](const char* text) {
        int count = 0;
        for (const Stroke& stroke : List(text).strokes)
            count += stroke.kind == StrokeKind::Junction ? 1 : 0;
        return count;
    };
    EXPECT_EQ(dots("N 0 0 100 0 {}\nN 100 0 100 50 {}\n"), 0) << "a corner";
    EXPECT_EQ(dots("N 0 0 100 0 {}\nN 50 0 50 50 {}\n"), 1) << "an end on a wire";
    EXPECT_EQ(dots("N 0 0 50 0 {}\nN 50 0 100 0 {}\nN 50 0 50 50 {}\n"), 1) << "three ends";
    EXPECT_EQ(dots("N 0 0 100 0 {}\nN 50 -50 50 50 {}\n"), 0) << "a crossing";
}

TEST(DisplayList, WhatCannotBeFoundIsABoxWithItsName) {
    const DisplayList list = List("C {ip/serdes.sym} 0 0 0 0 {}\n");
    ASSERT_EQ(list.strokes.size(), 1u);
    EXPECT_EQ(list.strokes[0].kind, StrokeKind::Missing);
    ASSERT_EQ(list.texts.size(), 1u);
    EXPECT_EQ(list.texts[0].text, "ip/serdes.sym");
}

TEST(DisplayList, AnEmbeddedSymbolNeedsNoLibrary) {
    const DisplayList list = List("C {x} 5 0 0 0 {}\n[\nL 4 0 0 1 1 {}\n]\n");
    ASSERT_EQ(list.strokes.size(), 1u);
    EXPECT_EQ(list.strokes[0].points.front(), QPointF(5, 0));
}

TEST(DisplayList, SymbolsThatContainThemselvesEnd) {
    MapSource source;
    source.Add("a", "L 4 0 0 1 1 {}\nC {b} 0 0 0 0 {}\n");
    source.Add("b", "C {a} 0 0 0 0 {}\n");
    const DisplayList list = List("C {a} 0 0 0 0 {}\n", source);
    EXPECT_TRUE(list.isCut);
    EXPECT_LT(list.strokes.size(), 10u);
}

TEST(DisplayList, FewFilesThatUnfoldToMillionsAreCut) {
    MapSource source;
    for (int level = 0; level < 8; ++level) {
        std::string text;
        for (int copy = 0; copy < 20; ++copy)
            text += "C {s" + std::to_string(level + 1) + "} 0 0 0 0 {}\n";
        source.Add("s" + std::to_string(level), text);
    }
    source.Add("s8", "L 4 0 0 1 1 {}\n");
    const DisplayList list = List("C {s0} 0 0 0 0 {}\n", source);
    EXPECT_TRUE(list.isCut);
    EXPECT_LE(list.strokes.size(), cnMostItems);
}

TEST(DisplayList, BoundsCountLinesWithoutArea) {
    EXPECT_EQ(List("L 4 0 -10 0 30 {}\n").Bounds(), QRectF(0, -10, 0, 40));
    EXPECT_TRUE(List("").Bounds().isNull());
}

}  // namespace
}  // namespace navigator
