/// Descending into schematics, straight ones and such that never end.

#include "host/Hierarchy.h"

#include <gmock/gmock.h>

#include "tests/host/TempFolder.h"

namespace navigator_test {
namespace {

using navigator::DesignStore;
using navigator::Hierarchy;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class HierarchyTest : public testing::Test {
protected:
    Hierarchy Below(const char* cell, const char* view) {
        EXPECT_FALSE(m_store.OpenFolder(m_folder.Path()));
        const std::string design = m_store.Designs().front().name;
        return navigator::gHierarchyBelow(m_store, m_store.Find(design, "lib", cell, view));
    }
    static std::vector<std::string> Names(const Hierarchy& below) {
        std::vector<std::string> names;
        for (const navigator::CellViewRef& view : below.views)
            names.push_back(view.library->name + " " + view.file->cell + " " + view.file->view);
        return names;
    }

    TempFolder m_folder;
    DesignStore m_store;
};

TEST_F(HierarchyTest, EveryCellBelowIsMetOnce) {
    m_folder.Write("lib/top.sch", SchematicOf("a", "b", "a"));
    m_folder.Write("lib/a.sym", "v {}\n");
    m_folder.Write("lib/a.sch", SchematicOf("other/c"));
    m_folder.Write("lib/b.sym", "v {}\n");
    m_folder.Write("other/c.sym", "v {}\n");
    m_folder.Write("lib/unused.sym", "v {}\n");
    const Hierarchy below = Below("top", "schematic");
    EXPECT_THAT(Names(below),
                ElementsAre("lib a symbol", "lib a schematic", "lib b symbol", "other c symbol"));
    EXPECT_EQ(below.missing, 0);
}

TEST_F(HierarchyTest, FromASymbolItGoesByTheSchematicOfTheCell) {
    m_folder.Write("lib/a.sym", "v {}\n");
    m_folder.Write("lib/a.sch", SchematicOf("b"));
    m_folder.Write("lib/b.sym", "v {}\n");
    EXPECT_THAT(Names(Below("a", "symbol")), ElementsAre("lib b symbol"));
}

TEST_F(HierarchyTest, ACircleEndsWhereItBegan) {
    m_folder.Write("lib/a.sym", "v {}\n");
    m_folder.Write("lib/a.sch", SchematicOf("b"));
    m_folder.Write("lib/b.sym", "v {}\n");
    m_folder.Write("lib/b.sch", SchematicOf("a", "b"));
    EXPECT_THAT(Names(Below("a", "schematic")),
                UnorderedElementsAre("lib a symbol", "lib a schematic", "lib b symbol", "lib b schematic"));
}

TEST_F(HierarchyTest, WhatIsMissingIsCountedAndTheRestIsFound) {
    m_folder.Write("lib/a.sch", SchematicOf("gone", "b", "gone/too"));
    m_folder.Write("lib/b.sym", "v {}\n");
    const Hierarchy below = Below("a", "schematic");
    EXPECT_THAT(Names(below), ElementsAre("lib b symbol"));
    EXPECT_EQ(below.missing, 2);
}

TEST_F(HierarchyTest, AnEmbeddedSymbolIsNotMissing) {
    m_folder.Write("lib/a.sch", "v {}\nC {own} 0 0 0 0 {name=X}\n[\nv {}\nL 4 0 0 1 1 {}\n]\n");
    EXPECT_EQ(Below("a", "schematic").missing, 0);
}

TEST_F(HierarchyTest, NothingIsBelowWhatHasNoSchematic) {
    m_folder.Write("lib/a.sym", "v {}\n");
    EXPECT_THAT(Names(Below("a", "symbol")), IsEmpty());
    EXPECT_THAT(Names(navigator::gHierarchyBelow(m_store, {})), IsEmpty());
}

TEST_F(HierarchyTest, AVeryLongChainIsNoDepth) {
    constexpr int cnLength = 1000;
    for (int cell = 0; cell < cnLength; ++cell) {
        const std::string name = "lib/c" + std::to_string(cell);
        m_folder.Write(name + ".sch", SchematicOf(("c" + std::to_string(cell + 1)).c_str()));
        m_folder.Write(name + ".sym", "v {}\n");
    }
    const Hierarchy below = Below("c0", "schematic");
    EXPECT_EQ(below.views.size(), 2U * (cnLength - 1));
    EXPECT_EQ(below.missing, 1);
}

}  // namespace
}  // namespace navigator_test
