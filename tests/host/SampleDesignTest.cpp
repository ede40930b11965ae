/// The sample design shows what it was drawn for, and design libraries of the machine, where it has them,
/// open whole.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/DesignStore.h"
#include "host/SymbolPainter.h"

namespace navigator {
namespace {

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
