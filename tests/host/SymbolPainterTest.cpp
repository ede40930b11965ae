/// Pixels: size, ratio, fit, colours, sharpness; and whole designs, drawn to the last view: the sample, and
/// the libraries that the machine has, if any.

#include "host/SymbolPainter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/LayerColours.h"
#include "tests/host/TempFolder.h"

namespace navigator {
namespace {

using navigator_test::SchematicOf;
using navigator_test::TempFolder;

class NoSymbols : public SymbolSource {
public:
    FoundSymbol Resolve(const std::string&, const std::string&) override { return {}; }
};

QImage Paint(const std::string& text, const PictureRequest& request) {
    NoSymbols source;
    return gPaintDrawing(gListDrawing(gParseSymbol(text), "l", "c", source), request);
}

/// The rectangle of pixels that differ from the background.
QRect Inked(const QImage& image, bool isDark) {
    QRect inked;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != gDrawingBackground(isDark)) inked |= QRect(x, y, 1, 1);
        }
    }
    return inked;
}

int CountColour(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}

TEST(SymbolPainter, ThePictureHasTheAskedSizeAndRatio) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QImage image = Paint("L 4 0 0 10 10 {}\n", {100, 80, scale, false});
        EXPECT_EQ(image.size(), QSize(int(100 * scale), int(80 * scale)));
        EXPECT_EQ(image.devicePixelRatio(), scale);
    }
}

TEST(SymbolPainter, APictureWithoutAreaOrBeyondAllSizeIsNull) {
    for (const PictureRequest& request :
         {PictureRequest{0, 10, 1, false}, PictureRequest{10, -1, 1, false}, PictureRequest{10, 10, 0, false},
          PictureRequest{20000, 10, 1, false}, PictureRequest{10000, 10, 2, false}})
        EXPECT_TRUE(Paint("L 4 0 0 10 10 {}\n", request).isNull());
}

TEST(SymbolPainter, TheDrawingIsFittedCentredAndKeepsItsMargin) {
    for (const bool isDark : {false, true}) {
        const QRect inked =
            Inked(Paint("B 4 -1000 -500 1000 500 {fill=false}\n", {300, 300, 1, isDark}), isDark);
        EXPECT_NEAR(inked.center().x(), 150, 1);
        EXPECT_NEAR(inked.center().y(), 150, 1);
        EXPECT_NEAR(inked.left(), 8, 2);
        EXPECT_NEAR(inked.right(), 292, 2);
        EXPECT_NEAR(inked.height(), 142, 3);
    }
}

TEST(SymbolPainter, ASmallSymbolIsNotBlownUp) {
    const QRect inked = Inked(Paint("B 4 -5 -5 5 5 {fill=false}\n", {400, 400, 1, false}), false);
    EXPECT_LT(inked.width(), 60);
}

TEST(SymbolPainter, LinesAlongTheAxesAreSharpAtEveryScale) {
    for (const double scale : {1.0, 2.0, 3.0}) {
        const QImage image = Paint("N -97 -33 101 -33 {}\nN 13 -80 13 60 {}\n", {333, 217, scale, false});
        const QColor wire = gLayerColour(1, false);
        int between = 0;
        // Away from the round ends and the crossing every pixel is line or background, nothing between.
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, image.height() * 4 / 5);
            between += pixel != wire && pixel != gDrawingBackground(false) ? 1 : 0;
        }
        EXPECT_EQ(between, 0) << scale;
        EXPECT_GT(CountColour(image, wire), 0) << scale;
    }
}

TEST(SymbolPainter, ThemesAndLayersGiveTheColours) {
    for (const bool isDark : {false, true}) {
        const QImage image = Paint("B 5 -10 -10 10 10 {}\nL 4 -50 30 50 30 {}\n", {200, 200, 1, isDark});
        EXPECT_EQ(image.pixelColor(0, 0), gDrawingBackground(isDark));
        EXPECT_GT(CountColour(image, gLayerColour(cnPinLayer, isDark)), 100);
        EXPECT_GT(CountColour(image, gLayerColour(4, isDark)), 50);
    }
}

TEST(SymbolPainter, OddDrawingsLeaveAPicture) {
    for (const char* text :
         {"", "L 4 7 7 7 7 {}\n", "A 4 0 0 0 0 0 {}\n", "A 4 0 0 5 0 1e9 {}\n", "P 4 1 0 0 {fill=true}\n",
          "L 4 -1e9 -1e9 1e9 1e9 {}\n", "T {x} 0 0 0 0 1e9 1e-9 {}\n", "T {x} 0 0 0 0 0 0 {}\n",
          "T {x} 0 0 0 0 -1 -1 {}\n", "L 4 1e-300 0 0 1e-300 {}\n"})
        EXPECT_EQ(Paint(text, {120, 90, 1, false}).size(), QSize(120, 90)) << text;
}

