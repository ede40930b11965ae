/// Opening, finding, answering and finding changes.

#include "host/DesignStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/host/TempFolder.h"

namespace navigator {
namespace {

using navigator_test::SchematicOf;
using navigator_test::TempFolder;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> LibraryNames(const Design& design) {
    std::vector<std::string> names;
    for (const Library& library : design.libraries)
        names.push_back(library.name);
    return names;
}

/// A store with one design, "d".
struct OpenStore {
    TempFolder folder;
    DesignStore store;

    void Open() { ASSERT_EQ(store.OpenFolder(folder.Path() / "d"), std::nullopt); }
    CellViewRef Find(const char* library, const char* cell, const char* view) const {
        return store.Find("d", library, cell, view);
    }
    std::string Cache(const char* library, const char* cell, const char* view = "schematic") {
        return store.CacheWord(Find(library, cell, view));
    }
};

TEST(DesignStore, SubFoldersAreLibrariesAndOwnFilesAreOneMore) {
    OpenStore open;
    for (const char* file : {"d/lib10/a.sym", "d/lib9/a.sym", "d/.git/a.sym", "d/own.sym", "d/readme"})
        open.folder.Write(file, "");
    std::filesystem::create_directory(open.folder.Path() / "d/empty");
    open.Open();
    EXPECT_THAT(LibraryNames(open.store.Designs()[0]), ElementsAre("d", "empty", "lib10", "lib9"));
    EXPECT_TRUE(open.Find("d", "own", "symbol"));
}

TEST(DesignStore, DesignsAndLibrariesOfOneNameStayApart) {
    OpenStore open;
    open.folder.Write("d/d/a.sym", "");
    open.folder.Write("d/b.sym", "");
    open.folder.Write("other/d/x/y.sym", "");
    open.Open();
    EXPECT_THAT(LibraryNames(open.store.Designs()[0]), ElementsAre("d", "d~2"));
    EXPECT_EQ(open.store.OpenFolder(open.folder.Path() / "other" / "d"), std::nullopt);
    EXPECT_EQ(open.store.OpenFolder(open.folder.Path() / "d" / ""), std::nullopt);
    EXPECT_EQ(open.store.Designs()[1].name, "d~2");
    EXPECT_EQ(open.store.Designs()[2].name, "d~3");
}

TEST(DesignStore, AFolderThatCannotBeReadGivesASentence) {
    OpenStore open;
    const auto failure = open.store.OpenFolder(open.folder.Path() / "gone");
    ASSERT_TRUE(failure);
    EXPECT_THAT(*failure, testing::StartsWith("Cannot open the folder \""));
    EXPECT_THAT(*failure, HasSubstr("gone"));
    EXPECT_THAT(*failure, testing::EndsWith("."));
    EXPECT_TRUE(open.store.OpenFolder(open.folder.Write("file", "")));
    EXPECT_TRUE(open.store.Designs().empty());
}

TEST(DesignStore, AReferenceFindsItsSymbol) {
    OpenStore open;
    for (const char* file :
         {"d/a/res.sym", "d/b/res.sym", "d/b/cap.sym", "d/b/only.sch", "d/c/ind/symbol/ind.sym"})
        open.folder.Write(file, "");
    open.Open();
    const Design& design = open.store.Designs()[0];
    const Library& from = *design.FindLibrary("b");
    const std::pair<const char*, const char*> rows[] = {
        {"res", "b"},
        {"res.sym", "b"},
        {"a/res", "a"},
        {"x/y/a/res.sym", "a"},
        {"../res.sym", "b"},
        {"./cap", "b"},
        {"ind", "c"},
        {"c/ind.sym", "c"},
        {"only.sch", "b"},
        {"only", ""},
        {"a/cap", ""},
        {"zz/res", ""},
        {"", ""},
        {"a/", ""},
        {".sym", ""},
        {"res.sch", ""},
    };
    for (const auto& [reference, library] : rows) {
        const CellViewRef found = open.store.Resolve(design, from, reference);
        EXPECT_EQ(found ? found.library->name : "", library) << reference;
    }
}

TEST(DesignStore, CacheTellsNormalUnresolvedAndCycle) {
    OpenStore open;
    open.folder.Write("d/l/leaf.sym", "");
    for (const char* cell : {"good", "bad", "self", "ping", "pong", "above", "both"})
        open.folder.Write(std::string("d/l/") + cell + ".sym", "");
    open.folder.Write("d/l/good.sch", SchematicOf("leaf", "l/leaf.sym"));
    open.folder.Write("d/l/bad.sch", SchematicOf("leaf", "absent"));
    open.folder.Write("d/l/self.sch", SchematicOf("self"));
    open.folder.Write("d/l/ping.sch", SchematicOf("pong"));
    open.folder.Write("d/l/pong.sch", SchematicOf("leaf", "ping"));
    open.folder.Write("d/l/above.sch", SchematicOf("ping", "bad"));
    open.folder.Write("d/l/both.sch", SchematicOf("both", "absent"));
    open.Open();
    const std::pair<const char*, const char*> rows[] = {
        {"good", "Normal"}, {"bad", "Unresolved"}, {"self", "Cycle"}, {"ping", "Cycle"},
        {"pong", "Cycle"},  {"above", "Normal"},   {"both", "Cycle"}};
    for (const auto& [cell, word] : rows)
        EXPECT_EQ(open.Cache("l", cell), word) << cell;
    EXPECT_EQ(open.Cache("l", "bad", "symbol"), "Normal");
    EXPECT_EQ(open.Cache("l", "absent"), "Unresolved");
}

TEST(DesignStore, ASymbolOfSymbolsMayContainItself) {
    OpenStore open;
    open.folder.Write("d/l/a.sym", SchematicOf("b"));
    open.folder.Write("d/l/b.sym", SchematicOf("a"));
    open.Open();
    EXPECT_EQ(open.Cache("l", "a", "symbol"), "Cycle");
}

TEST(DesignStore, ALongChainOfSchematicsIsSettled) {
    OpenStore open;
    for (int number = 0; number < 3000; ++number) {
        const std::string cell = "d/l/c" + std::to_string(number);
        open.folder.Write(cell + ".sym", "");
        open.folder.Write(cell + ".sch", SchematicOf(("c" + std::to_string(number + 1)).c_str()));
    }
    open.Open();
    EXPECT_EQ(open.Cache("l", "c0"), "Normal");
    EXPECT_EQ(open.Cache("l", "c2999"), "Unresolved");
}

TEST(DesignStore, TypesComeFromTheSymbolOfTheCell) {
    OpenStore open;
    const std::pair<const char*, CellKey> rows[] = {{"fab", CellKey::IsFab},
                                                    {"stdvia", CellKey::IsStdViaDef},
                                                    {"customvia", CellKey::IsCustomViaDef},
                                                    {"guardring", CellKey::IsGuardRing},
                                                    {"vcell", CellKey::IsVCell}};
    for (const auto& [type, key] : rows) {
        open.folder.Write(std::string("d/l/") + type + ".sym", std::string("K {type=") + type + "}\n");
        open.folder.Write(std::string("d/l/") + type + ".v", "");
    }
    open.folder.Write("d/l/alone.sch", "G {type=vcell hidden=true}\n");
    open.Open();
    for (const auto& [type, key] : rows) {
        for (const auto& [otherType, otherKey] : rows) {
            EXPECT_EQ(open.store.Flag(open.Find("l", type, "symbol"), otherKey), key == otherKey);
            EXPECT_EQ(open.store.Flag(open.Find("l", type, "verilog"), otherKey), key == otherKey);
        }
    }
    EXPECT_TRUE(open.store.Flag(open.Find("l", "alone", "schematic"), CellKey::IsVCell));
    EXPECT_TRUE(open.store.Flag(open.Find("l", "alone", "schematic"), CellKey::IsHiddenInLists));
    EXPECT_FALSE(open.store.Flag(CellViewRef(), CellKey::IsFab));
}

TEST(DesignStore, MarksOutweighFilesAndCanBeTakenAway) {
    OpenStore open;
    open.folder.Write("d/l/a.sym", "K {hidden=true}\n");
    open.Open();
    const CellViewRef view = open.Find("l", "a", "symbol");
    EXPECT_TRUE(open.store.Flag(view, CellKey::IsHiddenInLists));
    open.store.SetMark({"", "l", "a", "symbol"}, CellKey::IsHiddenInLists, "0");
    EXPECT_FALSE(open.store.Flag(view, CellKey::IsHiddenInLists));
    open.store.SetMark({"d", "l", "a", "symbol"}, CellKey::IsHiddenInLists, "1");
    EXPECT_TRUE(open.store.Flag(view, CellKey::IsHiddenInLists)) << "the design's own mark comes first";
    open.store.SetMark({"d", "l", "a", "symbol"}, CellKey::IsHiddenInLists, "");
    EXPECT_FALSE(open.store.Flag(view, CellKey::IsHiddenInLists));
    open.store.SetMark({"other", "l", "a", "symbol"}, CellKey::IsModified, "1");
    EXPECT_FALSE(open.store.Flag(view, CellKey::IsModified));
    open.store.SetMark({"d", "l", "a", "symbol"}, CellKey::Cache, "Reading");
    EXPECT_EQ(open.store.CacheWord(view), "Reading");
}

TEST(DesignStore, RescanFindsWhatHasChangedAndNothingElse) {
    OpenStore open;
    open.folder.Write("d/l/a.sym", "K {type=fab}\n");
    open.folder.Write("d/l/a.sch", SchematicOf("late"));
    open.Open();
    EXPECT_FALSE(open.store.Rescan());
    EXPECT_TRUE(open.store.Flag(open.Find("l", "a", "symbol"), CellKey::IsFab));
    EXPECT_EQ(open.Cache("l", "a"), "Unresolved");
    EXPECT_FALSE(open.store.Rescan());
    open.folder.Write("d/l/late.sym", "");
    EXPECT_EQ(open.Cache("l", "a"), "Unresolved") << "not before the rescan";
    EXPECT_TRUE(open.store.Rescan());
    EXPECT_EQ(open.Cache("l", "a"), "Normal");
    open.folder.Rewrite("d/l/a.sym", "K {type=vcell}\n");
    EXPECT_TRUE(open.store.Rescan());
    EXPECT_TRUE(open.store.Flag(open.Find("l", "a", "symbol"), CellKey::IsVCell));
    std::filesystem::remove(open.folder.Path() / "d/l/late.sym");
    EXPECT_TRUE(open.store.Rescan());
    EXPECT_EQ(open.Cache("l", "a"), "Unresolved");
    EXPECT_FALSE(open.store.Rescan());
}

TEST(DesignStore, AFileMadeReadOnlyIsLockedAfterARescan) {
    OpenStore open;
    const auto path = open.folder.Write("d/l/a.sym", "");
    open.Open();
    EXPECT_FALSE(open.store.Flag(open.Find("l", "a", "symbol"), CellKey::IsLockedByUser));
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_TRUE(open.store.Rescan());
    EXPECT_TRUE(open.store.Flag(open.Find("l", "a", "symbol"), CellKey::IsLockedByUser));
}

TEST(DesignStore, LibrariesAndDesignsThatVanishAreNoFailure) {
    OpenStore open;
    open.folder.Write("d/l/a.sch", SchematicOf("x"));
    open.folder.Write("d/m/x.sym", "");
    open.Open();
    std::filesystem::remove_all(open.folder.Path() / "d/l");
    EXPECT_EQ(open.Cache("l", "a"), "Unresolved");
    EXPECT_EQ(open.store.Load(open.Find("l", "a", "schematic")), nullptr);
    EXPECT_TRUE(open.store.Rescan());
    EXPECT_THAT(LibraryNames(open.store.Designs()[0]), ElementsAre("m"));
    std::filesystem::remove_all(open.folder.Path() / "d");
    EXPECT_TRUE(open.store.Rescan());
    EXPECT_TRUE(open.store.Designs()[0].libraries.empty());
    open.folder.Write("d/m/x.sym", "");
    EXPECT_TRUE(open.store.Rescan());
    EXPECT_TRUE(open.Find("m", "x", "symbol"));
}

TEST(DesignStore, LoadReadsAFileAgainWhenItHasChanged) {
    OpenStore open;
    open.folder.Write("d/l/a.sym", "L 4 0 0 1 1 {}\n");
    open.folder.Write("d/l/f/symbol/zz.sym", "L 4 0 0 1 1 {}\n");
    open.folder.Write("d/l/f/symbol/f.sym", "N 0 0 1 1 {}\n");
    open.folder.Write("d/l/f/layout/rows", "");
    open.folder.Write("d/l/t.v", "module t; endmodule\n");
    open.Open();
    const auto first = open.store.Load(open.Find("l", "a", "symbol"));
    EXPECT_EQ(open.store.Load(open.Find("l", "a", "symbol")), first);
    open.folder.Rewrite("d/l/a.sym", "");
    EXPECT_TRUE(open.store.Load(open.Find("l", "a", "symbol"))->lines.empty());
    EXPECT_EQ(first->lines.size(), 1u);
    EXPECT_EQ(open.store.Load(open.Find("l", "f", "symbol"))->wires.size(), 1u);
    EXPECT_EQ(open.store.Load(open.Find("l", "f", "layout")), nullptr);
    EXPECT_EQ(open.store.Load(open.Find("l", "t", "verilog")), nullptr);
}

TEST(DesignStore, PathsNameAllFilesOfAView) {
    OpenStore open;
    open.folder.Write("d/l/a.sym", "");
    open.folder.Write("d/l/a/symbol/a.sym", "");
    open.Open();
    EXPECT_THAT(open.store.Paths(open.Find("l", "a", "symbol")),
                ElementsAre(open.folder.Path() / "d/l/a.sym", open.folder.Path() / "d/l/a/symbol"));
    EXPECT_TRUE(open.store.Paths(CellViewRef()).empty());
}

TEST(DesignStore, TheTopLibraryIsNamedLikeTheDesignOrTop) {
    OpenStore open;
    open.folder.Write("d/top/a.sym", "");
    open.Open();
    EXPECT_EQ(DesignStore::TopLibrary(open.store.Designs()[0]), "top");
    open.folder.Write("d/d/a.sym", "");
    open.store.Rescan();
    EXPECT_EQ(DesignStore::TopLibrary(open.store.Designs()[0]), "d");
}

}  // namespace
}  // namespace navigator