TEST(SymbolPainter, ViewsOfAStoreArePaintedByTheirKind) {
    const TempFolder folder;
    folder.Write("d/l/a.sym", "L 4 0 0 100 0 {}\n");
    folder.Write("d/l/a.sch", SchematicOf("a", "absent"));
    folder.Write("d/l/a.v", "module a;\nendmodule\n");
    DesignStore store;
    ASSERT_EQ(store.OpenFolder(folder.Path() / "d"), std::nullopt);
    const PictureRequest request{200, 150, 2, false};
    const auto paint = [&](const char* view) {
        return gPaintView(store, store.Find("d", "l", "a", view), request);
    };
    EXPECT_GT(CountColour(paint("symbol"), gLayerColour(4, false)), 100);
    EXPECT_GT(CountColour(paint("schematic"), gLayerColour(4, false)), 50);
    EXPECT_GT(CountColour(paint("schematic"), gMissingColour(false)), 20);
    EXPECT_FALSE(Inked(paint("verilog"), false).isNull());
    EXPECT_TRUE(Inked(paint("none"), false).isNull());
    EXPECT_EQ(paint("none").size(), QSize(400, 300));
    std::filesystem::remove_all(folder.Path() / "d");
    for (const char* view : {"symbol", "schematic", "verilog"})
        EXPECT_TRUE(Inked(paint(view), false).isNull()) << view;
}

/// Reads every drawing of the store's first design; the number of views.
std::size_t ReadAll(DesignStore& store) {
    std::size_t count = 0;
    const Design& design = store.Designs().front();
    for (const Library& library : design.libraries) {
        for (const ViewFile& file : library.files) {
            ++count;
            const CellViewRef view{&design, &library, &file};
            if (file.format != ViewFormat::Symbol && file.format != ViewFormat::Schematic) continue;
            const auto symbol = store.Load(view);
            EXPECT_NE(symbol, nullptr) << library.name << " " << file.cell;
            if (symbol != nullptr) {
                EXPECT_EQ(symbol->skippedLines, 0u) << library.name << " " << file.cell << " " << file.view;
            }
            EXPECT_FALSE(gPaintView(store, view, {120, 90, 1, false}).isNull());
        }
    }
    return count;
}

TEST(SampleDesign, OpensWholeAndShowsEveryState) {
    DesignStore store;
    ASSERT_EQ(store.OpenFolder(SAMPLE_DESIGN), std::nullopt);
    EXPECT_GE(ReadAll(store), 45u);
    const auto find = [&](const char* library, const char* cell, const char* view) {
        const CellViewRef found = store.Find("sample", library, cell, view);
        EXPECT_TRUE(found) << library << " " << cell << " " << view;
        return found;
    };
    EXPECT_EQ(store.CacheWord(find("top", "chip", "schematic")), "Unresolved");
    EXPECT_EQ(store.CacheWord(find("analog", "verst\xC3\xA4rker", "schematic")), "Normal");
    EXPECT_TRUE(store.Flag(find("basic", "via12", "symbol"), CellKey::IsStdViaDef));
    EXPECT_TRUE(store.Flag(find("basic", "via_stack", "symbol"), CellKey::IsCustomViaDef));
    EXPECT_TRUE(store.Flag(find("basic", "guard_ring", "symbol"), CellKey::IsGuardRing));
    EXPECT_TRUE(store.Flag(find("analog", "res_array", "symbol"), CellKey::IsVCell));
    EXPECT_TRUE(store.Flag(find("top", "pad_ring", "layout"), CellKey::IsFab));
    EXPECT_TRUE(store.Flag(find("top", "scratch", "symbol"), CellKey::IsHiddenInLists));
    find("top", "bank2", "symbol");
    find("top", "bank10", "symbol");
    EXPECT_EQ(DesignStore::TopLibrary(store.Designs().front()), "top");
}

TEST(SampleDesign, HasExactlyOneReferenceThatLeadsNowhere) {
    DesignStore store;
    ASSERT_EQ(store.OpenFolder(SAMPLE_DESIGN), std::nullopt);
    std::vector<std::string> unresolved;
    const Design& design = store.Designs().front();
    for (const Library& library : design.libraries) {
        for (const ViewFile& file : library.files) {
            if (store.CacheWord({&design, &library, &file}) != "Normal") unresolved.push_back(file.cell);
        }
    }
    EXPECT_THAT(unresolved, testing::ElementsAre("chip"));
}

TEST(InstalledLibraries, OpenWholeWithoutASkippedLine) {
    const std::filesystem::path folder = "/usr/share/xschem/xschem_library";
    if (!std::filesystem::is_directory(folder)) GTEST_SKIP() << "no libraries at " << folder;
    DesignStore store;
    ASSERT_EQ(store.OpenFolder(folder), std::nullopt);
    EXPECT_NE(store.FindDesign("xschem_library"), nullptr);
    EXPECT_GE(ReadAll(store), 130u);
    EXPECT_EQ(store.CacheWord(store.Find("xschem_library", "mylib", "nand2", "schematic")), "Normal");
}

}  // namespace
}  // namespace navigator
